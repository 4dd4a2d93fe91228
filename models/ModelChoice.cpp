#include "models/ModelChoice.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <tsfcore/MV.h>
#include <tsffit/Croston.h>
#include <tsffit/Smoothing.h>

#include "models/arima/ArimaFault.h"
#include "models/arima/ArimaFitting.h"
#include "models/arima/ArimaSpec.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

// The normalised BIC for ranking. It is the logarithm of the MSE at heart, so a perfect fit leaves
// it undefined and ranks first.
double RankingBic(const TSFModel& model) {
  const double bic = model.GetGOFStat("NRMBIC");
  if (bic != MV::gMissingValue && std::isfinite(bic)) return bic;
  const bool perfect = model.GetGOFStat("MSE") == 0;
  const double infinity = std::numeric_limits<double>::infinity();
  return perfect ? -infinity : infinity;
}

// Fills in why the core refused the series.
template <typename Fit>
void Explain(Candidate& candidate, const FittedSeries& fitted, const Fit& fit) {
  const bool blamesValue =
      fit.status == tsffit::FitStatus::kNotPositive || fit.status == tsffit::FitStatus::kNegative;
  const std::size_t blamed = blamesValue ? fit.bad_case : 0;
  candidate.refused_at = fitted.places->values[blamed];
  candidate.refusal =
      (blamesValue ? text::NumberText(fitted.series->values[blamed]) + ": " : "") + fit.message;
}

// Fits one kind. A better fit than the one held so far replaces it.
void Try(const KindInfo& kind, const ModelRequest& request, FittedSeries& fitted, double& best) {
  Candidate candidate;
  candidate.kind = &kind;
  tsffit::SmoothingOptions options;
  options.kind = kind.kind;
  options.season_length = kind.seasonal ? fitted.season_length : 1;
  options.function_type = request.function_type;
  const tsffit::SmoothingFit fit = tsffit::FitSmoothing(fitted.series->values, options);
  candidate.fitted = fit.status == tsffit::FitStatus::kOk;
  if (candidate.fitted) {
    candidate.bic = RankingBic(fit.model);
    if (fitted.kind == nullptr || candidate.bic < best) {
      best = candidate.bic;
      fitted.kind = &kind;
      fitted.model = fit.model;
    }
  } else {
    Explain(candidate, fitted, fit);
  }
  fitted.candidates.push_back(candidate);
}

void TryCroston(const ModelRequest& request, FittedSeries& fitted) {
  Candidate candidate;
  candidate.kind = &CrostonKind();
  tsffit::CrostonOptions options;
  options.function_type = request.function_type;
  const tsffit::CrostonFit fit = tsffit::FitCroston(fitted.series->values, options);
  candidate.fitted = fit.status == tsffit::FitStatus::kOk;
  if (candidate.fitted) {
    fitted.kind = candidate.kind;
    fitted.croston = fit.model;
  } else {
    Explain(candidate, fitted, fit);
  }
  fitted.candidates.push_back(candidate);
}

// Fills in which value of the series or of a predictor the core refused, if it was one.
void ExplainArima(Candidate& candidate, const FittedSeries& fitted, const tsffit::ArimaFit& fit) {
  const Series& series = *fitted.series;
  const SeriesPlaces& places = *fitted.places;
  using tsffit::FitStatus;
  candidate.refusal = fit.message;
  candidate.refused_at = places.values.front();
  const bool blamesValue = fit.status == FitStatus::kNotPositive ||
                           fit.status == FitStatus::kNegative ||
                           fit.status == FitStatus::kNotFinite || fit.status == FitStatus::kMissing;
  if (!blamesValue) return;
  const PredictorColumn* const predictor =
      fit.bad_predictor < 0 ? nullptr
                            : &series.predictors[static_cast<std::size_t>(fit.bad_predictor)];
  const double value = (predictor != nullptr ? predictor->values : series.values)[fit.bad_case];
  candidate.refused_at = PlaceOfCase(
      predictor != nullptr ? places.predictors[static_cast<std::size_t>(fit.bad_predictor)].values
                           : places.values,
      fit.bad_case);
  candidate.refusal =
      (predictor != nullptr ? "predictor " + text::Quoted(predictor->name) + ", " : std::string()) +
      (value != MV::gMissingValue
           ? text::NumberText(value)
           : series.axis->CaseText(series.cases[fit.bad_case]) + " is missing") +
      ": " + fit.message;
}

void TryArima(const ModelRequest& request, FittedSeries& fitted) {
  Candidate candidate;
  candidate.kind = &ArimaKind();
  const ArimaOutcome outcome =
      FitArimaSeries(request.arima, *fitted.series, fitted.season_length, request.function_type);
  candidate.fitted = outcome.fit.status == tsffit::FitStatus::kOk;
  if (candidate.fitted) {
    fitted.kind = candidate.kind;
    fitted.model = outcome.fit.model;
    fitted.arima = {.converged = outcome.fit.summary.converged,
                    .models_tried = outcome.models_tried,
                    .aicc = outcome.aicc,
                    .outliers_sought = request.arima.detect_outliers};
  } else {
    ExplainArima(candidate, fitted, outcome.fit);
  }
  fitted.candidates.push_back(candidate);
}

// Why the kind cannot go with the series, whatever its values; empty when it can.
std::string Misfit(const KindInfo& kind, const FittedSeries& fitted) {
  if (!kind.seasonal) return "";
  if (fitted.season_length < 2) {
    return std::string(kind.option) + " needs a season, and " + fitted.series->axis->name +
           " times have none; give its length with --season";
  }
  if (HasGaps(*fitted.series)) {
    return std::string(kind.option) +
           " has seasons, which gaps would shift; leave --gaps out or choose a model without";
  }
  return "";
}

bool IsOpenToChoice(const KindInfo& kind, const FittedSeries& fitted, const ModelRequest& request) {
  const bool transformed = request.function_type != TSTransformation::kNone;
  return Misfit(kind, fitted).empty() && !(kind.multiplicative && transformed);
}

void TrySmoothing(const ModelRequest& request, FittedSeries& fitted) {
  double best = 0;
  for (const KindInfo& kind : SmoothingKinds()) {
    const bool wanted =
        request.kind != nullptr ? &kind == request.kind : IsOpenToChoice(kind, fitted, request);
    if (wanted) Try(kind, request, fitted, best);
  }
}

// Why the request cannot go with the series, and where; empty when it can.
ArimaFault FindFault(const TableSeries& read, const ModelRequest& request,
                     const FittedSeries& fitted) {
  const std::string fault = read.series.axis->Fault();
  const text::Place first = read.places.values.front();
  if (!fault.empty() || request.kind == nullptr) return {fault, first};
  if (request.kind != &ArimaKind()) return {Misfit(*request.kind, fitted), first};
  return FindArimaFault(request.arima, read, fitted.season_length, request.horizon);
}

void TryAll(const ModelRequest& request, FittedSeries& fitted) {
  if (request.kind == &ArimaKind()) return TryArima(request, fitted);
  const bool croston = request.kind != nullptr ? request.kind == &CrostonKind()
                                               : CountZeros(*fitted.series).intermittent;
  croston ? TryCroston(request, fitted) : TrySmoothing(request, fitted);
}

}  // namespace

bool LeavesChoice(const ModelRequest& request) {
  return request.kind == nullptr || request.arima.automatic;
}

ZeroCount CountZeros(const Series& series) {
  constexpr double kLeastShare = 0.3;
  ZeroCount count;
  bool negative = false;
  for (const double value : series.values) {
    if (value == MV::gMissingValue) continue;
    ++count.cases;
    count.zeros += value == 0 ? 1 : 0;
    negative = negative || value < 0;
  }
  const bool often =
      static_cast<double>(count.zeros) >= kLeastShare * static_cast<double>(count.cases);
  count.intermittent = often && !negative && count.zeros < count.cases;
  return count;
}

std::string ZerosText(const ZeroCount& count) {
  return std::to_string(count.zeros) + " of " + std::to_string(count.cases) +
         " cases are zero and none is negative";
}

FittedSeries FitSeries(const TableSeries& read, const ModelRequest& request) {
  FittedSeries fitted;
  fitted.series = &read.series;
  fitted.places = &read.places;
  const DateAxis& axis = *read.series.axis;
  fitted.season_length =
      request.season_length != 0 ? request.season_length : std::max(axis.SeasonLength(), 1U);
  const ArimaFault fault = FindFault(read, request, fitted);
  fitted.fault_place = fault.place;
  fitted.fault = fault.cause;
  if (!fitted.fault.empty()) return fitted;

  TryAll(request, fitted);
  if (fitted.kind == nullptr) {
    fitted.fault = fitted.candidates.front().refusal;
    fitted.fault_place = fitted.candidates.front().refused_at;
  }
  return fitted;
}

std::string ReasonForChoice(const FittedSeries& fitted) {
  if (fitted.kind == &CrostonKind()) {
    return "intermittent demand: " + ZerosText(CountZeros(*fitted.series)) +
           "; not compared with smoothing";
  }
  if (fitted.kind == &ArimaKind()) {
    return "lowest AICc of " + std::to_string(fitted.arima.models_tried) + " models, " +
           text::FixedText(fitted.arima.aicc, 3);
  }
  std::vector<const Candidate*> ranked;
  for (const Candidate& candidate : fitted.candidates) {
    if (candidate.fitted) ranked.push_back(&candidate);
  }
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const Candidate* a, const Candidate* b) { return a->bic < b->bic; });
  if (ranked.size() == 1) return "the only kind that goes with the series";
  const auto perfect = std::count_if(ranked.begin(), ranked.end(), [](const Candidate* candidate) {
    return candidate->bic == -std::numeric_limits<double>::infinity();
  });
  if (perfect == 1) return "the only kind to fit without error";
  if (perfect > 1) {
    return "fits without error, the simplest of " + std::to_string(perfect) + " kinds to do so";
  }
  const auto bicText = [](double bic) {
    return std::isfinite(bic) ? text::FixedText(bic, 3) : std::string("an undefined one");
  };
  return "lowest normalised BIC of " + std::to_string(ranked.size()) + " kinds, " +
         bicText(ranked[0]->bic) + "; next " + ranked[1]->kind->option + " with " +
         bicText(ranked[1]->bic);
}

std::string TitleOf(const FittedSeries& fitted) {
  return fitted.kind == &ArimaKind() ? ArimaTitle(ArimaStateOf(fitted.model).GetAMModelSpec())
                                     : fitted.kind->title;
}

tsffit::Forecasts ForecastsOf(const FittedSeries& fitted, unsigned horizon) {
  if (fitted.kind == &ArimaKind()) {
    const AMModelSpec& spec = ArimaStateOf(fitted.model).GetAMModelSpec();
    const unsigned known = std::min(horizon, KnownHorizon(spec, *fitted.series));
    return tsffit::Forecast(fitted.model, known, FutureValues(*fitted.series, known));
  }
  return fitted.kind == &CrostonKind() ? tsffit::Forecast(fitted.croston, horizon)
                                       : tsffit::Forecast(fitted.model, horizon);
}

const EstimationInfo& EstimationOf(const FittedSeries& fitted) {
  return fitted.kind == &CrostonKind() ? fitted.croston.GetImp()->GetEstimationInfo()
                                       : fitted.model.GetImp()->GetEstimationInfo();
}

}  // namespace tsx::cli
