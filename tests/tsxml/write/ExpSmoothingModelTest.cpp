#include <gtest/gtest.h>

#include "support/FailingAllocation.h"
#include "support/Golden.h"
#include "support/Models.h"
#include "support/XmlText.h"
#include "tsxml/write/ExpSmoothingModel.h"

namespace {

using test::Compact;
using test::Indented;
using test::kMissing;
using tsx::ElementPtr;

TSXDictionaryRefs Refs() { return {"m", "", "y"}; }

// The model with its state and without an estimation record.
ElementPtr Encode(const ESForecastState& state) {
  return tsx::MakeExpSmoothingModel(state.GetESModelSpec(), Refs(), state.GetParameterEstimates(),
                                    state.GetParameterStdErrors(), &state, nullptr);
}

void ExpectEncodes(const std::string& golden, const ESForecastState& state) {
  const EstimationInfo info = test::SmallInfo();
  const ElementPtr e =
      tsx::MakeExpSmoothingModel(state.GetESModelSpec(), Refs(), state.GetParameterEstimates(),
                                 state.GetParameterStdErrors(), &state, &info);
  ASSERT_NE(e, nullptr);
  const std::string text = Indented(*e);
  test::ExpectGolden("tsxml/golden/" + golden, text);
  test::ExpectWellFormed(text);
}

ESForecastState SimpleSeasonalState() {
  return ESForecastState(
      {.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimpleSeasonal, 4)),
       .estimates = {0.5, 0.25},
       .std_errors = {0.125, 0.0625},
       .smoothed = {.level = 50, .trend = kMissing, .phase = 1, .season = {-3, 1, 4, -2}}});
}

TEST(ExpSmoothingModel, SimpleHasLevelOnlyAndNoSeasonLength) {
  ExpectEncodes("simple.xml", test::SimpleState());
}

TEST(ExpSmoothingModel, SimpleSeasonalHasSeasonButNoTrend) {
  ExpectEncodes("simple_seasonal.xml", SimpleSeasonalState());
}

TEST(ExpSmoothingModel, BrownHasOneWeightAndATrendInItsState) {
  ExpectEncodes("brown.xml",
                ESForecastState({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kBrown, 1)),
                                 .estimates = {0.5},
                                 .std_errors = {},
                                 .smoothed = {.level = 7, .trend = -1, .phase = 0, .season = {}}}));
}

TEST(ExpSmoothingModel, HoltHasLevelAndTrend) { ExpectEncodes("holt.xml", test::HoltState()); }

TEST(ExpSmoothingModel, DampedTrendHasItsDampingWeightLast) {
  ExpectEncodes(
      "damped_trend.xml",
      ESForecastState({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kDampedTrend, 1)),
                       .estimates = {0.5, 0.25, 0.9375},
                       .std_errors = {0.1, 0.2, 0.3},
                       .smoothed = {.level = 7, .trend = 1e-5, .phase = 0, .season = {}}}));
}

TEST(ExpSmoothingModel, AdditiveWintersUnderTheSquareRootHasATransformation) {
  const ESForecastState winters = test::WintersState();
  ExpectEncodes(
      "winters_additive_sqrt.xml",
      ESForecastState({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kAdditiveWinters, 4,
                                                                TSTransformation::kSquareRoot)),
                       .estimates = winters.GetParameterEstimates(),
                       .std_errors = winters.GetParameterStdErrors(),
                       .smoothed = winters.GetSmState()}));
}

TEST(ExpSmoothingModel, MultiplicativeWintersHasAllOfASeason) {
  ExpectEncodes("winters_multiplicative.xml", test::WintersState());
}

TEST(ExpSmoothingModel, UnknownKindIsNotEncoded) {
  for (const int kind : {-1, 7}) {
    ESForecastState state({.spec = ESModelSpec({.kind = kind}),
                           .estimates = {},
                           .std_errors = {},
                           .smoothed = {.level = 1}});
    EXPECT_EQ(Encode(state), nullptr) << kind;
  }
}

TEST(ExpSmoothingModel, HoltWithoutItsTrendIsNotEncoded) {
  EXPECT_EQ(Encode(test::HoltState(kMissing)), nullptr);
}

TEST(ExpSmoothingModel, MissingLevelIsNotEncoded) {
  EXPECT_EQ(Encode(test::SimpleState(kMissing)), nullptr);
}

TEST(ExpSmoothingModel, WintersWithOneSeasonalValueMissingIsNotEncoded) {
  const ESForecastState whole = test::WintersState();
  ESForecastState::SmState smoothed = whole.GetSmState();
  smoothed.season[2] = kMissing;
  const ESForecastState holed({.spec = whole.GetESModelSpec(),
                               .estimates = whole.GetParameterEstimates(),
                               .std_errors = whole.GetParameterStdErrors(),
                               .smoothed = smoothed});
  EXPECT_NE(Encode(whole), nullptr);
  EXPECT_EQ(Encode(holed), nullptr);
}

TEST(ExpSmoothingModel, OneSeasonalValueIsNoSeasonEvenWhenMissing) {
  const ESForecastState state(
      {.spec = test::HoltState().GetESModelSpec(),
       .estimates = {0.5, 0.125},
       .std_errors = {},
       .smoothed = {.level = 1, .trend = 2, .phase = 0, .season = {kMissing}}});
  EXPECT_EQ(Compact(*Encode(state)),
            "<ExpSmoothingModel modelName=\"m\" variableID=\"y\"><ESHolt>"
            "<ParmLevel><EstimatedParameter>0.5</EstimatedParameter></ParmLevel>"
            "<ParmTrend><EstimatedParameter>0.125</EstimatedParameter></ParmTrend>"
            "<StateLevel>1</StateLevel><StateTrend>2</StateTrend></ESHolt></ExpSmoothingModel>");
}

TEST(ExpSmoothingModel, MissingEstimateOfAWeightIsNotEncoded) {
  const ESForecastState state({.spec = test::HoltState().GetESModelSpec(),
                               .estimates = {0.5, kMissing},
                               .std_errors = {0.1, 0.1},
                               .smoothed = {.level = 1, .trend = 2}});
  EXPECT_EQ(Encode(state), nullptr);
}

TEST(ExpSmoothingModel, WeightBeyondTheEstimatesIsNotEncoded) {
  ESModelSpec::Fields fields = ESModelSpec::ForKind(ESModelSpec::kSimple, 1);
  fields.weight_index[ESModelSpec::kLevel] = 5;  // while one parameter is declared
  const ESForecastState state({.spec = ESModelSpec(fields),
                               .estimates = {0.5},
                               .std_errors = {},
                               .smoothed = {.level = 1}});
  EXPECT_EQ(Encode(state), nullptr);
}

TEST(ExpSmoothingModel, TooFewEstimatesLeaveTheWeightsOutButKeepTheState) {
  const ESForecastState state({.spec = test::HoltState().GetESModelSpec(),
                               .estimates = {0.5},
                               .std_errors = {},
                               .smoothed = {.level = 1, .trend = 2}});
  EXPECT_EQ(Compact(*Encode(state)),
            "<ExpSmoothingModel modelName=\"m\" variableID=\"y\"><ESHolt>"
            "<StateLevel>1</StateLevel><StateTrend>2</StateTrend></ESHolt></ExpSmoothingModel>");
}

TEST(ExpSmoothingModel, WithoutStateNoStateIsWrittenEvenForASeasonalKind) {
  const ESForecastState winters = test::WintersState();
  const ElementPtr e = tsx::MakeExpSmoothingModel(
      winters.GetESModelSpec(), Refs(), winters.GetParameterEstimates(), {}, nullptr, nullptr);
  EXPECT_EQ(Compact(*e),
            "<ExpSmoothingModel modelName=\"m\" variableID=\"y\">"
            "<ESMultiplicativeWinters seasonLength=\"4\">"
            "<ParmLevel><EstimatedParameter>0.5</EstimatedParameter></ParmLevel>"
            "<ParmTrend><EstimatedParameter>0.125</EstimatedParameter></ParmTrend>"
            "<ParmSeason><EstimatedParameter>0.75</EstimatedParameter></ParmSeason>"
            "</ESMultiplicativeWinters></ExpSmoothingModel>");
}

TEST(ExpSmoothingModel, SeasonLengthOfOneIsNotWritten) {
  ESModelSpec::Fields fields = ESModelSpec::ForKind(ESModelSpec::kSimpleSeasonal, 1);
  const ElementPtr e =
      tsx::MakeExpSmoothingModel(ESModelSpec(fields), Refs(), {}, {}, nullptr, nullptr);
  EXPECT_EQ(Compact(*e),
            "<ExpSmoothingModel modelName=\"m\" variableID=\"y\"><ESSimpleSeasonal/>"
            "</ExpSmoothingModel>");
}

TEST(ExpSmoothingModel, DeclaredSeasonOfAKindWithoutOneIsNotWritten) {
  const ESModelSpec holt(ESModelSpec::ForKind(ESModelSpec::kHolt, 12));
  const ElementPtr e = tsx::MakeExpSmoothingModel(holt, Refs(), {}, {}, nullptr, nullptr);
  EXPECT_EQ(Compact(*e),
            "<ExpSmoothingModel modelName=\"m\" variableID=\"y\"><ESHolt/></ExpSmoothingModel>");
}

// Two parameters of which one is fixed: one estimate is too few all the same.
TEST(ExpSmoothingModel, FixedWeightsCountAmongTheParameters) {
  ESModelSpec::Fields fields = ESModelSpec::ForKind(ESModelSpec::kHolt, 1);
  fields.fixed_count = 1;
  const ElementPtr e =
      tsx::MakeExpSmoothingModel(ESModelSpec(fields), Refs(), {0.5}, {}, nullptr, nullptr);
  EXPECT_EQ(Compact(*e),
            "<ExpSmoothingModel modelName=\"m\" variableID=\"y\"><ESHolt/></ExpSmoothingModel>");
}

TEST(ExpSmoothingModel, LeavesNothingBehindWhereverMemoryRunsOut) {
  const ESForecastState winters = test::WintersState();
  const EstimationInfo info = test::SmallInfo();
  const TSXDictionaryRefs refs("a model name beyond any small buffer", "described at length", "y");
  test::WithEveryAllocationFailing([&] {
    const ElementPtr e =
        tsx::MakeExpSmoothingModel(winters.GetESModelSpec(), refs, winters.GetParameterEstimates(),
                                   winters.GetParameterStdErrors(), &winters, &info);
  });
}

}  // namespace
