#ifndef TSXPORT_TESTS_RESUME_EXACTFORECAST_H_
#define TSXPORT_TESTS_RESUME_EXACTFORECAST_H_

#include <cstddef>
#include <vector>

#include "ReadArima.h"

namespace test {

// A model's series from the first case of the fit on, NaN where a case is missing, and its
// predictors from there to the last period to be forecast.
struct ModelData {
  List series;
  std::vector<List> predictors;
};

struct ExactForecast {
  List z;                  // forecasts of Z
  List relative_variance;  // of their errors, in units of the error variance
  double sum_of_squares = 0;
  double log_likelihood = 0;  // of the data, with sum of squares / residuals for the variance
  std::size_t residuals = 0;
};

// By definition: the noise is multivariate normal with the autocovariances of its process; whatever
// Z is not known, missing or to come, is conditioned for at once. A missing value before the first
// case of the likelihood has a flat prior.
ExactForecast ForecastByDensity(const ReadArima& model, const ModelData& data, std::size_t horizon);

// By the recursion of the conditional residuals from the first case on, and psi weights.
ExactForecast ForecastByConditionalErrors(const ReadArima& model, const ModelData& data,
                                          std::size_t horizon);

}  // namespace test

#endif  // TSXPORT_TESTS_RESUME_EXACTFORECAST_H_
