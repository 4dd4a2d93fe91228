// Corners of ARIMA: a clear refusal or an honest result, never a NaN.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <thread>

#include "core/support/ArimaSeries.h"
#include "core/support/TestSeries.h"
#include "support/FailingAllocation.h"

namespace {

using test::Airline;
using test::EstimatesOf;
using test::ExpectSound;
using test::FitSpec;
using test::Generate;
using test::SpecOf;
using test::StdErrorsOf;
using tsffit::ArimaFit;
using tsffit::ArimaMethod;
using tsffit::FitStatus;

constexpr double kMissing = std::numeric_limits<double>::lowest();
constexpr ArimaMethod kMethods[] = {ArimaMethod::kMl, ArimaMethod::kMlTheta, ArimaMethod::kCls};

std::vector<double> WhiteNoise(std::size_t n, std::uint64_t seed = 1) {
  test::NormalDraws draws(seed);
  return Generate(n, [&](std::size_t) { return draws(); });
}

std::vector<double> Monthly(std::size_t n) {
  test::NormalDraws draws(12);
  return Generate(n, [&](std::size_t t) {
    const double month = static_cast<double>(t % 12);
    return 50 + 0.2 * static_cast<double>(t) + 0.7 * month * (11 - month) + draws();
  });
}

AMModelSpec::Fields WithOutliers(AMModelSpec::Fields spec, std::vector<TSOutlierSpec> outliers) {
  spec.outliers = TSOutlierSpecList(std::move(outliers));
  return spec;
}

tsffit::Forecasts ForecastWith(const ArimaFit& fit, unsigned horizon,
                               const std::vector<std::vector<double>>& future) {
  return tsffit::Forecast(fit.model, horizon, future);
}

// -n/2 (ln(2 pi S / n) + 1)
double WhiteLogLikelihood(const std::vector<double>& residuals) {
  double sum = 0;
  for (const double e : residuals) sum += e * e;
  const double n = static_cast<double>(residuals.size());
  return -n / 2 * (std::log(2 * std::acos(-1.0) * sum / n) + 1);
}

double Mean(const std::vector<double>& values) {
  double sum = 0;
  for (const double value : values) sum += value;
  return sum / static_cast<double>(values.size());
}

// Nothing to estimate, or next to nothing.

TEST(ArimaCorner, RandomWalkHasNothingToEstimate) {
  const std::vector<double> steps = WhiteNoise(80);
  for (const ArimaMethod method : kMethods) {
    const ArimaFit fit = FitSpec(test::Summed(steps), SpecOf({.d = 1}), method);
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    EXPECT_TRUE(EstimatesOf(fit).empty());
    EXPECT_EQ(fit.summary.estimated, 0U);
    EXPECT_EQ(fit.summary.residuals, 79U);
    EXPECT_TRUE(fit.summary.converged);
    const std::vector<double> later(steps.begin() + 1, steps.end());
    EXPECT_NEAR(fit.summary.log_likelihood, WhiteLogLikelihood(later), 1e-9);
    const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 4);
    const double last = test::Summed(steps).back();
    const double error = std::sqrt(fit.summary.error_variance);
    EXPECT_NEAR(forecasts.value[3], last, 1e-12 * std::abs(last));
    EXPECT_NEAR(forecasts.std_error[3], 2 * error, 1e-12 * error);
  }
}

TEST(ArimaCorner, WhiteNoiseWithoutConstant) {
  const std::vector<double> series = WhiteNoise(50);
  for (const ArimaMethod method : kMethods) {
    const ArimaFit fit = FitSpec(series, SpecOf({}), method);
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    EXPECT_NEAR(fit.summary.log_likelihood, WhiteLogLikelihood(series), 1e-9);
    EXPECT_EQ(tsffit::Forecast(fit.model, 1).value[0], 0);
  }
}

TEST(ArimaCorner, WhiteNoiseAboutAMean) {
  std::vector<double> series = WhiteNoise(50);
  for (double& y : series) y += 7;
  const double mean = Mean(series);
  std::vector<double> deviations = series;
  double squares = 0;
  for (double& y : deviations) y -= mean, squares += y * y;
  for (const ArimaMethod method : kMethods) {
    const ArimaFit fit = FitSpec(series, SpecOf({.has_constant = true}), method);
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    EXPECT_NEAR(EstimatesOf(fit)[0], mean, 1e-12);
    const double variance = method == ArimaMethod::kCls ? squares / 49 : squares / 50;
    EXPECT_NEAR(StdErrorsOf(fit)[0], std::sqrt(variance / 50), 1e-9);
    EXPECT_NEAR(fit.summary.log_likelihood, WhiteLogLikelihood(deviations), 1e-9);
    EXPECT_NEAR(tsffit::Forecast(fit.model, 1).value[0], mean, 1e-12);
  }
}

TEST(ArimaCorner, DriftIsTheMeanStep) {
  std::vector<double> steps = WhiteNoise(60);
  for (double& step : steps) step += 0.5;
  const std::vector<double> series = test::Summed(steps);
  const ArimaFit fit = FitSpec(series, SpecOf({.d = 1, .has_constant = true}));
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  const double drift = (series.back() - series.front()) / 59;
  EXPECT_NEAR(EstimatesOf(fit)[0], drift, 1e-12);
  EXPECT_NEAR(tsffit::Forecast(fit.model, 3).value[2], series.back() + 3 * drift, 1e-10);
}

// Roots at and beside the unit circle.

TEST(ArimaCorner, AutoregressionBesideAUnitRoot) {
  test::NormalDraws draws(3);
  const std::vector<double> series = test::SimulateArma({1, -0.999}, {1}, 1500, draws);
  for (const ArimaMethod method : kMethods) {
    const ArimaFit fit = FitSpec(series, SpecOf({.ar = {1}}), method);
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    EXPECT_TRUE(fit.summary.converged);
    EXPECT_NEAR(EstimatesOf(fit)[0], 0.999, 0.008);
    EXPECT_LT(std::abs(EstimatesOf(fit)[0]), 1);
  }
}

// Least squares would have the coefficient above 1, where 1 - phi times the constant is the mean
// step. The nearest that the region has is a walk with that step, whose constant is anything.
TEST(ArimaCorner, ConstantBesideAUnitRootIsADriftToConditionalForecasts) {
  const std::vector<double> series = Generate(80, [](std::size_t t) {
    return 100 * std::pow(1.02, static_cast<double>(t)) + test::Noise(t);
  });
  const ArimaFit fit =
      FitSpec(series, SpecOf({.ar = {1}, .has_constant = true}), ArimaMethod::kCls);
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  ExpectSound(fit);
  EXPECT_NEAR(EstimatesOf(fit)[1], 1, 1e-6);
  EXPECT_EQ(StdErrorsOf(fit), (std::vector<double>{MV::gMissingValue, MV::gMissingValue}));
  const double step = (series.back() - series.front()) / 79;
  const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 24);
  EXPECT_NEAR(forecasts.value[0], series.back() + step, 1e-3 * step);
  EXPECT_NEAR(forecasts.value[23], series.back() + 24 * step, 1e-3 * step);
  EXPECT_NEAR(forecasts.std_error[23], forecasts.std_error[0] * std::sqrt(24), 1e-3);
}

TEST(ArimaCorner, SeasonalAutoregressionBesideAUnitRoot) {
  test::NormalDraws draws(4);
  std::vector<double> phi(13, 0.0);
  phi[0] = 1;
  phi[12] = -0.99;
  const std::vector<double> series = test::SimulateArma(phi, {1, 0.7}, 240, draws);
  const AMModelSpec::Fields spec =
      SpecOf({.ar = {1}, .ma = {1}, .seasonal_ar = {1}, .season_length = 12});
  for (const ArimaMethod method : kMethods) {
    const ArimaFit fit = FitSpec(series, spec, method);
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    EXPECT_TRUE(fit.summary.converged);
    EXPECT_NEAR(EstimatesOf(fit)[1], 0.99, 0.02);
    EXPECT_NEAR(EstimatesOf(fit)[2], -0.7, 0.2);
  }
}

// A season that never changes takes both seasonal factors to the circle, where the likelihood is
// hard to tell from rounding. The coefficient of the first lag has nothing to do with that: its
// variance is (1 - phi^2) / n (Box and Jenkins 1976, section 7.2.6).
TEST(ArimaCorner, StandardErrorBesideUnitRootsIsRightOrMissing) {
  test::NormalDraws draws(41);
  std::size_t known = 0;
  for (int series = 0; series < 36; ++series) {
    const std::size_t n = 180 + 100 * static_cast<std::size_t>(series % 3);
    std::vector<double> y = test::SimulateArma({1, -0.4}, {1}, n, draws);
    for (std::size_t t = 0; t < n; ++t) {
      y[t] += 10 + (1 + series % 4) * std::sin(static_cast<double>(t) * std::numbers::pi / 6);
    }
    const ArimaFit fit = FitSpec(y, SpecOf({.ar = {1},
                                            .seasonal_ar = {1},
                                            .seasonal_ma = {1},
                                            .season_length = 12,
                                            .has_constant = true}));
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    const double phi = EstimatesOf(fit)[1];
    const double error = StdErrorsOf(fit)[1];
    if (error == MV::gMissingValue) continue;
    ++known;
    const double expected = std::sqrt((1 - phi * phi) / static_cast<double>(n));
    EXPECT_NEAR(error / expected, 1, 0.2) << "series " << series << ", phi " << phi;
  }
  EXPECT_GT(known, 24U);
}

TEST(ArimaCorner, MovingAverageOnTheCircleHasNoStandardError) {
  // White noise differenced without need: the coefficient is 1, and the estimate, too, for most
  // series.
  unsigned onCircle = 0;
  for (std::uint64_t seed = 1; seed <= 10; ++seed) {
    for (const ArimaMethod method : {ArimaMethod::kMl, ArimaMethod::kMlTheta}) {
      const ArimaFit fit = FitSpec(WhiteNoise(120, seed), SpecOf({.d = 1, .ma = {1}}), method);
      ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
      ExpectSound(fit);
      EXPECT_TRUE(fit.summary.converged);
      const double theta = EstimatesOf(fit)[0];
      EXPECT_GT(theta, 0.9);
      EXPECT_LE(theta, 1);
      if (theta < 0.999) continue;
      EXPECT_EQ(theta, 1);
      EXPECT_EQ(StdErrorsOf(fit)[0], MV::gMissingValue);
      ++onCircle;
    }
  }
  EXPECT_GE(onCircle, 10U);
}

TEST(ArimaCorner, BothMovingAveragesOfTheAirlineModelOnTheCircle) {
  // A line and a fixed season with noise: both differences are one too many.
  const std::vector<double> series = Monthly(144);
  const ArimaFit fit = FitSpec(series, Airline());
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  ExpectSound(fit);
  EXPECT_EQ(EstimatesOf(fit), (std::vector<double>{1, 1}));
  EXPECT_EQ(StdErrorsOf(fit), (std::vector<double>{MV::gMissingValue, MV::gMissingValue}));
  // Forecasts go on with line and season.
  const tsffit::Forecasts year = tsffit::Forecast(fit.model, 12);
  for (std::size_t h = 0; h < 12; ++h) {
    const double month = static_cast<double>((144 + h) % 12);
    EXPECT_NEAR(year.value[h], 50 + 0.2 * static_cast<double>(144 + h) + 0.7 * month * (11 - month),
                1.5);
  }
}

TEST(ArimaCorner, CommonFactors) {
  for (const ArimaMethod method : kMethods) {
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
      const std::vector<double> series = WhiteNoise(150, seed);
      const ArimaFit plain = FitSpec(series, SpecOf({}), method);
      const ArimaFit fit = FitSpec(series, SpecOf({.ar = {1}, .ma = {1}}), method);
      ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
      ExpectSound(fit);
      if (method == ArimaMethod::kCls) continue;  // scores one case less
      EXPECT_GE(fit.summary.log_likelihood, plain.summary.log_likelihood - 1e-6);
    }
  }
}

TEST(ArimaCorner, GappedLagsOnTheCircle) {
  const ArimaFit fit = FitSpec(WhiteNoise(120), SpecOf({.d = 1, .ma = {1, 3}}));
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  ExpectSound(fit);
  const ArimaFit narrow = FitSpec(WhiteNoise(120), SpecOf({.d = 1, .ma = {1}}));
  EXPECT_GE(fit.summary.log_likelihood, narrow.summary.log_likelihood - 0.01);
}

TEST(ArimaCorner, GappedLagsFindTheirCoefficients) {
  test::NormalDraws draws(6);
  std::vector<double> phi = {1, -0.4, 0, -0.3, 0, 0, 0, 0, 0, -0.2};
  const std::vector<double> series = test::SimulateArma(phi, {1, 0, -0.5, 0, 0, 0.3}, 600, draws);
  for (const ArimaMethod method : kMethods) {
    const ArimaFit fit = FitSpec(series, SpecOf({.ar = {1, 3, 9}, .ma = {2, 5}}), method);
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    EXPECT_TRUE(fit.summary.converged);
    const std::vector<double> truth = {0.4, 0.3, 0.2, 0.5, -0.3};
    for (std::size_t i = 0; i < truth.size(); ++i) {
      EXPECT_NEAR(EstimatesOf(fit)[i], truth[i], 4 * StdErrorsOf(fit)[i]) << i;
    }
  }
}

// An exponential has its root outside the stationary region, and the sum of squares falls on and on
// towards the border.
TEST(ArimaCorner, SearchThatFindsNoEndSaysSo) {
  const std::vector<double> series =
      Generate(60, [](std::size_t t) { return std::exp(0.1 * static_cast<double>(t)); });
  const ArimaFit fit = FitSpec(series, SpecOf({.ar = {2, 3}}), ArimaMethod::kCls);
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  ExpectSound(fit);
  EXPECT_FALSE(fit.summary.converged);
}

// Predictors and outliers that the data cannot tell.

TEST(ArimaCorner, ConstantPredictorBesideAConstantIsLeftOut) {
  const std::vector<double> series = Monthly(60);
  const std::vector<std::vector<double>> flat = {std::vector<double>(60, 3.5)};
  AMModelSpec::Fields spec = SpecOf({.ar = {1}, .has_constant = true});
  for (const ArimaMethod method : kMethods) {
    const ArimaFit plain = FitSpec(series, spec, method);
    for (const bool denominator : {false, true}) {
      AMModelSpec::Fields with = spec;
      with.predictors.resize(1);
      if (denominator) with.predictors[0].denominator.non_seasonal = {1};
      const ArimaFit fit = FitSpec(series, with, method, flat);
      ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
      ExpectSound(fit, {std::vector<double>(9, 3.5)});
      const std::vector<double> estimates = EstimatesOf(fit);
      EXPECT_NEAR(estimates[0], EstimatesOf(plain)[0], 1e-9 * estimates[0]);
      EXPECT_NEAR(estimates[1], EstimatesOf(plain)[1], 1e-9);
      for (std::size_t i = 2; i < estimates.size(); ++i) EXPECT_EQ(estimates[i], MV::gMissingValue);
      EXPECT_EQ(fit.summary.estimated, 2U);
      EXPECT_NEAR(fit.summary.log_likelihood, plain.summary.log_likelihood, 1e-9);
      EXPECT_NEAR(ForecastWith(fit, 3, {{3.5, 3.5, 3.5}}).value[2],
                  tsffit::Forecast(plain.model, 3).value[2], 1e-6);
    }
  }
}

TEST(ArimaCorner, ConstantPredictorAloneIsTheConstant) {
  const std::vector<double> series = Monthly(60);
  const std::vector<std::vector<double>> flat = {std::vector<double>(60, 4)};
  const ArimaFit plain = FitSpec(series, SpecOf({.ar = {1}, .has_constant = true}));
  AMModelSpec::Fields spec = SpecOf({.ar = {1}});
  spec.predictors.resize(1);
  const ArimaFit fit = FitSpec(series, spec, ArimaMethod::kMl, flat);
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  ExpectSound(fit, {std::vector<double>(9, 4)});
  EXPECT_NEAR(4 * EstimatesOf(fit)[1], EstimatesOf(plain)[0], 1e-5);
  EXPECT_NEAR(4 * StdErrorsOf(fit)[1], StdErrorsOf(plain)[0], 1e-4 * StdErrorsOf(plain)[0]);
  EXPECT_NEAR(fit.summary.log_likelihood, plain.summary.log_likelihood, 1e-8);
}

TEST(ArimaCorner, ConstantPredictorWithADenominatorAlone) {
  const std::vector<double> series = Monthly(60);
  const std::vector<std::vector<double>> flat = {std::vector<double>(60, 4)};
  const ArimaFit plain = FitSpec(series, SpecOf({.ar = {1}, .has_constant = true}));
  AMModelSpec::Fields spec = SpecOf({.ar = {1}});
  spec.predictors.resize(1);
  spec.predictors[0].denominator.non_seasonal = {1};
  const ArimaFit fit = FitSpec(series, spec, ArimaMethod::kMl, flat);
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  ExpectSound(fit, {std::vector<double>(9, 4)});
  EXPECT_NEAR(fit.summary.log_likelihood, plain.summary.log_likelihood, 1e-6);
  EXPECT_EQ(StdErrorsOf(fit)[2], MV::gMissingValue);  // the data say nothing about the denominator
}

TEST(ArimaCorner, PredictorOfZerosIsLeftOut) {
  const std::vector<double> series = Monthly(60);
  AMModelSpec::Fields spec = SpecOf({.ar = {1}, .has_constant = true});
  spec.predictors.resize(1);
  spec.predictors[0].numerator.non_seasonal = {1};
  const ArimaFit fit = FitSpec(series, spec, ArimaMethod::kMl, {std::vector<double>(60, 0.0)});
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  ExpectSound(fit, {std::vector<double>(9, 0.0)});
  EXPECT_EQ(fit.summary.estimated, 2U);
}

TEST(ArimaCorner, SamePredictorTwiceCountsOnce) {
  const std::vector<double> series = Monthly(60);
  const std::vector<double> x = WhiteNoise(60, 5);
  AMModelSpec::Fields spec = SpecOf({.ma = {1}, .has_constant = true});
  spec.predictors.resize(1);
  const ArimaFit once = FitSpec(series, spec, ArimaMethod::kMl, {x});
  spec.predictors.resize(2);
  const ArimaFit twice = FitSpec(series, spec, ArimaMethod::kMl, {x, x});
  ASSERT_EQ(twice.status, FitStatus::kOk) << twice.message;
  EXPECT_NEAR(EstimatesOf(twice)[2], EstimatesOf(once)[2], 1e-9);
  EXPECT_EQ(EstimatesOf(twice)[3], MV::gMissingValue);
  EXPECT_NEAR(twice.summary.log_likelihood, once.summary.log_likelihood, 1e-9);
}

TEST(ArimaCorner, SecondOfTwoIdenticalOutliersIsLeftOut) {
  std::vector<double> series = Monthly(96);
  for (std::size_t t = 40; t < 96; ++t) series[t] += 9 * std::pow(0.6, static_cast<double>(t - 40));
  for (int type = TSOutlierSpec::kAdditive; type <= TSOutlierSpec::kInnovational; ++type) {
    SCOPED_TRACE(type);
    const ArimaFit once = FitSpec(series, WithOutliers(Airline(), {{type, 40}}));
    const ArimaFit twice = FitSpec(series, WithOutliers(Airline(), {{type, 40}, {type, 40}}));
    ASSERT_EQ(twice.status, FitStatus::kOk) << twice.message;
    ExpectSound(twice);
    const std::size_t own = EstimatesOf(once).size();
    EXPECT_NE(EstimatesOf(twice)[2], MV::gMissingValue);
    for (std::size_t i = own; i < EstimatesOf(twice).size(); ++i) {
      EXPECT_EQ(EstimatesOf(twice)[i], MV::gMissingValue);
      EXPECT_EQ(StdErrorsOf(twice)[i], MV::gMissingValue);
    }
    EXPECT_EQ(twice.summary.estimated, once.summary.estimated);
    EXPECT_NEAR(twice.summary.log_likelihood, once.summary.log_likelihood, 1e-6);
  }
}

TEST(ArimaCorner, OutlierInTheLastCaseIsTheSameWhateverItsShape) {
  std::vector<double> series = Monthly(96);
  series.back() += 8;
  const ArimaFit additive = FitSpec(series, WithOutliers(Airline(), {{1, 95}}));
  ASSERT_EQ(additive.status, FitStatus::kOk) << additive.message;
  EXPECT_NEAR(EstimatesOf(additive)[2], 8, 4 * StdErrorsOf(additive)[2]);
  for (int type = TSOutlierSpec::kLevel; type <= TSOutlierSpec::kInnovational; ++type) {
    SCOPED_TRACE(type);
    const ArimaFit fit = FitSpec(series, WithOutliers(Airline(), {{type, 95}}));
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    EXPECT_NEAR(fit.summary.log_likelihood, additive.summary.log_likelihood, 1e-5);
    EXPECT_NEAR(EstimatesOf(fit)[2], EstimatesOf(additive)[2], 1e-2);
    EXPECT_NEAR(StdErrorsOf(fit)[2], StdErrorsOf(additive)[2], 1e-3);
    if (type == TSOutlierSpec::kTransient) {
      EXPECT_EQ(StdErrorsOf(fit)[3], MV::gMissingValue);
    }
  }
}

TEST(ArimaCorner, OutlierThatActsOnNoScoredCaseIsLeftOut) {
  const std::vector<double> series = Monthly(96);
  const ArimaFit plain = FitSpec(series, SpecOf({.d = 1, .ma = {1}}));
  // A shift of the whole series, gone with the difference; the first case apart is another matter.
  const ArimaFit level = FitSpec(series, WithOutliers(SpecOf({.d = 1, .ma = {1}}), {{2, 0}}));
  ASSERT_EQ(level.status, FitStatus::kOk) << level.message;
  ExpectSound(level);
  EXPECT_EQ(EstimatesOf(level)[1], MV::gMissingValue);
  EXPECT_NEAR(level.summary.log_likelihood, plain.summary.log_likelihood, 1e-8);
  const ArimaFit first = FitSpec(series, WithOutliers(SpecOf({.d = 1, .ma = {1}}), {{1, 0}}));
  EXPECT_NE(EstimatesOf(first)[1], MV::gMissingValue);

  // The likelihood begins after the lags of the predictor.
  AMModelSpec::Fields spec = WithOutliers(SpecOf({.ar = {1}, .has_constant = true}), {{1, 2}});
  spec.predictors = {{.delay = 5}};
  const ArimaFit delayed = FitSpec(series, spec, ArimaMethod::kMl, {WhiteNoise(96)});
  ASSERT_EQ(delayed.status, FitStatus::kOk) << delayed.message;
  ExpectSound(delayed, {std::vector<double>(9, 0.0)});
  EXPECT_EQ(delayed.summary.residuals, 91U);
  EXPECT_EQ(EstimatesOf(delayed).back(), MV::gMissingValue);
}

TEST(ArimaCorner, ManyKindsOfOutliersTogether) {
  std::vector<double> series = Monthly(144);
  series[30] += 12;
  for (std::size_t t = 60; t < 144; ++t) series[t] -= 10;
  for (std::size_t t = 100; t < 144; ++t)
    series[t] += 9 * std::pow(0.5, static_cast<double>(t - 100));
  const ArimaFit fit = FitSpec(
      series, WithOutliers(Airline(), {{1, 30}, {2, 60}, {3, 100}, {4, 50}, {5, 80}, {6, 90}}));
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  ExpectSound(fit);
  const std::vector<double> estimates = EstimatesOf(fit);
  const std::vector<double> errors = StdErrorsOf(fit);
  EXPECT_NEAR(estimates[2], 12, 4 * errors[2]);
  EXPECT_NEAR(estimates[3], -10, 4 * errors[3]);
  EXPECT_NEAR(estimates[4], 9, 4 * errors[4]);
  EXPECT_NEAR(estimates[5], 0.5, 0.25);  // the decay
}

// Missing cases.

TEST(ArimaCorner, LeadingMissingCasesOnlyMoveTheSpan) {
  const std::vector<double> series = Monthly(80);
  std::vector<double> later(5, kMissing);
  later.insert(later.end(), series.begin(), series.end());
  const AMModelSpec::Fields spec = WithOutliers(Airline(), {{2, 40}});
  const AMModelSpec::Fields moved = WithOutliers(Airline(), {{2, 45}});
  for (const ArimaMethod method : kMethods) {
    const ArimaFit plain = FitSpec(series, spec, method);
    const ArimaFit fit = FitSpec(later, moved, method);
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    EXPECT_EQ(EstimatesOf(fit), EstimatesOf(plain));
    EXPECT_EQ(tsffit::Forecast(fit.model, 5).value, tsffit::Forecast(plain.model, 5).value);
    EXPECT_EQ(fit.model.GetImp()->GetEstimationInfo().GetSpan().start, 5U);
    EXPECT_EQ(fit.model.GetImp()->GetEstimationInfo().GetSpan().length, 80U);
    const auto& state = test::ArimaStateOf(fit.model);
    EXPECT_EQ(state.GetPeriodRecord().start_index, 5U);
    EXPECT_EQ(state.GetAMModelSpec().GetOutliers().GetOutlierSpec(0).GetStartIndex(), 40);
    EXPECT_EQ(fit.fitted[4], MV::gMissingValue);
    EXPECT_EQ(fit.residuals[4], MV::gMissingValue);
  }
}

TEST(ArimaCorner, TrailingMissingCasesPushTheForecastOn) {
  const std::vector<double> series = Monthly(80);
  std::vector<double> longer = series;
  longer.resize(83, kMissing);
  for (const auto& spec : {Airline(), SpecOf({.ar = {1}, .has_constant = true}),
                           SpecOf({.d = 1, .ma = {1}}), SpecOf({.ar = {1}, .d = 2, .ma = {1}})}) {
    const ArimaFit plain = FitSpec(series, spec);
    const ArimaFit fit = FitSpec(longer, spec);
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    ExpectSound(fit);
    const tsffit::Forecasts early = tsffit::Forecast(plain.model, 9);
    const tsffit::Forecasts late = tsffit::Forecast(fit.model, 6);
    for (std::size_t h = 0; h < 6; ++h) {
      EXPECT_NEAR(late.value[h], early.value[h + 3], 1e-3 * early.std_error[h + 3]);
      EXPECT_NEAR(late.std_error[h], early.std_error[h + 3], 1e-3 * early.std_error[h + 3]);
    }
  }
}

TEST(ArimaCorner, ManyMissingCases) {
  const std::vector<double> whole = Monthly(144);
  const auto without = [&](const std::function<bool(std::size_t)>& isMissing) {
    return Generate(144, [&](std::size_t t) { return isMissing(t) ? kMissing : whole[t]; });
  };
  const std::vector<std::vector<double>> all = {
      without([](std::size_t t) { return t < 7 || t > 130; }),
      without([](std::size_t t) { return t > 0 && t < 11; }),
      without([](std::size_t t) { return t > 40 && t < 90; }),
      without([](std::size_t t) { return t % 3 == 1; }),
      without([](std::size_t t) { return t > 3 && t % 2 == 0 && t % 5 != 0; }),
      without([](std::size_t t) { return t > 13 && t < 130; }),
      without([](std::size_t t) { return t % 12 == 5 && t != 65; })};
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (const auto& spec :
         {Airline(), SpecOf({.ar = {1}, .has_constant = true}),
          SpecOf({.ar = {1}, .d = 1, .ma = {1}}), WithOutliers(Airline(), {{3, 50}, {2, 100}})}) {
      SCOPED_TRACE(i);
      ExpectSound(FitSpec(all[i], spec));
    }
  }
}

TEST(ArimaCorner, MonthThatIsAlwaysMissing) {
  std::vector<double> series = Monthly(120);
  for (std::size_t t = 5; t < series.size(); t += 12) series[t] = kMissing;
  const ArimaFit fit = FitSpec(series, Airline());
  EXPECT_EQ(fit.status, FitStatus::kNotIdentified);
  EXPECT_EQ(fit.message, "a period of the season is missing in every season");
  ExpectSound(fit);
  const ArimaFit without = FitSpec(series, SpecOf({.d = 1, .ma = {1}}));
  EXPECT_EQ(without.status, FitStatus::kOk) << without.message;
  ExpectSound(without);
}

TEST(ArimaCorner, OnlyTheKalmanFilterKnowsMissingCases) {
  std::vector<double> series = Monthly(80);
  series[0] = series[33] = kMissing;
  for (const ArimaMethod method : {ArimaMethod::kMlTheta, ArimaMethod::kCls}) {
    const ArimaFit fit = FitSpec(series, Airline(), method);
    EXPECT_EQ(fit.status, FitStatus::kMissing);
    EXPECT_EQ(fit.bad_case, 33U);
    EXPECT_EQ(fit.bad_predictor, -1);
    ExpectSound(fit);
  }
}

// Units.

TEST(ArimaCorner, UnitOfTheSeriesDoesNotMatter) {
  const std::vector<double> series = Monthly(96);
  const std::vector<double> x = WhiteNoise(96, 8);
  AMModelSpec::Fields spec = WithOutliers(Airline(), {{1, 50}});
  spec.has_constant = true;
  spec.predictors.resize(1);
  for (const ArimaMethod method : kMethods) {
    const ArimaFit plain = FitSpec(series, spec, method, {x});
    for (const double unit : {1e-9, 1e-6, 1e6, 1e9, 1e145}) {
      SCOPED_TRACE(unit);
      std::vector<double> scaled = series;
      for (double& y : scaled) y *= unit;
      const ArimaFit fit = FitSpec(scaled, spec, method, {x});
      ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
      const std::vector<double> estimates = EstimatesOf(fit);
      const std::vector<double> errors = StdErrorsOf(fit);
      const std::vector<double> before = EstimatesOf(plain);
      const std::vector<double> beforeErrors = StdErrorsOf(plain);
      for (std::size_t i = 0; i < estimates.size(); ++i) {
        const double own = i == 1 || i == 2 ? 1 : unit;  // the MA coefficients have no unit
        EXPECT_NEAR(estimates[i] / own, before[i], 1e-6 * (1e-3 + std::abs(before[i]))) << i;
        if (beforeErrors[i] == MV::gMissingValue) {
          EXPECT_EQ(errors[i], MV::gMissingValue) << i;
        } else {
          EXPECT_NEAR(errors[i] / own, beforeErrors[i], 1e-5 * beforeErrors[i]) << i;
        }
      }
      const double n = static_cast<double>(fit.summary.residuals);
      EXPECT_NEAR(fit.summary.log_likelihood + n * std::log(unit), plain.summary.log_likelihood,
                  1e-8 * n);
      const std::vector<std::vector<double>> future = {std::vector<double>(6, 0.5)};
      const double forecast = tsffit::Forecast(plain.model, 6, future).value[5];
      EXPECT_NEAR(tsffit::Forecast(fit.model, 6, future).value[5] / unit, forecast,
                  1e-6 * forecast);
    }
  }
}

TEST(ArimaCorner, UnitOfAPredictorOnlyScalesItsCoefficients) {
  const std::vector<double> series = test::DataColumn("tf_sim.csv", "y");
  const std::vector<double> x = test::DataColumn("tf_sim.csv", "x");
  AMModelSpec::Fields spec = SpecOf({.ar = {1}, .has_constant = true});
  spec.predictors = {{.delay = 2, .numerator = {{1}, {}}, .denominator = {{1}, {}}}};
  const ArimaFit plain = FitSpec(series, spec, ArimaMethod::kMl, {x});
  for (const double unit : {1e-8, 1e8}) {
    std::vector<double> scaled = x;
    for (double& value : scaled) value *= unit;
    const ArimaFit fit = FitSpec(series, spec, ArimaMethod::kMl, {scaled});
    ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
    for (std::size_t i = 0; i < 5; ++i) {
      const double own = i == 2 || i == 3 ? 1 / unit : 1;
      EXPECT_NEAR(EstimatesOf(fit)[i] / own, EstimatesOf(plain)[i], 1e-5) << i;
      EXPECT_NEAR(StdErrorsOf(fit)[i] / own, StdErrorsOf(plain)[i], 1e-4 * StdErrorsOf(plain)[i]);
    }
  }
}

TEST(ArimaCorner, LargeLevelTakesNothingFromADifferencedFit) {
  const std::vector<double> series = Monthly(96);
  std::vector<double> raised = series;
  for (double& y : raised) y += 1e9;
  const ArimaFit plain = FitSpec(series, Airline());
  const ArimaFit fit = FitSpec(raised, Airline());
  EXPECT_NEAR(fit.summary.log_likelihood, plain.summary.log_likelihood, 1e-4);
}

// Seasons and transformations.

TEST(ArimaCorner, SeasonLengths) {
  const std::vector<double> series = Monthly(260);
  for (const ArimaMethod method : kMethods) {
    for (const unsigned length : {2U, 52U}) {
      SCOPED_TRACE(length);
      ExpectSound(FitSpec(
          series,
          SpecOf({.d = 1, .ma = {1}, .seasonal_d = 1, .seasonal_ma = {1}, .season_length = length}),
          method));
      const ArimaFit ar =
          FitSpec(series, SpecOf({.ar = {1}, .seasonal_ar = {1}, .season_length = length}), method);
      EXPECT_EQ(ar.status, FitStatus::kOk) << ar.message;
      ExpectSound(ar);
    }
    ExpectSound(FitSpec(series, SpecOf({.d = 1, .ma = {1}, .season_length = 1}), method));
  }
  EXPECT_EQ(FitSpec(series, SpecOf({.seasonal_d = 1, .season_length = 1})).status,
            FitStatus::kBadOptions);
  EXPECT_EQ(FitSpec(series, SpecOf({.season_length = 0})).status, FitStatus::kBadOptions);
}

// With a season of two, lag 2 of either factor is the same model.
TEST(ArimaCorner, SeasonalFactorIsTheSameAsItsLagAlone) {
  test::NormalDraws draws(9);
  const std::vector<double> series = test::SimulateArma({1, 0, -0.6}, {1}, 150, draws);
  const ArimaFit plain = FitSpec(series, SpecOf({.ar = {2}}));
  const ArimaFit seasonal = FitSpec(series, SpecOf({.seasonal_ar = {1}, .season_length = 2}));
  EXPECT_NEAR(EstimatesOf(seasonal)[0], EstimatesOf(plain)[0], 1e-6);
  EXPECT_NEAR(seasonal.summary.log_likelihood, plain.summary.log_likelihood, 1e-9);
}

TEST(ArimaCorner, SquareRootFitsTheRoots) {
  std::vector<double> series = Monthly(96);
  series[17] = 0;  // allowed
  std::vector<double> roots = series;
  for (double& y : roots) y = std::sqrt(y);
  AMModelSpec::Fields spec = SpecOf({.d = 1, .ma = {1}, .has_constant = true});
  const ArimaFit direct = FitSpec(roots, spec);
  spec.y_transform = TSTransformation(TSTransformation::kSquareRoot);
  const ArimaFit through = FitSpec(series, spec);
  ASSERT_EQ(through.status, FitStatus::kOk) << through.message;
  ExpectSound(through);
  EXPECT_EQ(EstimatesOf(through), EstimatesOf(direct));
  EXPECT_EQ(through.summary.log_likelihood, direct.summary.log_likelihood);
  EXPECT_DOUBLE_EQ(tsffit::Forecast(through.model, 2).value[1],
                   std::pow(tsffit::Forecast(direct.model, 2).value[1], 2));
  EXPECT_DOUBLE_EQ(through.fitted[50], std::pow(direct.fitted[50], 2));
}

TEST(ArimaCorner, DomainErrorsNameTheCase) {
  std::vector<double> series = Monthly(96);
  series[20] = 0;
  series[30] = -1;
  AMModelSpec::Fields spec = Airline();
  spec.y_transform = TSTransformation(TSTransformation::kLogarithm);
  const ArimaFit log = FitSpec(series, spec);
  EXPECT_EQ(log.status, FitStatus::kNotPositive);
  EXPECT_EQ(log.bad_case, 20U);
  spec.y_transform = TSTransformation(TSTransformation::kSquareRoot);
  const ArimaFit root = FitSpec(series, spec);
  EXPECT_EQ(root.status, FitStatus::kNegative);
  EXPECT_EQ(root.bad_case, 30U);
  ExpectSound(log);
  ExpectSound(root);

  AMModelSpec::Fields with = SpecOf({.ar = {1}});
  with.predictors = {{}, {.transform = TSTransformation(TSTransformation::kLogarithm)}};
  const ArimaFit predictor = FitSpec(Monthly(96), with, ArimaMethod::kMl, {series, series});
  EXPECT_EQ(predictor.status, FitStatus::kNotPositive);
  EXPECT_EQ(predictor.bad_case, 20U);
  EXPECT_EQ(predictor.bad_predictor, 1);
}

TEST(ArimaCorner, ValuesThatAreNoNumbersNameTheCase) {
  for (const double bad :
       {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(), 1e301}) {
    std::vector<double> series = Monthly(96);
    series[5] = bad;
    const ArimaFit fit = FitSpec(series, Airline());
    EXPECT_EQ(fit.status, FitStatus::kNotFinite);
    EXPECT_EQ(fit.bad_case, 5U);
    AMModelSpec::Fields spec = SpecOf({.ar = {1}});
    spec.predictors.resize(1);
    const ArimaFit predictor = FitSpec(Monthly(96), spec, ArimaMethod::kMl, {series});
    EXPECT_EQ(predictor.status, FitStatus::kNotFinite);
    EXPECT_EQ(predictor.bad_case, 5U);
    EXPECT_EQ(predictor.bad_predictor, 0);
    ExpectSound(predictor);
  }
}

// Too little, too much, or the wrong number of things.

TEST(ArimaCorner, EmptyAndAllMissingSeriesAreTooShort) {
  for (const ArimaMethod method : kMethods) {
    EXPECT_EQ(FitSpec({}, Airline(), method).status, FitStatus::kTooShort);
    EXPECT_EQ(FitSpec(std::vector<double>(50, kMissing), Airline(), method).status,
              FitStatus::kTooShort);
  }
}

TEST(ArimaCorner, EveryLengthIsFittedOrTooShort) {
  const std::vector<double> series = Monthly(60);
  for (const ArimaMethod method : kMethods) {
    for (const auto& spec :
         {Airline(), SpecOf({}), SpecOf({.has_constant = true}), SpecOf({.d = 1}),
          SpecOf({.ar = {1}, .ma = {1}}), SpecOf({.ar = {1, 2, 3}, .d = 2, .ma = {1, 2}}),
          WithOutliers(SpecOf({.ma = {1}}), {{3, 0}}),
          SpecOf({.ar = {1, 9}, .seasonal_ar = {1}, .season_length = 4, .has_constant = true})}) {
      std::size_t least = 0;
      for (std::size_t n = 1; n <= 40; ++n) {
        SCOPED_TRACE(n);
        const ArimaFit fit = FitSpec(
            {series.begin(), series.begin() + static_cast<std::ptrdiff_t>(n)}, spec, method);
        ExpectSound(fit);
        if (fit.status == FitStatus::kOk && least == 0) least = n;
        EXPECT_EQ(fit.status, least == 0 ? FitStatus::kTooShort : FitStatus::kOk) << fit.message;
      }
      EXPECT_GT(least, 0U);
    }
  }
}

TEST(ArimaCorner, ConstantSeriesLeavesNothingToExplain) {
  for (const double value : {0.0, 0.1, 1e9, 1e-6}) {
    for (const ArimaMethod method : kMethods) {
      for (const auto& spec : {Airline(), SpecOf({.ar = {1}, .has_constant = true}),
                               SpecOf({.d = 1}), SpecOf({.has_constant = true})}) {
        SCOPED_TRACE(value);
        const ArimaFit fit = FitSpec(std::vector<double>(60, value), spec, method);
        EXPECT_EQ(fit.status, FitStatus::kNotIdentified);
        EXPECT_EQ(fit.message,
                  "the model leaves nothing to explain: after differences and effects the series "
                  "is constant; a smoothing model can continue such a series");
        ExpectSound(fit);
      }
    }
  }
}

TEST(ArimaCorner, LineLeavesNothingToExplain) {
  const std::vector<double> line =
      Generate(60, [](std::size_t t) { return 3 + 0.7 * static_cast<double>(t); });
  EXPECT_EQ(FitSpec(line, SpecOf({.d = 2, .ma = {1}})).status, FitStatus::kNotIdentified);
  EXPECT_EQ(FitSpec(line, SpecOf({.d = 1, .ma = {1}, .has_constant = true})).status,
            FitStatus::kNotIdentified);
  EXPECT_EQ(FitSpec(line, Airline()).status, FitStatus::kNotIdentified);
  ExpectSound(FitSpec(line, SpecOf({.ar = {1}, .has_constant = true})));
}

// An innovation in the first case sets the mean and the root free to draw the line.
TEST(ArimaCorner, LineThatTheModelFollowsLeavesNothingToExplain) {
  const std::vector<double> line =
      Generate(40, [](std::size_t t) { return 5 + 2 * static_cast<double>(t); });
  const ArimaFit fit = FitSpec(line, WithOutliers(SpecOf({.ar = {1}, .has_constant = true}),
                                                  {{TSOutlierSpec::kInnovational, 0}}));
  EXPECT_EQ(fit.status, FitStatus::kNotIdentified);
  EXPECT_EQ(fit.message,
            "the model leaves nothing to explain: it follows the series without an error; a "
            "smoothing model can continue such a series");
}

TEST(ArimaCorner, OrdersThatAreTooLargeAreRefused) {
  const std::vector<double> series = Monthly(120);
  EXPECT_EQ(FitSpec(series, SpecOf({.ar = {200}})).status, FitStatus::kTooShort);
  EXPECT_EQ(FitSpec(series, SpecOf({.d = 119})).status, FitStatus::kTooShort);
  EXPECT_EQ(FitSpec(series, SpecOf({.ma = {5000}})).status, FitStatus::kBadOptions);
  EXPECT_EQ(FitSpec(series, SpecOf({.d = 5000})).status, FitStatus::kBadOptions);
  EXPECT_EQ(
      FitSpec(series, SpecOf({.seasonal_d = 4000000000U, .season_length = 4000000000U})).status,
      FitStatus::kBadOptions);
  EXPECT_EQ(FitSpec(series, SpecOf({.ar = {0}})).status, FitStatus::kBadOptions);
  EXPECT_EQ(FitSpec(series, SpecOf({.ar = {2, 1}})).status, FitStatus::kBadOptions);
  EXPECT_EQ(FitSpec(series, SpecOf({.ar = {1, 1}})).status, FitStatus::kBadOptions);
  std::vector<std::uint32_t> many(30);
  for (std::uint32_t i = 0; i < many.size(); ++i) many[i] = i + 1;
  const ArimaFit fit = FitSpec(Monthly(31), SpecOf({.ar = many}));
  EXPECT_EQ(fit.status, FitStatus::kTooShort);
  EXPECT_EQ(fit.message, "the model needs 32 cases that are not missing, the series has 31");
}

TEST(ArimaCorner, PredictorsMustBeAsManyAndAsLongAsSaid) {
  const std::vector<double> series = Monthly(60);
  AMModelSpec::Fields spec = SpecOf({.ar = {1}});
  EXPECT_EQ(FitSpec(series, spec, ArimaMethod::kMl, {series}).status, FitStatus::kBadOptions);
  spec.predictors.resize(1);
  EXPECT_EQ(FitSpec(series, spec).status, FitStatus::kBadOptions);
  const ArimaFit shorter = FitSpec(series, spec, ArimaMethod::kMl, {std::vector<double>(59, 1.0)});
  EXPECT_EQ(shorter.status, FitStatus::kBadOptions);
  EXPECT_EQ(shorter.message, "a predictor has 59 values, the series has 60");
  EXPECT_EQ(shorter.bad_predictor, 0);
  std::vector<double> gap = WhiteNoise(60);
  gap[7] = kMissing;
  const ArimaFit missing = FitSpec(series, spec, ArimaMethod::kMl, {gap});
  EXPECT_EQ(missing.status, FitStatus::kMissing);
  EXPECT_EQ(missing.bad_case, 7U);
  EXPECT_EQ(missing.bad_predictor, 0);
}

TEST(ArimaCorner, ForecastsNeedAllPredictorsInTime) {
  const std::vector<double> series = Monthly(60);
  AMModelSpec::Fields spec = SpecOf({.ar = {1}});
  spec.predictors = {{.transform = TSTransformation(TSTransformation::kLogarithm)}};
  std::vector<double> x = WhiteNoise(60);
  for (double& value : x) value = std::exp(value);
  const ArimaFit fit = FitSpec(series, spec, ArimaMethod::kMl, {x});
  const auto count = [&](const std::vector<std::vector<double>>& future) {
    return tsffit::Forecast(fit.model, 3, future).value.size();
  };
  EXPECT_EQ(count({{1, 2, 3}}), 3U);
  EXPECT_EQ(count({{1, 2, 3, 4}}), 3U);
  EXPECT_EQ(count({{1, 2}}), 0U);
  EXPECT_EQ(count({}), 0U);
  EXPECT_EQ(count({{1, 2, 3}, {1, 2, 3}}), 0U);
  EXPECT_EQ(count({{1, 0, 3}}), 0U);
  EXPECT_EQ(count({{1, kMissing, 3}}), 0U);
  EXPECT_EQ(count({{1, std::numeric_limits<double>::infinity(), 3}}), 0U);
}

TEST(ArimaCorner, OutliersMustBeInsideTheSeriesAndOfAKnownType) {
  const std::vector<double> series = Monthly(60);
  for (const TSOutlierSpec& outlier :
       {TSOutlierSpec(1, 60), TSOutlierSpec(1, -1), TSOutlierSpec(7, 5), TSOutlierSpec(-1, 5)}) {
    EXPECT_EQ(FitSpec(series, WithOutliers(Airline(), {outlier})).status, FitStatus::kBadOptions);
  }
  EXPECT_EQ(FitSpec(series, WithOutliers(SpecOf({.ar = {1}}), {{4, 5}})).status,
            FitStatus::kBadOptions);
}

TEST(ArimaCorner, SoundWhateverTheSeries) {
  const auto level = [](std::size_t t) { return 20 + test::Noise(t) + static_cast<double>(t % 4); };
  const std::vector<std::vector<double>> all = {
      Generate(60, [&](std::size_t t) { return 1e298 * level(t); }),
      Generate(60, [&](std::size_t t) { return 1e-310 * level(t); }),
      Generate(60, [&](std::size_t t) { return t % 2 == 0 ? 1e300 : -1e300; }),
      Generate(60, [&](std::size_t t) { return 1e9 + 1e-3 * level(t); }),
      Generate(60, [&](std::size_t t) { return 1e12 + level(t); }),
      Generate(60, [](std::size_t t) { return static_cast<double>(t % 2); }),
      Generate(60, [](std::size_t t) { return static_cast<double>(t % 4); }),
      Generate(60, [](std::size_t t) { return test::Noise(t) > 0 ? 1.0 : 2.0; }),
      Generate(60, [](std::size_t t) { return t < 30 ? 1.0 : 2.0; }),
      Generate(60, [](std::size_t t) { return t == 30 ? 1e6 : 2.0; }),
      Generate(60, [](std::size_t t) { return t == 59 ? 3.0 : 2.0; }),
      Generate(60, [](std::size_t t) { return std::exp(static_cast<double>(t)); }),
      Generate(60, [](std::size_t t) { return std::exp(10 * static_cast<double>(t)); }),
      Generate(60, [](std::size_t t) { return std::exp(-static_cast<double>(t)); }),
      Generate(60, [](std::size_t t) { return std::cos(0.5 * static_cast<double>(t)); }),
      Generate(60,
               [](std::size_t t) { return (t % 2 == 0 ? 1.0 : -1.0) * static_cast<double>(t); })};
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (const ArimaMethod method : kMethods) {
      for (const auto& spec :
           {SpecOf({.d = 1, .ma = {1}, .seasonal_d = 1, .seasonal_ma = {1}, .season_length = 4}),
            SpecOf({.ar = {1, 2}, .ma = {1}, .has_constant = true}),
            SpecOf({.ar = {1}, .d = 1, .seasonal_ar = {1}, .season_length = 4}),
            WithOutliers(SpecOf({.ar = {2, 3}}), {{3, 30}, {6, 31}}),
            SpecOf({.has_constant = true})}) {
        SCOPED_TRACE("series " + std::to_string(i) + ", method " +
                     std::to_string(static_cast<int>(method)));
        ExpectSound(FitSpec(all[i], spec, method));
      }
    }
  }
}

// The machine.

TEST(ArimaCorner, EveryThreadGetsTheSameBytes) {
  const std::vector<double> series = test::DataColumn("airpassengers.csv");
  std::vector<double> gaps = series;
  gaps[30] = gaps[100] = kMissing;
  for (const std::vector<double>& data : {series, gaps}) {
    const ArimaFit once = FitSpec(data, Airline());
    std::vector<ArimaFit> fits(2);
    std::vector<std::thread> threads;
    for (ArimaFit& fit : fits) threads.emplace_back([&] { fit = FitSpec(data, Airline()); });
    for (std::thread& thread : threads) thread.join();
    for (const ArimaFit& fit : fits) {
      EXPECT_EQ(EstimatesOf(fit), EstimatesOf(once));
      EXPECT_EQ(StdErrorsOf(fit), StdErrorsOf(once));
      EXPECT_EQ(fit.residuals, once.residuals);
      EXPECT_EQ(tsffit::Forecast(fit.model, 12).lower, tsffit::Forecast(once.model, 12).lower);
    }
  }
}

TEST(ArimaCorner, MemoryExhaustionPassesThroughAndLeavesNothing) {
  std::vector<double> series = WhiteNoise(20);
  const std::vector<std::vector<double>> x = {WhiteNoise(20, 2)};
  AMModelSpec::Fields spec = WithOutliers(SpecOf({.d = 1}), {{1, 9}});
  spec.predictors.resize(1);
  for (const ArimaMethod method : kMethods) {
    test::WithEveryAllocationFailing([&] {
      const ArimaFit fit = FitSpec(series, spec, method, x);
      const tsffit::Forecasts forecasts = ForecastWith(fit, 2, {{1, 2}});
    });
  }
  series[4] = kMissing;
  test::WithEveryAllocationFailing([&] {
    const ArimaFit fit = FitSpec(series, spec, ArimaMethod::kMl, x);
    const tsffit::Forecasts forecasts = ForecastWith(fit, 2, {{1, 2}});
  });
}

// A search allocates thousands of times: every twentieth or so fails here.
TEST(ArimaCorner, MemoryExhaustionInASearchPassesThrough) {
  const std::vector<double> series = WhiteNoise(16);
  const auto fit = [&] { return FitSpec(series, SpecOf({.ma = {1}})); };
  ASSERT_EQ(fit().status, FitStatus::kOk);
  test::FailAllocationsFrom(1000000000);
  fit();
  const long all = test::AllocationCount();
  test::FailAllocationsFrom(0);
  if (!TSXPORT_ALLOCATIONS_FAIL) return;
  for (long n = 1; n <= all; n += 1 + all / 300) {
    const long before = test::LiveBlocks();
    bool failed = false;
    test::FailAllocationsFrom(n);
    try {
      fit();
    } catch (const std::bad_alloc&) {
      failed = true;
    }
    test::FailAllocationsFrom(0);
    EXPECT_TRUE(failed) << n;
    EXPECT_EQ(test::LiveBlocks(), before) << "leak when allocation " << n << " fails";
  }
}

}  // namespace
