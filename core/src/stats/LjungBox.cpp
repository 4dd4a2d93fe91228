#include "stats/LjungBox.h"

#include <boost/math/distributions/chi_squared.hpp>
#include <cmath>
#include <vector>

namespace tsffit {

namespace {

bool Seen(double e) { return e != MV::gMissingValue; }

// Deviations from the mean in units of their root mean square, 0 where missing. Empty when they
// are all 0.
std::vector<double> Standardised(std::span<const double> errors, double n) {
  double mean = 0;
  for (const double e : errors) mean += Seen(e) ? e / n : 0;
  double largest = 0;
  for (const double e : errors) largest = std::max(largest, Seen(e) ? std::abs(e - mean) : 0);
  if (!(largest > 0) || !std::isfinite(largest)) return {};

  std::vector<double> deviations;
  double squares = 0;
  for (const double e : errors) {
    deviations.push_back(Seen(e) ? (e - mean) / largest : 0);
    squares += deviations.back() * deviations.back();
  }
  for (double& deviation : deviations) deviation /= std::sqrt(squares);
  return deviations;
}

}  // namespace

EstimationInfo::LjungBox LjungBoxTest(std::span<const double> errors, unsigned lags,
                                      unsigned estimated) {
  EstimationInfo::LjungBox test;
  double n = 0;
  for (const double e : errors) n += Seen(e) ? 1 : 0;
  if (lags == 0 || n <= lags) return test;
  const std::vector<double> x = Standardised(errors, n);
  if (x.empty()) return test;

  double sum = 0;
  for (std::size_t lag = 1; lag <= lags; ++lag) {
    double r = 0;
    for (std::size_t t = lag; t < x.size(); ++t) r += x[t] * x[t - lag];
    sum += r * r / (n - static_cast<double>(lag));
  }
  test.statistic = n * (n + 2) * sum;
  test.k = lags;
  if (lags <= estimated) return test;
  test.degrees_of_freedom = lags - estimated;
  const boost::math::chi_squared chiSquared(static_cast<double>(test.degrees_of_freedom));
  test.p_value = boost::math::cdf(boost::math::complement(chiSquared, test.statistic));
  return test;
}

}  // namespace tsffit
