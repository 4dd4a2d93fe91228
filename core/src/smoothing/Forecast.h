#ifndef TSFFIT_SMOOTHING_FORECAST_H_
#define TSFFIT_SMOOTHING_FORECAST_H_

#include <tsfcore/ESForecastState.h>
#include <tsffit/Forecast.h>

#include "series/ForecastRequest.h"

namespace tsffit {

// Forecast() of Forecast.h for the state of a smoothing model, which has no predictors.
Forecasts ForecastSmoothing(const ESForecastState& state, const ForecastRequest& request);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_FORECAST_H_
