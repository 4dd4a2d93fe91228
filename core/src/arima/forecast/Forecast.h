#ifndef TSFFIT_ARIMA_FORECAST_FORECAST_H_
#define TSFFIT_ARIMA_FORECAST_FORECAST_H_

#include <span>
#include <vector>

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/EstimationInfo.h>
#include <tsffit/Forecast.h>

namespace tsffit {

// Forecast() of Arima.h, for the state and the record of the fit.
Forecasts ForecastArima(const ARMAForecastState& state, const EstimationInfo& info,
                        unsigned horizon, std::span<const std::vector<double>> futurePredictors,
                        double confidence);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FORECAST_FORECAST_H_
