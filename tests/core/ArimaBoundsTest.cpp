// ARIMA fits at the ends of what options and data may be: seasons of any length, outliers before
// the fit, effects that are nothing, agree or nearly do, numbers near the ends of their range.

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "ArimaSeries.h"

namespace tsffit {
namespace {

const double kMissing = MV::gMissingValue;

std::vector<double> Draws(std::uint64_t seed, std::size_t count) {
  test::NormalDraws draw(seed);
  std::vector<double> values(count);
  for (double& value : values) value = draw();
  return values;
}

// An autoregression of first order about 0.
std::vector<double> Autoregression(double phi, std::size_t count, std::uint64_t seed = 1) {
  test::NormalDraws draws(seed);
  return test::SimulateArma({1, -phi}, {1}, count, draws);
}

AMModelSpec::Fields Ar1() { return {.ar = {{1}, {}}}; }

ArimaFit FitOk(const std::vector<double>& series, const AMModelSpec::Fields& spec,
               ArimaMethod method = ArimaMethod::kMl,
               const std::vector<std::vector<double>>& predictors = {}) {
  ArimaFit fit = test::FitSpec(series, spec, method, predictors);
  EXPECT_EQ(fit.status, FitStatus::kOk) << fit.message;
  return fit;
}

TEST(ArimaSeason, OfAnyLengthIsNothingToAModelWithoutSeasonalParts) {
  const std::vector<double> series = Autoregression(0.5, 50);
  const ArimaFit plain = FitOk(series, Ar1());
  for (const unsigned length : {0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    AMModelSpec::Fields spec = Ar1();
    spec.season_length = length;
    const ArimaFit fit = FitOk(series, spec);
    EXPECT_EQ(test::EstimatesOf(fit), test::EstimatesOf(plain)) << length;
    EXPECT_EQ(Forecast(fit.model, 3).value, Forecast(plain.model, 3).value) << length;
  }
}

// The share of variance that w, the series itself here, leaves after the fit.
double ExplainedOf(const std::vector<double>& series, const ArimaFit& fit) {
  double n = 0;
  double sum = 0;
  double squares = 0;
  double residual = 0;
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (fit.residuals[t] == kMissing) continue;
    n += 1;
    sum += series[t];
    squares += series[t] * series[t];
    residual += (series[t] - fit.fitted[t]) * (series[t] - fit.fitted[t]);
  }
  return 1 - residual / (squares - sum * sum / n);
}

TEST(ArimaStatistics, StationaryRSquaredIsOfTheCasesWithAForecast) {
  const std::vector<double> series = Autoregression(0.6, 80);
  const ArimaFit conditional = FitOk(series, Ar1(), ArimaMethod::kCls);
  EXPECT_NEAR(conditional.model.GetGOFStat("SRSQ"), ExplainedOf(series, conditional), 1e-9);

  AMModelSpec::Fields delayed = Ar1();
  delayed.predictors = {{.delay = 3}};
  const ArimaFit late = FitOk(series, delayed, ArimaMethod::kMl, {Draws(7, 80)});
  EXPECT_NEAR(late.model.GetGOFStat("SRSQ"), ExplainedOf(series, late), 1e-9);
}

// Two cases before the first row are missing; two errors go into them.
TEST(ArimaStatistics, MeanSquareCountsTheCasesOfTheLikelihood) {
  std::vector<double> series = test::Summed(Autoregression(0.5, 80));
  series[2] = series[3] = kMissing;
  AMModelSpec::Fields spec = Ar1();
  spec.season_length = 4;
  spec.non_seasonal_diff = spec.seasonal_diff = 1;
  const ArimaFit fit = FitOk(series, spec);
  double sse = 0;
  std::size_t errors = 0;
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (fit.residuals[t] == kMissing) continue;
    ++errors;
    sse += (series[t] - fit.fitted[t]) * (series[t] - fit.fitted[t]);
  }
  ASSERT_EQ(errors, 75U);
  ASSERT_EQ(fit.summary.residuals, 73U);
  EXPECT_NEAR(fit.model.GetGOFStat("MSE"), sse / 72, 1e-9 * sse);
  EXPECT_NEAR(fit.model.GetGOFStat("NRMBIC"), std::log(sse / 72) + std::log(73) / 73, 1e-9);
}

}  // namespace
}  // namespace tsffit
