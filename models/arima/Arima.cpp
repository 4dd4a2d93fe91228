#include "models/arima/Arima.h"

#include <tsfcore/MV.h>

#include "models/arima/ArimaFault.h"
#include "models/arima/ArimaFitting.h"
#include "models/arima/ArimaModel.h"
#include "text/Numbers.h"
#include "text/Quoting.h"

namespace tsx::models {
namespace {

constexpr KindInfo kKind = {0, "", "ARIMA"};

bool BlamesValue(tsffit::FitStatus status) {
  using tsffit::FitStatus;
  return status == FitStatus::kNotPositive || status == FitStatus::kNegative ||
         status == FitStatus::kNotFinite || status == FitStatus::kMissing;
}

// The value itself, or the time at which it is missing.
std::string BlamedText(const Series& series, double value, std::size_t at) {
  return value != MV::gMissingValue ? text::NumberText(value)
                                    : series.axis->CaseText(series.cases[at]) + " is missing";
}

// Which value of the series or of a predictor the core refused, if it was one.
Fault RefusalOf(const Series& series, const tsffit::ArimaFit& fit) {
  if (!BlamesValue(fit.status)) return {fit.message, AtValue(0)};
  const std::size_t at = fit.bad_case;
  if (fit.bad_predictor < 0) {
    return {BlamedText(series, series.values[at], at) + ": " + fit.message, AtValue(at)};
  }
  const auto p = static_cast<std::size_t>(fit.bad_predictor);
  const Predictor& predictor = series.predictors[p];
  return {"predictor " + text::Quoted(predictor.name) + ", " +
              BlamedText(series, predictor.values[at], at) + ": " + fit.message,
          {Where::Part::kPredictorValue, at, p}};
}

}  // namespace

const KindInfo& ArimaKind() { return kKind; }

std::string ArimaClass::SeasonalPart(const KindInfo& /*kind*/, const ModelRequest& request) const {
  return models::SeasonalPart(request.arima, *request.words);
}

Fault ArimaClass::FindFault(const Task& task) const { return FindArimaFault(task); }

Fitting ArimaClass::Fit(const KindInfo& /*kind*/, const Task& task) const {
  const ArimaRequest& request = task.request.arima;
  const ArimaOutcome outcome =
      FitArimaSeries(request, task.series, task.season_length, task.request.function_type);
  if (outcome.fit.status != tsffit::FitStatus::kOk) {
    return {.fault = RefusalOf(task.series, outcome.fit)};
  }
  Fitting fitting = {.model = std::make_unique<ArimaModel>(task.series, outcome.fit.model,
                                                           outcome.fit.summary.converged,
                                                           request.detect_outliers)};
  if (request.automatic) fitting.search = Search{"AICc", outcome.aicc, outcome.models_tried};
  return fitting;
}

}  // namespace tsx::models
