#include "arima/forecast/Forecast.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "arima/forecast/Continue.h"
#include "arima/forecast/Known.h"
#include "arima/forecast/Outlook.h"
#include "arima/model/Effects.h"
#include "series/OriginalScale.h"

namespace tsffit {

namespace {

// How many values the state of each method goes on from, beside those of Z.
std::size_t ValuesKept(const ARMAMLForecastState& state) { return state.GetFinalStateV().size(); }
std::size_t ValuesKept(const ARMAMLSpForecastState& state) { return state.GetActualN().size(); }
std::size_t ValuesKept(const ARMACLSForecastState& state) { return state.GetActualN().size(); }

// Whether specification, estimates and periods may belong to a state that goes on from `kept`
// values. A model may have been written down by hand and name lags that no memory holds; this comes
// before all polynomials.
bool IsPlausible(const ARMAForecastState& state, std::size_t kept) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const auto& period = state.GetPeriodRecord();
  if (period.length > kMostPeriods || period.period_deficit > period.length) return false;
  const std::valarray<double>& estimates = state.GetParameterEstimates();
  if (estimates.size() < spec.GetParameterCount(true)) return false;
  if (!std::all_of(std::begin(estimates), std::end(estimates),
                   [](double value) { return std::isfinite(value); })) {
    return false;
  }
  AMPowers regular;
  AMPowers seasonal;
  spec.GetARStruct(regular, seasonal);
  if (Degree(regular) + Degree(seasonal) > kept) return false;
  spec.GetMAStruct(regular, seasonal);
  return Degree(regular) + Degree(seasonal) <= kept && DifferenceDegree(spec) <= kept;
}

// A state with a period deficit is that of an earlier period: the way to the end of the series is
// walked, too, and not told.
void DropFirst(std::size_t count, std::vector<double>& values) {
  values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count));
}

template <class State>
Forecasts ForecastFrom(const State& state, const ForecastRequest& request) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  if (!(request.confidence > 0 && request.confidence < 1)) return {};
  if (request.future_predictors.size() != spec.GetXCount()) return {};
  if (!IsPlausible(state, state.GetActualZ().size() + ValuesKept(state))) return {};

  const auto deficit = static_cast<std::size_t>(state.GetPeriodRecord().period_deficit);
  const auto mean = DifferencedMean(state, request.horizon + deficit, request.future_predictors);
  if (!mean) return {};
  std::optional<ForecastPath> path = Continue(state, *mean);
  if (!path) return {};
  DropFirst(deficit, path->mean);
  DropFirst(deficit, path->variance);
  return OnOriginalScale(*path, request.error_variance, spec.GetYTransformSpec().GetFunctionType(),
                         request.confidence);
}

}  // namespace

Forecasts ForecastArima(const ARMAMLForecastState& state, const ForecastRequest& request) {
  return ForecastFrom(state, request);
}

Forecasts ForecastArima(const ARMAMLSpForecastState& state, const ForecastRequest& request) {
  return ForecastFrom(state, request);
}

Forecasts ForecastArima(const ARMACLSForecastState& state, const ForecastRequest& request) {
  return ForecastFrom(state, request);
}

}  // namespace tsffit
