#include <span>
#include <vector>

#include <tsffit/Arima.h>
#include <tsffit/Forecast.h>

#include "arima/forecast/Forecast.h"
#include "dispatch/WithState.h"
#include "smoothing/Forecast.h"

namespace tsffit {

namespace {

Forecasts ForecastFrom(const ESForecastState& state, const ForecastRequest& request) {
  return ForecastSmoothing(state, request);
}

template <class ArimaState>
Forecasts ForecastFrom(const ArimaState& state, const ForecastRequest& request) {
  return ForecastArima(state, request);
}

}  // namespace

Forecasts Forecast(const TSFModel& model, unsigned horizon,
                   std::span<const std::vector<double>> futurePredictors, double confidence) {
  Forecasts forecasts;
  WithState(model, [&](const auto& state) {
    const EstimationInfo& info = model.GetImp()->GetEstimationInfo();
    forecasts = ForecastFrom(state, {.horizon = horizon,
                                     .confidence = confidence,
                                     .error_variance = info.GetErrorVariance(),
                                     .future_predictors = futurePredictors});
  });
  return forecasts;
}

Forecasts Forecast(const TSFModel& model, unsigned horizon, double confidence) {
  return Forecast(model, horizon, std::span<const std::vector<double>>(), confidence);
}

}  // namespace tsffit
