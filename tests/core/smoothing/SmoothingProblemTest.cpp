// The sum of squares that is minimised, its gradient and the solution for starting components.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "core/support/TestSeries.h"
#include "smoothing/ComponentSolve.h"
#include "smoothing/Minimise.h"
#include "smoothing/SmoothingProblem.h"

namespace tsffit {
namespace {

constexpr std::size_t kLength = 4;

class EveryKind : public testing::TestWithParam<int> {
 protected:
  EveryKind()
      : traits_(TraitsOf(GetParam())), series_(test::Generate(50, [](std::size_t t) {
          return 1 + 0.01 * static_cast<double>(t) + 0.1 * test::Noise(t) +
                 0.1 * static_cast<double>(t % kLength);
        })) {
    series_[10] = series_[11] = series_[49] = MV::gMissingValue;
  }

  SmoothingProblem Problem() const {
    return {traits_, series_, traits_.season == Season::kNone ? 1 : kLength};
  }

  std::vector<double> SomePoint(const SmoothingProblem& problem) const {
    Components start{.level = 1, .trend = 0.02, .season = {}};
    if (traits_.season == Season::kAdditive) start.season = {0.1, -0.1, 0.2, 0};
    if (traits_.season == Season::kMultiplicative) start.season = {1.1, 0.9, 1.2, 1};
    const std::vector<double> weights = {0.3, 0.4, 0.6};
    return problem.Pack(std::span(weights).first(problem.WeightCount()), start);
  }

  KindTraits traits_;
  std::vector<double> series_;
};

TEST_P(EveryKind, GradientIsThatOfTheSum) {
  SmoothingProblem problem = Problem();
  const std::vector<double> at = SomePoint(problem);
  std::vector<double> gradient(at.size());
  const double sse = problem.Sse(at, gradient);
  EXPECT_NEAR(sse, problem.Sse(at), 1e-12 * sse);
  for (std::size_t i = 0; i < at.size(); ++i) {
    std::vector<double> up = at;
    std::vector<double> down = at;
    up[i] += 1e-6;
    down[i] -= 1e-6;
    EXPECT_NEAR(gradient[i], (problem.Sse(up) - problem.Sse(down)) / 2e-6, 1e-6 * sse)
        << "parameter " << i;
  }
}

class AdditiveKind : public EveryKind {};

TEST_P(AdditiveKind, SolvedComponentsLeaveNoSlope) {
  SmoothingProblem problem = Problem();
  std::vector<double> parameters = SomePoint(problem);
  const double before = problem.Sse(parameters);
  const double after = SolveComponents(problem, parameters);
  EXPECT_LT(after, before);
  std::vector<double> gradient(parameters.size());
  EXPECT_EQ(problem.Sse(parameters, gradient), after);
  for (std::size_t i = problem.WeightCount(); i < gradient.size(); ++i) {
    EXPECT_NEAR(gradient[i], 0, 1e-8) << "parameter " << i;
  }
}

TEST_P(EveryKind, SolvingForComponentsLowersTheSumAndKeepsTheWeights) {
  SmoothingProblem problem = Problem();
  const std::vector<double> before = SomePoint(problem);
  std::vector<double> after = before;
  EXPECT_LT(SolveComponents(problem, after), problem.Sse(before));
  for (std::size_t w = 0; w < problem.WeightCount(); ++w) EXPECT_EQ(after[w], before[w]);
}

TEST_P(EveryKind, MinimumIsStationaryOrOnABound) {
  SmoothingProblem problem = Problem();
  std::vector<double> parameters = SomePoint(problem);
  const MinimiseOptions options{.max_evaluations = 2000, .function_tolerance = 1e-14};
  for (int run = 0; run < 3; ++run) Minimise(problem, options, parameters);
  std::vector<double> gradient(parameters.size());
  const double sse = problem.Sse(parameters, gradient);
  for (std::size_t i = 0; i < gradient.size(); ++i) {
    const bool weight = i < problem.WeightCount();
    const double lower = i == 0 ? traits_.least_level_weight : 0;
    if (weight && parameters[i] <= lower) {
      EXPECT_EQ(parameters[i], lower);
      EXPECT_GE(gradient[i], -1e-4 * sse) << "parameter " << i;
    } else if (weight && parameters[i] >= 1) {
      EXPECT_EQ(parameters[i], 1);
      EXPECT_LE(gradient[i], 1e-4 * sse) << "parameter " << i;
    } else {
      EXPECT_NEAR(gradient[i], 0, 1e-4 * sse) << "parameter " << i;
    }
  }
}

TEST_P(EveryKind, MissingCasesCountForNothing) {
  SmoothingProblem problem = Problem();
  const std::vector<double> at = SomePoint(problem);
  double sum = 0;
  Components components = problem.StartAt(at);
  ForShape(traits_, [&]<bool kTrend, Season kSeason>() {
    return Walk<kTrend, kSeason>(series_, problem.GainsAt(at), components,
                                 [&](std::size_t t, double forecast) {
                                   if (t == 10 || t == 11 || t == 49) return;
                                   sum += (series_[t] - forecast) * (series_[t] - forecast);
                                 });
  });
  EXPECT_NEAR(problem.Sse(at), sum, 1e-12 * sum);
}

std::string NameOfKind(const testing::TestParamInfo<int>& info) {
  std::string name = test::KindName(info.param);
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Smoothing, EveryKind, testing::Range(0, 7), NameOfKind);
INSTANTIATE_TEST_SUITE_P(Smoothing, AdditiveKind, testing::Values(0, 1, 2, 3, 5, 6), NameOfKind);

TEST(MultiplicativeRegion, StartOutsideHasAnInfiniteSumAndNoGradient) {
  const std::vector<double> series(12, 1.0);
  SmoothingProblem problem(TraitsOf(ESModelSpec::kMultiplicativeWinters), series, 2);
  const std::vector<double> outside = {0.3, 0.1, 0.2, 1, 0, 1, -1};
  std::vector<double> gradient(outside.size(), 7.0);
  EXPECT_TRUE(std::isinf(problem.Sse(outside)));
  EXPECT_TRUE(std::isinf(problem.Sse(outside, gradient)));
  EXPECT_EQ(gradient, std::vector<double>(outside.size(), 0.0));
  std::vector<double> parameters = outside;
  EXPECT_TRUE(std::isinf(Minimise(problem, {}, parameters).sse));
  EXPECT_EQ(parameters, outside);
}

// Worked by hand: level 10, weight 0.5, observations 12, missing, 8.
TEST(Recursion, SimpleSmoothingByHand) {
  const std::vector<double> series = {12, MV::gMissingValue, 8};
  Components components{.level = 10, .trend = 0, .season = {}};
  std::vector<double> forecasts;
  Walk<false, Season::kNone>(series, {.level = 0.5}, components,
                             [&](std::size_t, double forecast) { forecasts.push_back(forecast); });
  EXPECT_EQ(forecasts, (std::vector<double>{10, 11, 11}));
  EXPECT_EQ(components.level, 9.5);
}

// Level 10, trend 4 damped by 0.5; the missing case carries level + 0.5 * trend and halves the
// trend.
TEST(Recursion, MissingCaseDampsTheTrend) {
  const std::vector<double> series = {MV::gMissingValue};
  Components components{.level = 10, .trend = 4, .season = {}};
  Walk<true, Season::kNone>(series, {.level = 0.5, .trend = 0.5, .season = 0, .damping = 0.5},
                            components, [](std::size_t, double) {});
  EXPECT_EQ(components.level, 12);
  EXPECT_EQ(components.trend, 2);
}

// Level 10, trend 2, season (0.5, 2): forecast 12 * 0.5 = 6, observed 9, e = 3, e / S = 6.
TEST(Recursion, MultiplicativeWintersByHand) {
  const std::vector<double> series = {9};
  Components components{.level = 10, .trend = 2, .season = {0.5, 2}};
  const Gains gains =
      GainsOf(TraitsOf(ESModelSpec::kMultiplicativeWinters), std::vector<double>{0.5, 0.25, 0.5});
  Walk<true, Season::kMultiplicative>(series, gains, components,
                                      [](std::size_t, double forecast) { EXPECT_EQ(forecast, 6); });
  EXPECT_DOUBLE_EQ(components.level, 15);                       // 12 + 0.5 * 6
  EXPECT_DOUBLE_EQ(components.trend, 2.75);                     // 2 + 0.125 * 6
  EXPECT_DOUBLE_EQ(components.season[0], 0.5 + 0.25 * 3 / 12);  // gain (1 - a) d
  EXPECT_EQ(components.season[1], 2);
}

}  // namespace
}  // namespace tsffit
