#ifndef TSFFIT_ARIMA_FORECAST_CONTINUE_H_
#define TSFFIT_ARIMA_FORECAST_CONTINUE_H_

#include <optional>
#include <vector>

#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>

#include "series/OriginalScale.h"

namespace tsffit {

// How the state that each method leaves goes on: the forecasts of Z, given the mean of the
// differenced series in the periods to come (Outlook.h). Nothing where the state lacks a number.

// From the filtered state and its covariance.
std::optional<ForecastPath> Continue(const ARMAMLForecastState& state,
                                     const std::vector<double>& mean);

// From the last rows of the theta recursion.
std::optional<ForecastPath> Continue(const ARMAMLSpForecastState& state,
                                     const std::vector<double>& mean);

// From the last conditional errors.
std::optional<ForecastPath> Continue(const ARMACLSForecastState& state,
                                     const std::vector<double>& mean);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FORECAST_CONTINUE_H_
