#include <algorithm>
#include <cmath>
#include <numbers>

#include <tsffit/Croston.h>

#include "series/ConfidenceWidth.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

constexpr int kSizes = 0;
constexpr int kIntervals = 1;
constexpr int kErrors = 2;

bool IsKnown(double value) { return value != MV::gMissingValue && std::isfinite(value); }

double LevelOf(const TSFCrModel& model, int submodel) {
  return model.GetImp()->GetForecastState(submodel).GetSmState().level;
}

// Missing when the intervals have no weight.
double IntervalWeight(const TSFCrModel& model) {
  const auto& estimates = model.GetImp()->GetForecastState(kIntervals).GetParameterEstimates();
  return estimates.size() > 0 ? estimates[0] : MV::gMissingValue;
}

// Equation (2) of Croston.h; missing when the model has no rate of this sort.
double RateOf(const TSFCrModel& model, CrostonRate rate) {
  if (model.IsEmpty() || !IsTransformation(model.GetImp()->GetFunctionType())) {
    return MV::gMissingValue;
  }
  const double size = LevelOf(model, kSizes);
  const double interval = LevelOf(model, kIntervals);
  if (!IsKnown(size) || !IsKnown(interval) || !(interval > 0)) return MV::gMissingValue;
  const double plain = Untransformed(model.GetImp()->GetFunctionType(), size) / interval;
  if (rate == CrostonRate::kCroston) return plain;
  const double weight = IntervalWeight(model);
  return IsKnown(weight) ? (1 - weight / 2) * plain : MV::gMissingValue;
}

}  // namespace

Forecasts Forecast(const TSFCrModel& model, unsigned horizon, double confidence, CrostonRate rate) {
  const double value = RateOf(model, rate);
  if (!IsKnown(value) || !(confidence > 0 && confidence < 1)) return {};

  Forecasts forecasts;
  forecasts.value.assign(horizon, value);
  const double absolute = LevelOf(model, kErrors);
  const bool known = IsKnown(absolute);
  const double error = std::sqrt(std::numbers::pi / 2) * absolute;
  const double width = ConfidenceWidth(confidence) * error;
  forecasts.std_error.assign(horizon, known ? error : MV::gMissingValue);
  forecasts.lower.assign(horizon, known ? std::max(value - width, 0.0) : MV::gMissingValue);
  forecasts.upper.assign(horizon, known ? value + width : MV::gMissingValue);
  return forecasts;
}

}  // namespace tsffit
