// The facts of each kind of smoothing against its equations in tsffit/Smoothing.h, written down one
// by one.

#include <array>
#include <gtest/gtest.h>
#include <string>

#include "kinds/SmoothingKind.h"

namespace {

using kinds::FindSmoothingKind;
using kinds::Season;
using kinds::Trend;

struct Expected {
  const char* name;
  int kind;
  Trend trend;
  Season season;
  std::array<bool, 3> weights;  // of trend, season and damping
};

constexpr Expected kExpected[] = {
    {"AdditiveWinters",
     ESModelSpec::kAdditiveWinters,
     Trend::kLinear,
     Season::kAdditive,
     {true, true, false}},
    {"Brown", ESModelSpec::kBrown, Trend::kBrown, Season::kNone, {false, false, false}},
    {"DampedTrend", ESModelSpec::kDampedTrend, Trend::kDamped, Season::kNone, {true, false, true}},
    {"Holt", ESModelSpec::kHolt, Trend::kLinear, Season::kNone, {true, false, false}},
    {"MultiplicativeWinters",
     ESModelSpec::kMultiplicativeWinters,
     Trend::kLinear,
     Season::kMultiplicative,
     {true, true, false}},
    {"SimpleSeasonal",
     ESModelSpec::kSimpleSeasonal,
     Trend::kNone,
     Season::kAdditive,
     {false, true, false}},
    {"Simple", ESModelSpec::kSimple, Trend::kNone, Season::kNone, {false, false, false}},
};

class EverySmoothingKind : public testing::TestWithParam<Expected> {};

TEST_P(EverySmoothingKind, HasTheTrendAndTheSeasonOfItsEquations) {
  const kinds::SmoothingKind* facts = FindSmoothingKind(GetParam().kind);
  ASSERT_NE(facts, nullptr);
  EXPECT_EQ(facts->trend, GetParam().trend);
  EXPECT_EQ(facts->season, GetParam().season);
  EXPECT_EQ(facts->has_trend(), GetParam().trend != Trend::kNone);
  EXPECT_EQ(facts->has_season(), GetParam().season != Season::kNone);
  EXPECT_EQ(kinds::TrendOf(GetParam().kind), GetParam().trend);
  EXPECT_EQ(kinds::SeasonOf(GetParam().kind), GetParam().season);
  EXPECT_EQ(kinds::ExpectsTrend(GetParam().kind), GetParam().trend != Trend::kNone);
}

TEST_P(EverySmoothingKind, HasTheWeightsOfItsEquations) {
  const kinds::SmoothingKind* facts = FindSmoothingKind(GetParam().kind);
  ASSERT_NE(facts, nullptr);
  EXPECT_EQ(facts->has_trend_weight(), GetParam().weights[0]);
  EXPECT_EQ(facts->has_season_weight(), GetParam().weights[1]);
  EXPECT_EQ(facts->has_damping_weight(), GetParam().weights[2]);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EverySmoothingKind, testing::ValuesIn(kExpected),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST(SmoothingKinds, StandInTheOrderOfTheirCodes) {
  for (int kind = 0; kind < static_cast<int>(std::size(kinds::kSmoothingKinds)); ++kind) {
    EXPECT_EQ(kinds::kSmoothingKinds[kind].kind, kind);
  }
}

TEST(SmoothingKinds, OtherCodesAreNoKind) {
  for (const int code : {-1, ESModelSpec::kSimple + 1, 1000}) {
    EXPECT_EQ(FindSmoothingKind(code), nullptr);
    EXPECT_FALSE(kinds::IsSmoothingKind(code));
    EXPECT_EQ(kinds::TrendOf(code), Trend::kNone);
    EXPECT_EQ(kinds::SeasonOf(code), Season::kNone);
    EXPECT_TRUE(kinds::ExpectsTrend(code)) << "nobody knows that it has none";
  }
}

}  // namespace
