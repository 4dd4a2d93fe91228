#ifndef TSFFIT_ARIMA_FORECAST_FORECAST_H_
#define TSFFIT_ARIMA_FORECAST_FORECAST_H_

#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>
#include <tsffit/Forecast.h>

#include "series/ForecastRequest.h"

namespace tsffit {

// Forecast() of Arima.h, for the state of each method.
Forecasts ForecastArima(const ARMAMLForecastState& state, const ForecastRequest& request);
Forecasts ForecastArima(const ARMAMLSpForecastState& state, const ForecastRequest& request);
Forecasts ForecastArima(const ARMACLSForecastState& state, const ForecastRequest& request);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FORECAST_FORECAST_H_
