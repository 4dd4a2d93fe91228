// ARIMA fits at the ends of what options and data may be: seasons of any length, outliers before
// the fit, effects that are nothing, agree or nearly do, numbers near the ends of their range.

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "core/support/ArimaSeries.h"
#include "core/support/TestSeries.h"

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

AMModelSpec::Fields Ar1With(const std::vector<TSOutlierSpec>& outliers) {
  AMModelSpec::Fields spec = Ar1();
  spec.outliers = TSOutlierSpecList(outliers);
  return spec;
}

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

TEST(ArimaModelWithoutCoefficients, FitsByEveryMethod) {
  AMModelSpec::Fields walk;
  walk.non_seasonal_diff = 1;
  const std::vector<double> series = test::Summed(Draws(2, 40));
  double squares = 0;
  for (std::size_t t = 1; t < 40; ++t) squares += std::pow(series[t] - series[t - 1], 2);
  for (const auto method : {ArimaMethod::kMl, ArimaMethod::kMlTheta, ArimaMethod::kCls}) {
    const ArimaFit fit = FitOk(series, walk, method);
    EXPECT_NEAR(fit.summary.error_variance, squares / 39, 1e-9 * squares);
    EXPECT_TRUE(test::StdErrorsOf(fit).empty());
    EXPECT_NEAR(Forecast(fit.model, 2).value[1], series.back(), 1e-9);
  }
}

// In an autoregression of first order a shock dies away as phi^k, whenever it came: what it does to
// the observed cases is that of a shock in the first of them, but for its size.
TEST(ArimaOutlierBeforeTheFit, InnovationalOneActsOnAllCasesOfTheFit) {
  std::vector<double> series = Autoregression(0.7, 60);
  std::fill_n(series.begin(), 12, kMissing);
  const ArimaFit before = FitOk(series, Ar1With({{TSOutlierSpec::kInnovational, 2}}));
  const ArimaFit first = FitOk(series, Ar1With({{TSOutlierSpec::kInnovational, 12}}));
  EXPECT_NEAR(before.summary.log_likelihood, first.summary.log_likelihood, 1e-6);
  const std::vector<double> a = test::EstimatesOf(before);
  const std::vector<double> b = test::EstimatesOf(first);
  EXPECT_NEAR(a[0], b[0], 1e-4);
  EXPECT_NEAR(a[1] * std::pow(a[0], 10), b[1], 1e-3 * std::abs(b[1]));
  EXPECT_NEAR(Forecast(before.model, 1).value[0], Forecast(first.model, 1).value[0], 1e-4);
}

TEST(ArimaOutlierBeforeTheFit, FadedOneIsLeftOut) {
  std::vector<double> series = Autoregression(0.5, 300);
  std::fill_n(series.begin(), 100, kMissing);
  const ArimaFit without = FitOk(series, Ar1());
  for (const auto type : {TSOutlierSpec::kInnovational, TSOutlierSpec::kTransient}) {
    const ArimaFit fit = FitOk(series, Ar1With({{type, 2}}));
    EXPECT_EQ(test::EstimatesOf(fit)[1], kMissing) << type;
    EXPECT_EQ(fit.summary.estimated, 1U) << type;
    EXPECT_EQ(fit.summary.log_likelihood, without.summary.log_likelihood) << type;
  }
}

// A pulse in the first case after a gap would be of a transient outlier in the gap that fades at
// once, from any height.
TEST(ArimaTransientOutlier, WithoutASizeIsLeftOut) {
  std::vector<double> series = Draws(4, 100);
  std::fill_n(series.begin() + 30, 6, kMissing);
  series[36] = 8;
  series[37] = -1;
  AMModelSpec::Fields white;
  const ArimaFit without = FitOk(series, white);
  for (const long start : {30L, 35L}) {
    white.outliers = TSOutlierSpecList({{TSOutlierSpec::kTransient, start}});
    const ArimaFit fit = FitOk(series, white);
    EXPECT_EQ(test::EstimatesOf(fit), (std::vector<double>{kMissing, kMissing})) << start;
    EXPECT_EQ(test::StdErrorsOf(fit), (std::vector<double>{kMissing, kMissing})) << start;
    EXPECT_EQ(fit.summary.estimated, 0U) << start;
    EXPECT_NEAR(fit.summary.log_likelihood, without.summary.log_likelihood, 1e-9) << start;
  }
}

// Beside differences, one in the first case that hardly fades would be a line from any height.
TEST(ArimaTransientOutlier, IsNoDrift) {
  std::vector<double> steps = Draws(1, 100);
  for (double& step : steps) step += 10;
  AMModelSpec::Fields walk;
  walk.non_seasonal_diff = 1;
  const std::vector<double> series = test::Summed(steps);
  const ArimaFit without = FitOk(series, walk);
  walk.outliers = TSOutlierSpecList({{TSOutlierSpec::kTransient, 0}});
  const ArimaFit fit = FitOk(series, walk);
  EXPECT_EQ(test::EstimatesOf(fit), (std::vector<double>{kMissing, kMissing}));
  EXPECT_NEAR(fit.summary.log_likelihood, without.summary.log_likelihood, 1e-9);
}

// w d^k: from the first case that is seen, one that began k cases earlier is the same but for its
// size.
TEST(ArimaTransientOutlier, ThatBeganInAGapIsSeenInWhatFollows) {
  std::vector<double> series = Draws(6, 120);
  for (std::size_t t = 40; t < series.size(); ++t) {
    series[t] += 20 * std::pow(0.8, static_cast<double>(t - 40));
  }
  std::fill_n(series.begin() + 40, 4, kMissing);
  AMModelSpec::Fields white;
  white.outliers = TSOutlierSpecList({{TSOutlierSpec::kTransient, 40}});
  const ArimaFit began = FitOk(series, white);
  white.outliers = TSOutlierSpecList({{TSOutlierSpec::kTransient, 44}});
  const ArimaFit seen = FitOk(series, white);
  const std::vector<double> a = test::EstimatesOf(began);
  const std::vector<double> b = test::EstimatesOf(seen);
  EXPECT_NEAR(began.summary.log_likelihood, seen.summary.log_likelihood, 1e-6);
  EXPECT_NEAR(a[1], b[1], 1e-3);
  EXPECT_NEAR(a[0] * std::pow(a[1], 4), b[0], 1e-3 * std::abs(b[0]));
  EXPECT_NEAR(a[0], 20, 3 * test::StdErrorsOf(began)[0]);
}

// Coefficients within 0.02 of their standard errors.
void ExpectEstimates(const ArimaFit& fit, const std::vector<double>& expected) {
  const std::vector<double> estimates = test::EstimatesOf(fit);
  const std::vector<double> errors = test::StdErrorsOf(fit);
  ASSERT_EQ(estimates.size(), expected.size());
  for (std::size_t i = 0; i < estimates.size(); ++i) {
    EXPECT_NEAR(estimates[i], expected[i], 0.02 * errors[i]) << i;
  }
}

// R 4.2.2, t counted from 0, d maximised over by optimize(.., tol = 1e-7):
//   y <- log(AirPassengers) + 0.2 * (t == 30) - 0.15 * (t >= 60) + ifelse(t >= 100, 0.3 *
//     0.7^(t - 100), 0) + 0.1 * (t >= 50 & (t - 50) %% 12 == 0) + 0.004 * pmax(t - 79, 0)
//   D <- function(z) diff(diff(z, 12))
//   arima(D(y), c(0, 0, 1), list(order = c(0, 0, 1), period = 12), xreg = D(X(d)),
//     include.mean = FALSE, method = "ML", optim.control = list(reltol = 1e-14, maxit = 1000))
// with these effects, of size 1, as the columns of X(d).
TEST(ArimaOutliers, OfFiveTypesAreThoseOfR) {
  std::vector<double> series = test::DataColumn("airpassengers.csv");
  for (std::size_t t = 0; t < series.size(); ++t) {
    series[t] = std::log(series[t]);
    if (t == 30) series[t] += 0.2;
    if (t >= 60) series[t] -= 0.15;
    if (t >= 100) series[t] += 0.3 * std::pow(0.7, static_cast<double>(t - 100));
    if (t >= 50 && (t - 50) % 12 == 0) series[t] += 0.1;
    if (t >= 80) series[t] += 0.004 * static_cast<double>(t - 79);
  }
  AMModelSpec::Fields airline = {
      .season_length = 12, .non_seasonal_diff = 1, .seasonal_diff = 1, .ma = {{1}, {12}}};
  airline.outliers = TSOutlierSpecList({{TSOutlierSpec::kAdditive, 30},
                                        {TSOutlierSpec::kLevel, 60},
                                        {TSOutlierSpec::kTransient, 100},
                                        {TSOutlierSpec::kSeasonalAdditive, 50},
                                        {TSOutlierSpec::kTrend, 80}});
  const ArimaFit fit = FitOk(series, airline);
  EXPECT_NEAR(fit.summary.log_likelihood, 246.8710917, 1e-6);
  ExpectEstimates(fit, {0.4702678143, 0.5592268830, 0.1860089003, -0.2012192057, 0.3071403574,
                        0.7632477235, 0.0928350703, 0.0005851858});
}

// R 4.2.2, t counted from 0, p maximised over by optimize(.., tol = 1e-9):
//   arima(LakeHuron, c(1, 0, 0), xreg = ifelse(t >= 60, p^(t - 60), 0), fixed = c(p, NA, NA),
//     transform.pars = FALSE, method = "ML", optim.control = list(reltol = 1e-14))
TEST(ArimaOutliers, InnovationalOneIsThatOfR) {
  AMModelSpec::Fields spec = Ar1With({{TSOutlierSpec::kInnovational, 60}});
  spec.has_constant = true;
  const ArimaFit fit = FitOk(test::DataColumn("lakehuron.csv"), spec);
  EXPECT_NEAR(fit.summary.log_likelihood, -106.579652, 1e-6);
  ExpectEstimates(fit, {579.1086581, 0.8397602075, 0.1403268056});
}

// Effects that agree in white noise only.
TEST(ArimaOutliers, AdditiveAndInnovationalOneInTheSameCaseAreTwo) {
  std::vector<double> series = Autoregression(0.7, 200, 3);
  for (std::size_t t = 50; t < series.size(); ++t) {
    series[t] += 10 * std::pow(0.7, static_cast<double>(t - 50));
  }
  series[50] += 8;
  const TSOutlierSpec additive(TSOutlierSpec::kAdditive, 50);
  const TSOutlierSpec innovational(TSOutlierSpec::kInnovational, 50);
  const ArimaFit fit = FitOk(series, Ar1With({additive, innovational}));
  const std::vector<double> estimates = test::EstimatesOf(fit);
  const std::vector<double> errors = test::StdErrorsOf(fit);
  EXPECT_NEAR(estimates[1], 8, 3 * errors[1]);
  EXPECT_NEAR(estimates[2], 10, 3 * errors[2]);
  EXPECT_LT(errors[1], 3);
  EXPECT_LT(errors[2], 3);
  const ArimaFit swapped = FitOk(series, Ar1With({innovational, additive}));
  EXPECT_NEAR(swapped.summary.log_likelihood, fit.summary.log_likelihood, 1e-6);

  AMModelSpec::Fields white;
  white.outliers = TSOutlierSpecList({additive, innovational});
  EXPECT_EQ(test::EstimatesOf(FitOk(series, white))[1], kMissing);
}

// Conditional least squares scores no case that an innovation in the first p could reach.
TEST(ArimaOutliers, InnovationalOneInACaseConditionedUponIsLeftOut) {
  AMModelSpec::Fields spec = {.season_length = 12, .ar = {{1, 3}, {12}}};
  spec.outliers = TSOutlierSpecList({{TSOutlierSpec::kInnovational, 4}});
  const ArimaFit fit = FitOk(Autoregression(0.5, 80), spec, ArimaMethod::kCls);
  EXPECT_EQ(test::EstimatesOf(fit)[3], kMissing);
}

// Least squares on the one effect w d^k: variance times the inverse of J'J.
TEST(ArimaOutliers, StandardErrorOfASlowDecayIsThatOfTheLeastSquares) {
  constexpr std::size_t kStart = 100;
  std::vector<double> series = Draws(5, 400);
  for (std::size_t t = kStart; t < series.size(); ++t) {
    series[t] += 20 * std::pow(0.997, static_cast<double>(t - kStart));
  }
  AMModelSpec::Fields spec;
  spec.outliers = TSOutlierSpecList({{TSOutlierSpec::kTransient, kStart}});
  const ArimaFit fit = FitOk(series, spec, ArimaMethod::kCls);
  const double size = test::EstimatesOf(fit)[0];
  const double decay = test::EstimatesOf(fit)[1];
  ASSERT_GT(decay, 0.992);
  double aa = 0;
  double ab = 0;
  double bb = 0;
  for (std::size_t t = kStart; t < series.size(); ++t) {
    const auto k = static_cast<double>(t - kStart);
    const double a = std::pow(decay, k);
    const double b = k > 0 ? size * k * std::pow(decay, k - 1) : 0;
    aa += a * a;
    ab += a * b;
    bb += b * b;
  }
  const double v = fit.summary.error_variance / (aa * bb - ab * ab);
  EXPECT_NEAR(test::StdErrorsOf(fit)[0], std::sqrt(v * bb), 1e-3 * std::sqrt(v * bb));
  EXPECT_NEAR(test::StdErrorsOf(fit)[1], std::sqrt(v * aa), 1e-3 * std::sqrt(v * aa));
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

TEST(ArimaPredictors, LineDifferencedTwiceIsNothingAlsoInDoubles) {
  std::vector<double> line;
  for (int t = 0; t < 80; ++t) line.push_back(0.1 * t + 3.3);
  AMModelSpec::Fields spec = Ar1();
  spec.predictors = {{.non_seasonal_diff = 2}};
  const ArimaFit fit = FitOk(Autoregression(0.5, 80), spec, ArimaMethod::kMl, {line});
  EXPECT_EQ(test::EstimatesOf(fit)[1], kMissing);
  EXPECT_EQ(fit.summary.estimated, 1U);
}

// The second predictor is the first one and a little of something else: one over that little scales
// its coefficient and nothing more.
TEST(ArimaPredictors, StandardErrorsHoldWhereTwoNearlyAgree) {
  const std::vector<double> first = Draws(9, 80);
  const std::vector<double> other = Draws(10, 80);
  std::vector<double> series = Autoregression(0.5, 80);
  for (std::size_t t = 0; t < series.size(); ++t) series[t] += first[t];
  AMModelSpec::Fields spec = Ar1();
  spec.predictors.resize(2);
  const auto scaledError = [&](double little) {
    std::vector<double> second = first;
    for (std::size_t t = 0; t < second.size(); ++t) second[t] += little * other[t];
    return little * test::StdErrorsOf(FitOk(series, spec, ArimaMethod::kMl, {first, second}))[2];
  };
  const double expected = scaledError(0.1);
  for (const double little : {1e-5, 1e-7, 2e-8}) {
    EXPECT_NEAR(scaledError(little), expected, 1e-4 * expected) << little;
  }
}

TEST(ArimaNumbers, ValuesWhoseSquaresAreNoNumbersAreRefused) {
  const std::vector<double> series = Autoregression(0.5, 60);
  std::vector<double> predictor = Draws(9, 60);
  AMModelSpec::Fields spec = Ar1();
  spec.predictors.resize(1);
  for (double& x : predictor) x *= 1e160;
  const ArimaFit fit = test::FitSpec(series, spec, ArimaMethod::kMl, {predictor});
  EXPECT_EQ(fit.status, FitStatus::kNotFinite);
  EXPECT_EQ(fit.bad_predictor, 0);

  std::vector<double> large = series;
  for (double& y : large) y *= 1e160;
  EXPECT_EQ(test::FitSpec(large, Ar1()).status, FitStatus::kNotFinite);
}

TEST(ArimaNumbers, LargestValuesFitAsTheirUnitsDo) {
  const std::vector<double> series = Autoregression(0.5, 60);
  std::vector<double> large = series;
  for (double& y : large) y *= std::ldexp(1.0, 480);
  const ArimaFit fit = FitOk(large, Ar1());
  test::ExpectSound(fit);
  EXPECT_NEAR(test::EstimatesOf(fit)[0], test::EstimatesOf(FitOk(series, Ar1()))[0], 1e-9);
}

TEST(ArimaNumbers, LogarithmsOfLargeValuesAreNotLarge) {
  std::vector<double> series = Autoregression(0.5, 60);
  for (double& y : series) y = 1e200 * std::exp(y);
  AMModelSpec::Fields spec = Ar1();
  spec.has_constant = true;
  spec.y_transform = TSTransformation(TSTransformation::kLogarithm);
  FitOk(series, spec);
}

TEST(ArimaNumbers, OrderOfDifferencesBeyondTheRangeOfNumbersIsNoShortSeries) {
  AMModelSpec::Fields spec;
  spec.non_seasonal_diff = 1200;
  EXPECT_EQ(test::FitSpec(Autoregression(0.5, 3000), spec).status, FitStatus::kNotIdentified);
}

}  // namespace
}  // namespace tsffit
