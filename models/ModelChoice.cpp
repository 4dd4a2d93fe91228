#include "models/ModelChoice.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <tsfcore/MV.h>

#include "models/Classes.h"

namespace tsx::models {
namespace {

// The normalised BIC for ranking. It is the logarithm of the MSE at heart, so a perfect fit leaves
// it undefined and ranks first.
double RankingBic(const EstimationInfo& info) {
  const double bic = info.GetGOFStat(BFSharedConst::kNormBayesIC);
  if (bic != MV::gMissingValue && std::isfinite(bic)) return bic;
  const bool perfect = info.GetGOFStat(BFSharedConst::kMeanSqrErr) == 0;
  const double infinity = std::numeric_limits<double>::infinity();
  return perfect ? -infinity : infinity;
}

// Why seasons cannot go with the series, whatever its values.
Fault FindSeasonFault(const std::string& part, const Task& task) {
  const HostWords& words = *task.request.words;
  if (part.empty()) return {};
  if (task.season_length < 2) {
    return {part + " needs a season, and " + task.series.axis->name + " times have none; " +
                words.give_season,
            AtValue(0)};
  }
  if (HasGaps(task.series)) {
    return {part + " has seasons, which gaps would shift; " + words.leave_gaps_out +
                " or choose a model without",
            AtValue(0)};
  }
  return {};
}

Fault FindFaultOf(const KindInfo& kind, const Task& task) {
  const ModelClass& its = ClassOf(kind);
  if (Fault fault = FindSeasonFault(its.SeasonalPart(kind, task.request), task)) return fault;
  return its.FindFault(task);
}

// Fits one kind and keeps its model in place of any other.
void Take(const KindInfo& kind, const Task& task, SeriesFit& fit) {
  Fitting fitting = ClassOf(kind).Fit(kind, task);
  fit.candidates.push_back({&kind, fitting.model != nullptr, fitting.fault});
  if (fitting.model == nullptr) return;
  fit.kind = &kind;
  fit.model = std::move(fitting.model);
  if (LeavesChoice(task.request) && fitting.search) {
    fit.choice = {.reason = Choice::Reason::kSearched, .search = *fitting.search};
  }
}

// Fits one kind, and keeps its model where it is better than those before.
void Try(const KindInfo& kind, const Task& task, SeriesFit& fit, double& best) {
  Fitting fitting = ClassOf(kind).Fit(kind, task);
  Candidate candidate = {&kind, fitting.model != nullptr, fitting.fault};
  if (candidate.fitted) {
    candidate.bic = RankingBic(fitting.model->Estimation());
    if (fit.model == nullptr || candidate.bic < best) {
      best = candidate.bic;
      fit.kind = &kind;
      fit.model = std::move(fitting.model);
    }
  }
  fit.candidates.push_back(std::move(candidate));
}

void Compare(const Task& task, SeriesFit& fit) {
  double best = 0;
  for (const ModelClass* one : Classes()) {
    for (const KindInfo& kind : one->Kinds()) {
      const bool open = one->IsCompared(kind, task.request) && !FindFaultOf(kind, task);
      if (open) Try(kind, task, fit, best);
    }
  }
  if (fit.model != nullptr) fit.choice = ChoiceAmong(fit.candidates);
}

void Choose(const Task& task, SeriesFit& fit) {
  const std::optional<Claim> claim = FindClaim(task.series);
  if (!claim) return Compare(task, fit);
  Take(*claim->kind, task, fit);
  fit.choice = {.reason = Choice::Reason::kClaimed, .claim = *claim};
}

bool IsPerfect(const Candidate& candidate) {
  return candidate.bic == -std::numeric_limits<double>::infinity();
}

// Those that were fitted, the best first.
std::vector<Candidate> Ranked(std::vector<Candidate> candidates) {
  std::erase_if(candidates, [](const Candidate& candidate) { return !candidate.fitted; });
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.bic < b.bic; });
  return candidates;
}

}  // namespace

Fault FindFault(const Task& task) {
  const KindInfo* const kind = task.request.kind;
  if (Fault fault = {task.series.axis->Fault(), AtValue(0)}) return fault;
  return kind != nullptr ? FindFaultOf(*kind, task) : Fault{};
}

SeriesFit FitSeries(const Series& series, const ModelRequest& request) {
  SeriesFit fit;
  fit.series = &series;
  fit.season_length = request.season_length != 0 ? request.season_length
                                                 : std::max(series.axis->SeasonLength(), 1U);
  const Task task = {series, request, fit.season_length};
  fit.fault = FindFault(task);
  if (fit.fault) return fit;

  request.kind != nullptr ? Take(*request.kind, task, fit) : Choose(task, fit);
  // Simple smoothing goes with every series, so there is always a kind that was tried.
  if (IsHopeless(fit)) fit.fault = fit.candidates.front().refusal;
  return fit;
}

Choice ChoiceAmong(const std::vector<Candidate>& candidates) {
  const std::vector<Candidate> ranked = Ranked(candidates);
  Choice choice;
  choice.kinds = ranked.size();
  choice.bic = ranked[0].bic;
  choice.reason = Choice::Reason::kAlone;
  if (ranked.size() == 1) return choice;

  choice.reason = Choice::Reason::kLowestCriterion;
  choice.next = ranked[1].kind;
  choice.next_bic = ranked[1].bic;
  if (!IsPerfect(ranked[0])) return choice;
  choice.reason = Choice::Reason::kPerfect;
  choice.kinds = static_cast<std::size_t>(std::count_if(ranked.begin(), ranked.end(), IsPerfect));
  return choice;
}

}  // namespace tsx::models
