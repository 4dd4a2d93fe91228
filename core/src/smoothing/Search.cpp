#include "smoothing/Search.h"

#include <algorithm>
#include <cmath>

#include "smoothing/ComponentSolve.h"
#include "smoothing/Minimise.h"
#include "smoothing/Starts.h"

namespace tsffit {

namespace {

struct Candidate {
  std::vector<double> parameters;
  std::size_t start = 0;  // number of the starting point
  double sse = 0;
  int evaluations = 0;
};

// How much is tried.
struct Effort {
  std::size_t followed;  // best candidates that are followed for a while
  int short_run;         // evaluations
  std::size_t finished;  // best of those that are followed to the end
};

// Enough where the surface has one basin of note. When the best point of the first round is not
// reached from a second start, there are several and the second round tries all starts for long.
constexpr Effort kFirstRound = {.followed = 10, .short_run = 22, .finished = 3};
constexpr Effort kSecondRound = {.followed = 200, .short_run = 300, .finished = 8};
constexpr Effort kLongSeries = {.followed = 6, .short_run = 25, .finished = 2};
constexpr int kLongRun = 1000;
constexpr int kRestarts = 10;

// Two sums of squares that differ by less than this share belong to the same basin.
constexpr double kSameBasin = 1e-4;

constexpr std::size_t kLongSeriesCases = 5000;

// Solving for k starting components costs n k^2 where an evaluation costs n.
constexpr std::size_t kManyComponents = 100;

bool CanSolve(const SmoothingProblem& problem) { return problem.Layout().size <= kManyComponents; }

// Equal sums stand in the order of their starts.
void SortBySse(std::vector<Candidate>& candidates) {
  std::sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
    return a.sse < b.sse || (a.sse == b.sse && a.start < b.start);
  });
}

void Follow(SmoothingProblem& problem, const MinimiseOptions& options, Candidate& candidate) {
  const MinimiseSummary summary = Minimise(problem, options, candidate.parameters);
  candidate.sse = summary.sse;
  candidate.evaluations += summary.evaluations;
}

// The rough start with its line laid flat through the first season.
Components Flat(Components start) {
  start.level += start.trend * static_cast<double>(start.season.size()) / 2;
  start.trend = 0;
  return start;
}

// The first of three starts that lies in the region of the model: the rough one, a flat one, and
// one at the mean of the series (1), which does for weights that learn nothing.
std::vector<double> PackInside(SmoothingProblem& problem, const std::vector<double>& weights,
                               const Components& rough) {
  std::vector<double> parameters = problem.Pack(weights, rough);
  if (std::isfinite(problem.Sse(parameters))) return parameters;
  Components flat = Flat(rough);
  parameters = problem.Pack(weights, flat);
  if (std::isfinite(problem.Sse(parameters))) return parameters;
  flat.level = 1;
  return problem.Pack(weights, flat);
}

// Weights that learn nothing leave a line with a fixed season, which a series made by rule fits to
// the last digit: a multiplicative model is solved through for it.
constexpr int kLineSteps = 8;

double SolveStart(SmoothingProblem& problem, std::vector<double>& parameters) {
  double sse = problem.Sse(parameters);
  if (!CanSolve(problem)) return sse;
  const bool ratios = problem.Traits().season == Season::kMultiplicative;
  const int steps = ratios && parameters[0] == 0 ? kLineSteps : 1;
  for (int i = 0; i < steps; ++i) {
    const double before = sse;
    sse = SolveComponents(problem, parameters);
    if (!(sse < before)) break;
  }
  return sse;
}

// Spread weights with their starting components solved for. Ends at a sum that is rounding.
std::vector<Candidate> Spread(SmoothingProblem& problem, double exactSse) {
  const Components rough = RoughStart(problem);
  std::vector<Candidate> candidates;
  for (const auto& weights : SpreadWeights(problem.Traits())) {
    Candidate candidate{PackInside(problem, weights, rough), candidates.size()};
    candidate.sse = SolveStart(problem, candidate.parameters);
    candidates.push_back(std::move(candidate));
    if (candidates.back().sse <= exactSse) break;
  }
  return candidates;
}

// The same weights with flat starting components as they are: for a multiplicative model, whose
// basins depend on the components too.
void AddFlat(SmoothingProblem& problem, std::vector<Candidate>& candidates) {
  if (problem.Traits().season != Season::kMultiplicative) return;
  const Components flat = Flat(RoughStart(problem));
  for (const auto& weights : SpreadWeights(problem.Traits())) {
    Candidate candidate{problem.Pack(weights, flat), candidates.size()};
    candidate.sse = problem.Sse(candidate.parameters);
    candidates.push_back(std::move(candidate));
  }
}

// Follows the best `count` candidates for `evaluations` each; the others are dropped.
void FollowBest(SmoothingProblem& problem, std::size_t count, int evaluations, double exactSse,
                std::vector<Candidate>& candidates) {
  const MinimiseOptions options{.max_evaluations = evaluations, .exact_sse = exactSse};
  candidates.resize(std::min(candidates.size(), count));
  for (Candidate& candidate : candidates) Follow(problem, options, candidate);
  SortBySse(candidates);
}

void Round(SmoothingProblem& problem, const Effort& effort, double exactSse,
           std::vector<Candidate>& candidates) {
  FollowBest(problem, effort.followed, effort.short_run, exactSse, candidates);
  FollowBest(problem, effort.finished, kLongRun, exactSse, candidates);
}

// Whether the two best candidates came to the same place.
bool Confirmed(const std::vector<Candidate>& candidates) {
  return candidates.size() < 2 || candidates[1].sse <= (1 + kSameBasin) * candidates[0].sse;
}

// Runs on until a search begun anew, with BFGS's memory wiped, gains nothing. True when it did so.
bool Finish(SmoothingProblem& problem, double exactSse, Candidate& candidate) {
  const MinimiseOptions options{.max_evaluations = kLongRun, .exact_sse = exactSse};
  for (int run = 0; run < kRestarts; ++run) {
    const double before = candidate.sse;
    Follow(problem, options, candidate);
    if (before - candidate.sse <= options.function_tolerance * before) return true;
  }
  return false;
}

// A weight that the errors do not depend on is 0: the trend's where the level takes up nothing or
// the trend is damped away at once, the season's where the level takes up everything.
void SettleIdleWeights(const KindTraits& traits, std::vector<double>& parameters) {
  const auto at = [&](int weight) -> double& {
    return parameters[static_cast<std::size_t>(weight)];
  };
  const bool idleTrend = parameters[0] == 0 || (traits.damped && at(traits.damping_weight) == 0);
  if (traits.trend_weight >= 0 && idleTrend) at(traits.trend_weight) = 0;
  if (traits.season_weight >= 0 && parameters[0] == 1) at(traits.season_weight) = 0;
}

SearchResult Result(const SmoothingProblem& problem, Candidate&& best, int starts, bool converged) {
  SettleIdleWeights(problem.Traits(), best.parameters);
  return {std::move(best.parameters), best.sse, best.evaluations, starts, converged};
}

}  // namespace

SearchResult Search(SmoothingProblem& problem, double exactSse) {
  std::vector<Candidate> spread = Spread(problem, exactSse);
  const auto starts = static_cast<int>(spread.size());
  if (spread.back().sse <= exactSse) return Result(problem, std::move(spread.back()), starts, true);
  SortBySse(spread);

  std::vector<Candidate> candidates = spread;
  const bool isLong = problem.Series().size() > kLongSeriesCases;
  Round(problem, isLong ? kLongSeries : kFirstRound, exactSse, candidates);
  if (!isLong && !Confirmed(candidates)) {
    candidates = std::move(spread);
    AddFlat(problem, candidates);
    Round(problem, kSecondRound, exactSse, candidates);
  }
  const bool converged = Finish(problem, exactSse, candidates[0]);
  return Result(problem, std::move(candidates[0]), starts, converged);
}

}  // namespace tsffit
