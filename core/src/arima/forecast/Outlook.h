#ifndef TSFFIT_ARIMA_FORECAST_OUTLOOK_H_
#define TSFFIT_ARIMA_FORECAST_OUTLOOK_H_

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <tsfcore/ARMAForecastState.h>

namespace tsffit {

// The mean of the differenced series in `horizon` periods after the state, noise apart: what
// constant, predictors and outliers add up to in equation (1) of Arima.h. `predictors` has a list
// for each predictor of the specification. Nothing where the state or the predictors' values do not
// suffice.
std::optional<std::vector<double>> DifferencedMean(const ARMAForecastState& state,
                                                   std::size_t horizon,
                                                   std::span<const std::vector<double>> predictors);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FORECAST_OUTLOOK_H_
