#ifndef TSFFIT_SERIES_FORECASTREQUEST_H_
#define TSFFIT_SERIES_FORECASTREQUEST_H_

#include <span>
#include <vector>

namespace tsffit {

// What a fitted model's state is asked for, beside what it holds.
struct ForecastRequest {
  unsigned horizon = 0;  // periods
  double confidence = 0;
  double error_variance = 0;                                 // of the fit
  std::span<const std::vector<double>> future_predictors{};  // in those periods
};

}  // namespace tsffit

#endif  // TSFFIT_SERIES_FORECASTREQUEST_H_
