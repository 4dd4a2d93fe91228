#include "cli/ModelChoice.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <tsfcore/MV.h>
#include <tsffit/Smoothing.h>

#include "cli/Text.h"

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
void Explain(Candidate& candidate, const Series& series, const tsffit::SmoothingFit& fit) {
  const bool blamesValue =
      fit.status == tsffit::FitStatus::kNotPositive || fit.status == tsffit::FitStatus::kNegative;
  const std::size_t blamed = blamesValue ? fit.bad_case : 0;
  candidate.refused_at = series.places[blamed];
  candidate.refusal = (blamesValue ? NumberText(series.values[blamed]) + ": " : "") + fit.message;
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
    Explain(candidate, *fitted.series, fit);
  }
  fitted.candidates.push_back(candidate);
}

bool HasGaps(const Series& series) { return series.cases.size() < series.axis->CaseCount(); }

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

}  // namespace

FittedSeries FitSeries(const Series& series, const ModelRequest& request) {
  FittedSeries fitted;
  fitted.series = &series;
  const DateAxis& axis = *series.axis;
  fitted.season_length =
      request.season_length != 0 ? request.season_length : std::max(axis.SeasonLength(), 1U);
  fitted.fault_place = series.places.front();
  fitted.fault = axis.Fault();
  if (fitted.fault.empty() && request.kind != nullptr) fitted.fault = Misfit(*request.kind, fitted);
  if (!fitted.fault.empty()) return fitted;

  double best = 0;
  for (const KindInfo& kind : AllKinds()) {
    const bool wanted =
        request.kind != nullptr ? &kind == request.kind : IsOpenToChoice(kind, fitted, request);
    if (wanted) Try(kind, request, fitted, best);
  }
  if (fitted.kind == nullptr) {
    fitted.fault = fitted.candidates.front().refusal;
    fitted.fault_place = fitted.candidates.front().refused_at;
  }
  return fitted;
}

std::string ReasonForChoice(const FittedSeries& fitted) {
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
    return std::isfinite(bic) ? FixedText(bic, 3) : std::string("an undefined one");
  };
  return "lowest normalised BIC of " + std::to_string(ranked.size()) + " kinds, " +
         bicText(ranked[0]->bic) + "; next " + ranked[1]->kind->option + " with " +
         bicText(ranked[1]->bic);
}

}  // namespace tsx::cli
