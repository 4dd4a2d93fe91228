#include "arima/fit/Search.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "arima/fit/StartingPoints.h"
#include "arima/fit/Target.h"

namespace tsffit {

namespace {

// What neighbours of these values gave is told by docs/decisions.md, "The constants of the search
// for ARIMA coefficients". Gains and differences are of the log-likelihood.

// Every start is followed until its place among the others shows. A gain of 0.01 misses twice as
// many maxima, one of 1e-6 one fewer for 6 % more evaluations; 20 steps miss one more, 120 no
// fewer.
constexpr Effort kScreen = {.gain = 1e-4, .steps = 60};

// So many of them go on, unless they have come to the same place: candidates nearer than kSame
// have. One finds as much on the series tried, the second costs 2 % of the evaluations; from 1e-5
// to 0.1 the difference moves those alone, by 1 %.
constexpr std::size_t kFinalists = 2;
constexpr double kSame = 1e-3;

// To the end, and begun anew there until that gains nothing. With a gain of 1e-8 four times as many
// solutions stay more than 1e-5 below the best, with 50 steps one more. Two rounds confirm all but
// one solution in 460; what counts as nothing may be 1e-9 or 1e-5.
constexpr Effort kPolish = {.gain = 1e-10, .steps = 200};
constexpr int kRounds = 5;
constexpr double kNothingGained = 1e-7;

// The coordinate from which a partial autocorrelation counts as taken to 1: that of 0.9993. From 5
// on it would be that of 0.9999, which searches do not always reach: four more solutions in 460
// stay beside the circle, 1e-5 below it.
constexpr double kNearCircle = 4;

// The coordinate of a partial autocorrelation that is 1 in double precision: that of 1 - 8.5e-18.
constexpr double kOnCircle = 20;

// What may be lost by putting it there; from 1e-8 to 1e-4 the solutions are as good.
constexpr double kNothingLost = 1e-6;

void Screen(Target& target, std::vector<Candidate>& candidates) {
  for (Candidate& candidate : candidates) {
    candidate.value = target.Minimise(kScreen, candidate.point);
  }
  KeepBest(kFinalists, candidates);
  const bool same = candidates.size() > 1 && candidates[1].value < candidates[0].value + kSame;
  if (same) candidates.resize(1);
}

// Whether a search begun anew gained nothing in the end.
bool Polish(Target& target, Candidate& candidate) {
  for (int round = 0; round < kRounds; ++round) {
    const double before = candidate.value;
    candidate.value = target.Minimise(kPolish, candidate.point);
    if (before - candidate.value < kNothingGained) return true;
  }
  return false;
}

// The search only approaches roots on the unit circle, where the likelihood of an MA factor may
// have its maximum: puts those partial autocorrelations there that it has taken near, where nothing
// is lost by it.
void Settle(Target& target, const SearchSpace& space, Candidate& best) {
  Eigen::Index at = 0;
  for (const Block& block : space.Blocks()) {
    for (std::size_t i = 0; i < block.Count(); ++i, ++at) {
      if (block.kind != BlockKind::kMa || !block.HasPartials()) continue;
      if (std::abs(best.point[at]) < kNearCircle) continue;
      Eigen::VectorXd settled = best.point;
      settled[at] = std::copysign(kOnCircle, settled[at]);
      const double value = target(settled);
      if (value <= best.value + kNothingLost) best = {settled, value};
    }
  }
}

// The most likely point of the space: starts, screening, the best two to the end, roots onto the
// circle.
ArimaSearchResult SearchArima(const Likelihood& likelihood, const SearchSpace& space) {
  Target target(likelihood, space);
  std::vector<Candidate> candidates = StartingPoints(likelihood, space, target);
  ArimaSearchResult result{.starts = static_cast<int>(candidates.size())};
  Screen(target, candidates);
  Candidate best;
  for (Candidate& candidate : candidates) {
    const bool converged = Polish(target, candidate);
    if (!IsBetter(candidate, best)) continue;
    best = candidate;
    result.converged = converged;
  }
  if (best.value == std::numeric_limits<double>::infinity()) return result;
  Settle(target, space, best);
  result.best = target.At(best.point);
  result.evaluations = target.Evaluations();
  return result;
}

// The linear coefficient, by its place in LinearPositions, at `position` in the parameter vector.
std::size_t LinearAt(const Design& design, std::size_t position) {
  const std::vector<std::size_t>& positions = design.LinearPositions();
  return static_cast<std::size_t>(std::find(positions.begin(), positions.end(), position) -
                                  positions.begin());
}

bool LeaveOutRunaways(const SearchSpace& space, const std::vector<double>& solution,
                      Likelihood& likelihood) {
  bool any = false;
  for (const Block& block : space.Blocks()) {
    if (block.kind != BlockKind::kDecay || !IsAtEdge(block, solution)) continue;
    std::vector<double> limit = solution;
    limit[block.first] = std::round(solution[block.first]);
    const std::size_t size = LinearAt(likelihood.GetDesign(), block.first - 1);
    any = likelihood.LeaveOutRunaway(size, limit) || any;
  }
  return any;
}

}  // namespace

ArimaSolution SolveArima(Likelihood& likelihood) {
  for (;;) {
    SearchSpace space(likelihood.GetDesign().Spec(), likelihood.LeftOut());
    ArimaSearchResult found = SearchArima(likelihood, space);
    if (found.best.usable && LeaveOutRunaways(space, found.best.parameters, likelihood)) continue;
    return {.space = std::move(space), .found = std::move(found)};
  }
}

}  // namespace tsffit
