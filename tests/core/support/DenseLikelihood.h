#ifndef TSXPORT_TESTS_CORE_SUPPORT_DENSELIKELIHOOD_H_
#define TSXPORT_TESTS_CORE_SUPPORT_DENSELIKELIHOOD_H_

#include <Eigen/Core>
#include <cstddef>
#include <vector>

#include "math/Polynomial.h"

namespace test {

// An ARIMA model with its data, and its likelihood by definition: the density of the multivariate
// normal distribution, with nothing in common with a filter.
struct DenseModel {
  tsffit::Polynomial phi = {1};
  tsffit::Polynomial theta = {1};
  tsffit::Polynomial difference = {1};
  // Z, MV::gMissingValue where missing. The rows are the last cases, as many as `effects` has; the
  // values before them are conditioned upon, and have a flat prior where they are missing.
  std::vector<double> z{};
  // Linear effects on the differenced series, a column each, whose coefficients are eliminated.
  Eigen::MatrixXd effects{};
};

struct DenseLikelihood {
  std::size_t residuals = 0;      // observed rows less the values with a flat prior
  double sse = 0;                 // e' V^-1 e
  double log_determinant = 0;     // of V, and of what the flat prior adds
  double log_likelihood = 0;      // with sse / residuals for the innovation variance
  std::vector<double> effects{};  // coefficients
};

DenseLikelihood Evaluate(const DenseModel& model);

// Means and variances (for innovations of variance 1) of all rows given the observed ones, the
// effects left out: a forecast where rows at the end are missing.
struct DensePrediction {
  std::vector<double> mean{};
  std::vector<double> variance{};
};
DensePrediction Predict(const DenseModel& model);

}  // namespace test

#endif  // TSXPORT_TESTS_CORE_SUPPORT_DENSELIKELIHOOD_H_
