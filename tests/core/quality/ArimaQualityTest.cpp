// ARIMA fits of simulated series against the best log-likelihoods that other programs reach
// (tests/reference/arima_simulated.csv), and the distribution of the estimates.

#include <algorithm>
#include <boost/math/distributions/normal.hpp>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "core/support/ArimaSeries.h"
#include "core/support/TestSeries.h"

namespace {

std::vector<std::uint32_t> Lags(const std::string& text) {
  std::vector<std::uint32_t> lags;
  std::istringstream in(text);
  for (std::uint32_t lag = 0; in >> lag;) lags.push_back(lag);
  return lags;
}

struct Simulated {
  AMModelSpec::Fields spec;
  std::vector<double> series;
};

std::map<std::string, Simulated> SimulatedSeries() {
  std::map<std::string, Simulated> all;
  for (const auto& row : test::ReadRows("reference/arima_simulated_series.csv")) {
    Simulated& one = all[row[0]];
    one.spec.season_length = static_cast<unsigned>(std::stoul(row[1]));
    one.spec.non_seasonal_diff = static_cast<unsigned>(std::stoul(row[2]));
    one.spec.seasonal_diff = static_cast<unsigned>(std::stoul(row[3]));
    one.spec.has_constant = row[4] == "1";
    one.spec.ar = {.non_seasonal = AMPowers(Lags(row[5])), .seasonal = AMPowers(Lags(row[6]))};
    one.spec.ma = {.non_seasonal = AMPowers(Lags(row[7])), .seasonal = AMPowers(Lags(row[8]))};
    one.series = test::Numbers(row[9]);
  }
  return all;
}

// The table's third likelihood is at least as high as those of the programs, in some series higher.
void ExpectTheBestLikelihoods(tsffit::ArimaMethod method) {
  const auto simulated = SimulatedSeries();
  std::size_t compared = 0;
  for (const auto& row : test::ReadRows("reference/arima_simulated.csv")) {
    const Simulated& one = simulated.at(row[0]);
    const tsffit::ArimaFit fit = test::FitSpec(one.series, one.spec, method);
    ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << row[0] << ' ' << fit.message;
    EXPECT_EQ(fit.summary.residuals, std::stoul(row[1])) << row[0];
    const double best = std::max({std::stod(row[4]), std::stod(row[5]), std::stod(row[6])});
    EXPECT_GE(fit.summary.log_likelihood, best - 0.01) << row[0];
    EXPECT_TRUE(fit.summary.converged) << row[0];
    test::ExpectSound(fit);
    ++compared;
  }
  EXPECT_EQ(compared, 60U);
}

TEST(ArimaQuality, NoLikelihoodIsBelowTheBestOfOtherPrograms) {
  ExpectTheBestLikelihoods(tsffit::ArimaMethod::kMl);
}

TEST(ArimaQuality, NoLikelihoodByThetasIsBelowTheBestOfOtherPrograms) {
  ExpectTheBestLikelihoods(tsffit::ArimaMethod::kMlTheta);
}

// White noise, where AR and MA terms nearly cancel at one frequency or another: the likelihood has
// many narrow maxima. tests/reference/arima_cycles.csv has the best that R reaches from points near
// such cycles.
TEST(ArimaQuality, NearlyCancelledCyclesAreSeldomMissed) {
  std::size_t compared = 0;
  std::size_t missed = 0;
  for (const auto& row : test::ReadRows("reference/arima_cycles.csv")) {
    const tsffit::ArimaFit fit =
        test::FitSpec(test::Numbers(row[1]), test::SpecOf({.ar = {1, 2}, .ma = {1, 2}}));
    ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << fit.message;
    if (fit.summary.log_likelihood < std::stod(row[0]) - 0.05) ++missed;
    ++compared;
  }
  EXPECT_EQ(compared, 40U);
  EXPECT_LE(missed, compared / 20);
}

// The largest distance between the normal distribution function and that of the sample.
double KolmogorovSmirnov(std::vector<double> sample) {
  std::sort(sample.begin(), sample.end());
  const double n = static_cast<double>(sample.size());
  double distance = 0;
  for (std::size_t i = 0; i < sample.size(); ++i) {
    const double p = boost::math::cdf(boost::math::normal(), sample[i]);
    distance =
        std::max({distance, p - static_cast<double>(i) / n, static_cast<double>(i + 1) / n - p});
  }
  return distance;
}

// phi_1 and phi_2 (or theta) with given partial autocorrelations.
std::vector<double> SecondOrder(double r1, double r2) { return {1, -r1 * (1 - r2), -r2}; }

// One simulated model: coefficients in the order of the parameter vector, drawn well inside the
// region, of one of eight kinds.
struct Draw {
  test::Orders orders;
  std::vector<double> phi = {1};
  std::vector<double> theta = {1};
  std::vector<double> truth;
};

Draw DrawModel(std::size_t kind, test::NormalDraws& draws) {
  const auto between = [&](double low, double high) {
    return low + (high - low) * draws.Uniform();
  };
  const auto sign = [&] { return draws.Uniform() < 0.5 ? -1.0 : 1.0; };
  Draw draw;
  const double a = sign() * between(0.2, 0.7);
  const double b = sign() * between(0.2, 0.7);
  switch (kind) {
    case 0:
      draw.orders = {.ar = {1}};
      draw.phi = {1, -a};
      draw.truth = {a};
      break;
    case 1:
      draw.orders = {.ma = {1}};
      draw.theta = {1, -a};
      draw.truth = {a};
      break;
    case 2:
      draw.orders = {.ar = {1, 2}};
      draw.phi = SecondOrder(a, b);
      draw.truth = {-draw.phi[1], -draw.phi[2]};
      break;
    case 3:
      draw.orders = {.ma = {1, 2}};
      draw.theta = SecondOrder(a, b);
      draw.truth = {-draw.theta[1], -draw.theta[2]};
      break;
    case 4:  // of opposite signs: no near common factor
      draw.orders = {.ar = {1}, .ma = {1}};
      draw.phi = {1, -a};
      draw.theta = {1, std::copysign(b, a)};
      draw.truth = {a, -std::copysign(b, a)};
      break;
    case 5:
      draw.orders = {.d = 1, .ma = {1}};
      draw.theta = {1, -a};
      draw.truth = {a};
      break;
    case 6:
      draw.orders = {.ma = {1}, .seasonal_ma = {1}, .season_length = 4};
      draw.theta = {1, -a, 0, 0, -b, a * b};
      draw.truth = {a, b};
      break;
    default:
      draw.orders = {.ar = {1}, .seasonal_ar = {1}, .season_length = 4, .has_constant = true};
      draw.phi = {1, -a, 0, 0, -b, a * b};
      draw.truth = {0, a, b};
      break;
  }
  return draw;
}

TEST(ArimaQuality, StandardisedErrorsOfTheEstimatesAreNormal) {
  test::NormalDraws draws(20260);
  constexpr std::size_t kModels = 200;
  std::vector<double> standardised;
  for (std::size_t model = 0; model < kModels; ++model) {
    const Draw draw = DrawModel(model % 8, draws);
    const auto n = static_cast<std::size_t>(200 + 200 * draws.Uniform());
    std::vector<double> series = test::SimulateArma(draw.phi, draw.theta, n, draws);
    if (draw.orders.d == 1) series = test::Summed(std::move(series));
    const tsffit::ArimaFit fit = test::FitSpec(series, test::SpecOf(draw.orders));
    ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << fit.message;
    const std::vector<double> estimates = test::EstimatesOf(fit);
    const std::vector<double> errors = test::StdErrorsOf(fit);
    ASSERT_EQ(estimates.size(), draw.truth.size());
    // One of each model, the parameters in turn, so that they are independent.
    const std::size_t i = model / 8 % estimates.size();
    ASSERT_NE(errors[i], MV::gMissingValue) << "model " << model;
    standardised.push_back((estimates[i] - draw.truth[i]) / errors[i]);
  }
  // The distance that a sample of 200 exceeds with probability 0.01: Smirnov (1948), "Table for
  // estimating the goodness of fit of empirical distributions", 1.628 / sqrt(n).
  EXPECT_LT(KolmogorovSmirnov(standardised), 1.628 / std::sqrt(double{kModels}));
  // That distance hardly sees standard errors of a wrong size, the sum of squares does: between the
  // points that a chi-square variable with 200 degrees of freedom misses with probability 0.005.
  double squares = 0;
  for (const double z : standardised) squares += z * z;
  EXPECT_GT(squares, 152.241);
  EXPECT_LT(squares, 255.264);
}

}  // namespace
