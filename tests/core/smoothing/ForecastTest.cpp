// Forecasts go on from the final state alone; limits and their back-transformation.

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>

#include <tsfcore/tsfcore.h>

#include "core/support/TestSeries.h"

namespace {

using test::Fit;
using test::StateOf;

double AsDocumentText(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.15g", value);
  return std::strtod(text, nullptr);
}

// The model with every number of its state as a document carries it: 15 significant digits.
TSFModel ThroughText(const TSFModel& model) {
  const ESForecastState& state = StateOf(model);
  ESForecastState::Fields fields{.spec = state.GetESModelSpec(),
                                 .estimates = state.GetParameterEstimates(),
                                 .std_errors = {},
                                 .smoothed = state.GetSmState()};
  fields.smoothed.level = AsDocumentText(fields.smoothed.level);
  fields.smoothed.trend = AsDocumentText(fields.smoothed.trend);
  fields.smoothed.season = fields.smoothed.season.apply(AsDocumentText);
  fields.estimates = fields.estimates.apply(AsDocumentText);
  TSFModelImp::Fields imp;
  imp.state = std::make_unique<ESForecastState>(std::move(fields));
  EstimationInfo::Fields info;
  info.error_variance = AsDocumentText(model.GetImp()->GetEstimationInfo().GetErrorVariance());
  imp.info = EstimationInfo(info);
  return TSFModel(new TSFModelImp(std::move(imp)));
}

TEST(Forecast, GoesOnFromDocumentDigitsForEveryKindAndTransformation) {
  const auto series = test::DataColumn("airpassengers.csv");
  for (int kind = 0; kind < 7; ++kind) {
    for (int function = 0; function < 3; ++function) {
      const TSFModel model = Fit(series, kind, 12, function).model;
      const auto direct = tsffit::Forecast(model, 30);
      const auto resumed = tsffit::Forecast(ThroughText(model), 30);
      ASSERT_EQ(direct.value.size(), 30U);
      for (std::size_t h = 0; h < 30; ++h) {
        EXPECT_NEAR(resumed.value[h], direct.value[h], 1e-9 * std::abs(direct.value[h]));
        EXPECT_NEAR(resumed.lower[h], direct.lower[h], 1e-9 * std::abs(direct.value[h]));
        EXPECT_NEAR(resumed.upper[h], direct.upper[h], 1e-9 * std::abs(direct.upper[h]));
      }
    }
  }
}

// The one-step forecast at the end of a series is what the fit of the next case would have been:
// appending a missing case asks the recursion for it.
TEST(Forecast, FirstStepIsTheRecursionsNextFittedValue) {
  auto series = test::DataColumn("ukgas.csv");
  for (int kind = 0; kind < 7; ++kind) {
    auto longer = series;
    longer.push_back(MV::gMissingValue);
    const double next = Fit(longer, kind).fitted.back();
    const double forecast = tsffit::Forecast(Fit(series, kind).model, 1).value[0];
    EXPECT_NEAR(forecast, next, 1e-6 * std::abs(next)) << "kind " << kind;
  }
}

TEST(Forecast, FirstStepHasTheStandardErrorOfTheFit) {
  const auto series = test::DataColumn("ukgas.csv");
  for (int kind = 0; kind < 7; ++kind) {
    const auto fit = Fit(series, kind);
    const double variance = fit.model.GetImp()->GetEstimationInfo().GetErrorVariance();
    EXPECT_DOUBLE_EQ(tsffit::Forecast(fit.model, 1).std_error[0], std::sqrt(variance));
  }
}

// 1.959963984540054 and 1.2815515655446004: printed quantiles of the normal distribution.
TEST(Forecast, LimitsAreNormalQuantilesAway) {
  const TSFModel model = Fit(test::DataColumn("nile.csv"), ESModelSpec::kSimple).model;
  const auto wide = tsffit::Forecast(model, 3);
  const auto narrow = tsffit::Forecast(model, 3, 0.8);
  for (std::size_t h = 0; h < 3; ++h) {
    EXPECT_NEAR(wide.upper[h] - wide.value[h], 1.959963984540054 * wide.std_error[h], 1e-9);
    EXPECT_NEAR(wide.value[h] - wide.lower[h], 1.959963984540054 * wide.std_error[h], 1e-9);
    EXPECT_NEAR(narrow.upper[h] - narrow.value[h], 1.2815515655446004 * wide.std_error[h], 1e-9);
  }
}

// The normal quantile of 1 - 2^-54 is 8.2924.
TEST(Forecast, LimitsHoldUpToTheLastConfidenceBelowOne) {
  const TSFModel model = Fit(test::DataColumn("airpassengers.csv"), ESModelSpec::kSimple, 1).model;
  const auto forecasts = tsffit::Forecast(model, 1, std::nextafter(1.0, 0.0));
  ASSERT_EQ(forecasts.upper.size(), 1U);
  EXPECT_NEAR((forecasts.upper[0] - forecasts.value[0]) / forecasts.std_error[0], 8.2924, 1e-4);
}

TEST(Forecast, LimitsUnderTheLogarithmAreBackTransformed) {
  const auto series = test::DataColumn("airpassengers.csv");
  const auto forecast =
      tsffit::Forecast(Fit(series, ESModelSpec::kHolt, 12, TSTransformation::kLogarithm).model, 4);
  for (std::size_t h = 0; h < 4; ++h) {
    EXPECT_GT(forecast.lower[h], 0);
    // Symmetric as ratios.
    EXPECT_NEAR(forecast.upper[h] / forecast.value[h], forecast.value[h] / forecast.lower[h], 1e-9);
  }
}

TEST(Forecast, LimitsUnderTheSquareRootStopAtZero) {
  const auto series = test::DataColumn("intermittent_b.csv");
  const auto forecast = tsffit::Forecast(
      Fit(series, ESModelSpec::kSimple, 1, TSTransformation::kSquareRoot).model, 3);
  for (std::size_t h = 0; h < 3; ++h) {
    EXPECT_EQ(forecast.lower[h], 0);
    EXPECT_LE(forecast.lower[h], forecast.value[h]);
    EXPECT_LT(forecast.value[h], forecast.upper[h]);
  }
}

TEST(Forecast, NothingToGoOnFromGivesNothing) {
  EXPECT_TRUE(tsffit::Forecast(TSFModel(), 5).value.empty());
  EXPECT_TRUE(tsffit::Forecast(TSFModel(new TSFModelImp({})), 5).value.empty());
  const TSFModel model = Fit(test::DataColumn("nile.csv"), ESModelSpec::kSimple).model;
  EXPECT_TRUE(tsffit::Forecast(model, 0).value.empty());
  EXPECT_TRUE(tsffit::Forecast(model, 5, 1).value.empty());
  EXPECT_TRUE(tsffit::Forecast(model, 5, std::nan("")).value.empty());
}

// A model written down by hand may lack what a fit always has.
TEST(Forecast, IncompleteStateGivesNothing) {
  const auto forecasts = [](ESForecastState::Fields fields) {
    TSFModelImp::Fields imp;
    imp.state = std::make_unique<ESForecastState>(std::move(fields));
    return tsffit::Forecast(TSFModel(new TSFModelImp(std::move(imp))), 2);
  };
  const ESModelSpec seasonal(ESModelSpec::ForKind(ESModelSpec::kSimpleSeasonal, 4));
  const ESModelSpec brown(ESModelSpec::ForKind(ESModelSpec::kBrown, 1));
  ESForecastState::SmState noSeason{.level = 1};
  ESForecastState::SmState badPhase{.level = 1, .trend = 0, .phase = 4, .season = {1, 2, 3, 4}};
  ESForecastState::SmState missing{.level = MV::gMissingValue};
  EXPECT_TRUE(
      forecasts({.spec = seasonal, .estimates = {0.1, 0.1}, .smoothed = noSeason}).value.empty());
  EXPECT_TRUE(
      forecasts({.spec = seasonal, .estimates = {0.1, 0.1}, .smoothed = badPhase}).value.empty());
  EXPECT_TRUE(forecasts({.spec = brown, .estimates = {}, .smoothed = noSeason}).value.empty());
  EXPECT_TRUE(forecasts({.spec = brown, .estimates = {0}, .smoothed = noSeason}).value.empty());
  EXPECT_TRUE(forecasts({.spec = brown, .estimates = {0.5}, .smoothed = missing}).value.empty());
}

TEST(Forecast, WithoutAnErrorVarianceThereAreNoLimits) {
  TSFModelImp::Fields imp;
  imp.state = std::make_unique<ESForecastState>(
      ESForecastState::Fields{.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1)),
                              .estimates = {0.5},
                              .smoothed = {.level = 7}});
  const auto forecast = tsffit::Forecast(TSFModel(new TSFModelImp(std::move(imp))), 2);
  EXPECT_EQ(forecast.value, (std::vector<double>{7, 7}));
  EXPECT_EQ(forecast.std_error[1], MV::gMissingValue);
  EXPECT_EQ(forecast.lower[1], MV::gMissingValue);
  EXPECT_EQ(forecast.upper[1], MV::gMissingValue);
}

}  // namespace
