#include "series/LjungBox.h"

#include <algorithm>
#include <boost/math/distributions/chi_squared.hpp>
#include <cmath>
#include <vector>

#include "series/Observed.h"

namespace tsffit {

namespace {

// Deviations from the mean, of length 1 together, 0 where missing. Empty when they are all 0:
// counted from the first error, so that equal errors leave exactly nothing.
std::vector<double> Standardised(std::span<const double> errors, double n) {
  const double first = errors[FirstObserved(errors)];
  double mean = 0;
  for (const double e : errors) mean += IsMissing(e) ? 0 : (e - first) / n;
  std::vector<double> deviations;
  double largest = 0;
  for (const double e : errors) {
    deviations.push_back(IsMissing(e) ? 0 : e - first - mean);
    largest = std::max(largest, std::abs(deviations.back()));
  }
  if (!(largest > 0) || !std::isfinite(largest)) return {};

  double squares = 0;
  for (const double x : deviations) squares += x / largest * (x / largest);
  for (double& x : deviations) x = x / largest / std::sqrt(squares);
  return deviations;
}

}  // namespace

EstimationInfo::LjungBox LjungBoxTest(std::span<const double> errors, unsigned lags,
                                      unsigned estimated) {
  EstimationInfo::LjungBox test;
  const auto n = static_cast<double>(CountObserved(errors));
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
