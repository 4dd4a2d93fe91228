#include "arima/fit/StartingPoints.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

#include "arima/fit/Starts.h"

namespace tsffit {

namespace {

// What neighbours of these values gave is told by docs/decisions.md, "The constants of the search
// for ARIMA coefficients". Gains are of the log-likelihood.

// The conditional solution is a start, no more: gains from 1e-5 to 0.1 and 10 to 100 steps lead to
// the same maxima.
constexpr Effort kConditional = {.gain = 1e-3, .steps = 30};

// Points spread over the region, for models in which no cycles can cancel. The series tried do
// without them, but have neither denominators nor gaps between lags.
constexpr Spread kSpread[] = {{.ar = 0.8, .ma = 0.5, .denominator = 0.6},
                              {.ar = -0.5, .ma = -0.6, .denominator = -0.5},
                              {.ar = 0.5, .ma = -0.5, .denominator = 0.9}};

// Where factors nearly cancel beside the circle, a maximum is too narrow to be met by chance:
// without these points five times as many are missed.
constexpr Spread kBesideTheCircle[] = {{.ar = 0.9, .ma = 0.98, .denominator = 0.3},
                                       {.ar = -0.9, .ma = -0.98, .denominator = 0}};

// Cycles whose roots nearly cancel, theta's beside the circle or phi's: without the first four
// times as many maxima are missed, without the second three times.
constexpr Cycle kCycles[] = {{.ar = 0.95, .ma = 0.995}, {.ar = 0.98, .ma = 0.95}};

// Closer together than a cycle of these moduli is wide: 16 miss nearly three times as many maxima,
// 32 and 128 one fewer.
constexpr int kFrequencies = 64;

// The highest peaks of each cycle's line: 2 miss half as many maxima again, 8 one fewer for a fifth
// more evaluations.
constexpr std::size_t kPeaks = 4;

// Enough to rank them: 5 steps miss nearly twice as many maxima, 40 no fewer for 8 % more
// evaluations; a gain of 0.1 misses half as many again.
constexpr Effort kPeak = {.gain = 1e-2, .steps = 15};

// One misses nearly twice as many maxima, four no fewer for 9 % more evaluations.
constexpr std::size_t kKeptPeaks = 2;

// Models with one kind of noise factor alone have one optimum in all but odd cases; others may have
// several.
bool IsSimple(const SearchSpace& space) {
  if (space.Has(BlockKind::kAr) && space.Has(BlockKind::kMa)) return false;
  return std::all_of(space.Blocks().begin(), space.Blocks().end(), [](const Block& block) {
    return block.HasPartials() && (block.kind == BlockKind::kAr || block.kind == BlockKind::kMa);
  });
}

bool HasCycles(const SearchSpace& space) { return CycleStart(space, {}).has_value(); }

// Whether there is another solution that is conditional on the first cases: it takes no missing
// values.
bool HasConditional(const Likelihood& likelihood) {
  return likelihood.Method() != ArimaMethod::kCls && likelihood.GetDesign().IsComplete();
}

// The least squares conditional on the first cases, sought from `start`.
Eigen::VectorXd ConditionalSolution(const Likelihood& likelihood, const SearchSpace& space,
                                    Eigen::VectorXd start) {
  const Likelihood conditional(likelihood.GetDesign(), ArimaMethod::kCls);
  Target target(conditional, space);
  target.Minimise(kConditional, start);
  return start;
}

std::vector<Eigen::VectorXd> FixedPoints(const Likelihood& likelihood, const SearchSpace& space) {
  std::vector<Eigen::VectorXd> starts;
  const std::optional<Eigen::VectorXd> regression = HannanRissanenStart(likelihood, space);
  if (regression) starts.push_back(*regression);
  starts.push_back(SpreadStart(space, {}));
  if (IsSimple(space)) return starts;

  if (regression && HasConditional(likelihood)) {
    starts.push_back(ConditionalSolution(likelihood, space, *regression));
  }
  // Peaks of cycles take the place of points spread over the region.
  if (!HasCycles(space) || space.Has(BlockKind::kStable)) {
    for (const Spread& spread : kSpread) starts.push_back(SpreadStart(space, spread));
  }
  for (const Spread& spread : kBesideTheCircle) starts.push_back(SpreadStart(space, spread));
  return starts;
}

// The highest peaks of the likelihood along the frequencies of a cycle.
std::vector<Candidate> PeaksOf(Target& target, const SearchSpace& space, Cycle cycle) {
  std::vector<Candidate> line;
  for (int i = 0; i < kFrequencies; ++i) {
    cycle.frequency = std::numbers::pi * (i + 0.5) / kFrequencies;
    const Eigen::VectorXd point = *CycleStart(space, cycle);
    line.push_back({point, target(point)});
  }
  std::vector<Candidate> peaks;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool rises = i == 0 || IsBetter(line[i], line[i - 1]);
    const bool falls = i + 1 == line.size() || !IsBetter(line[i + 1], line[i]);
    if (rises && falls && std::isfinite(line[i].value)) peaks.push_back(line[i]);
  }
  KeepBest(kPeaks, peaks);
  return peaks;
}

// Where two AR and two MA terms nearly cancel at some frequency, a maximum is too narrow to be met
// from another one. The likelihood along the frequencies shows where it may be.
std::vector<Candidate> CyclePoints(Target& target, const SearchSpace& space) {
  std::vector<Candidate> candidates;
  if (!HasCycles(space)) return candidates;
  for (const Cycle& cycle : kCycles) {
    for (Candidate& peak : PeaksOf(target, space, cycle)) {
      peak.value = target.Minimise(kPeak, peak.point);
      candidates.push_back(std::move(peak));
    }
  }
  KeepBest(kKeptPeaks, candidates);
  return candidates;
}

}  // namespace

std::vector<Candidate> StartingPoints(const Likelihood& likelihood, const SearchSpace& space,
                                      Target& target) {
  std::vector<Candidate> candidates = CyclePoints(target, space);
  for (Eigen::VectorXd& start : FixedPoints(likelihood, space)) {
    candidates.push_back({std::move(start)});
  }
  return candidates;
}

}  // namespace tsffit
