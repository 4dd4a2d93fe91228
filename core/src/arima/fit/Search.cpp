#include "arima/fit/Search.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <utility>

#include "arima/fit/Starts.h"
#include "math/Descent.h"

namespace tsffit {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A likelihood as a function of search coordinates, with a count of its evaluations.
class Target {
 public:
  Target(const Likelihood& likelihood, const SearchSpace& space)
      : likelihood_(likelihood),
        space_(space),
        parameters_(likelihood.GetDesign().Spec().GetParameterCount(true), 0.0) {}

  double operator()(const Eigen::VectorXd& point) {
    ++evaluations_;
    return space_.Parameters(point, parameters_) ? likelihood_.CriterionAt(parameters_) : kInfinity;
  }

  // Per case, so that the curvature is about 1 and a first step along the gradient about right: a
  // longer one ends where the coordinates no longer move the likelihood.
  double Minimise(double tolerance, int steps, Eigen::VectorXd& point) {
    const auto cases = static_cast<double>(likelihood_.GetDesign().Rows());
    const DescentOptions options{.max_steps = steps, .tolerance = tolerance / cases};
    return cases *
           Descend([&](const Eigen::VectorXd& at) { return (*this)(at) / cases; }, options, point);
  }

  Evaluation At(const Eigen::VectorXd& point) {
    space_.Parameters(point, parameters_);
    return likelihood_.At(parameters_);
  }

  int Evaluations() const { return evaluations_; }

 private:
  const Likelihood& likelihood_;
  const SearchSpace& space_;
  std::vector<double> parameters_;
  int evaluations_ = 0;
};

struct Candidate {
  Eigen::VectorXd point;
  double value = kInfinity;
};

// Models with one kind of noise factor alone have one optimum in all but odd cases; others may have
// several.
bool IsSimple(const SearchSpace& space) {
  if (space.Has(BlockKind::kAr) && space.Has(BlockKind::kMa)) return false;
  return std::all_of(space.Blocks().begin(), space.Blocks().end(), [](const Block& block) {
    return block.HasPartials() && (block.kind == BlockKind::kAr || block.kind == BlockKind::kMa);
  });
}

bool HasCycles(const SearchSpace& space) { return CycleStart(space, {}).has_value(); }

std::vector<Eigen::VectorXd> StartingPoints(const Likelihood& likelihood,
                                            const SearchSpace& space) {
  std::vector<Eigen::VectorXd> starts;
  const std::optional<Eigen::VectorXd> regression = HannanRissanenStart(likelihood, space);
  if (regression) starts.push_back(*regression);
  starts.push_back(SpreadStart(space, {}));
  if (IsSimple(space)) return starts;

  if (regression && likelihood.Method() != ArimaMethod::kCls &&
      likelihood.GetDesign().IsComplete()) {
    const Likelihood conditional(likelihood.GetDesign(), ArimaMethod::kCls);
    Target target(conditional, space);
    starts.push_back(*regression);
    target.Minimise(1e-3, 30, starts.back());
  }
  if (!HasCycles(space) || space.Has(BlockKind::kStable)) {
    starts.push_back(SpreadStart(space, {.ar = 0.8, .ma = 0.5, .denominator = 0.6}));
    starts.push_back(SpreadStart(space, {.ar = -0.5, .ma = -0.6, .denominator = -0.5}));
    starts.push_back(SpreadStart(space, {.ar = 0.5, .ma = -0.5, .denominator = 0.9}));
  }
  // Where factors nearly cancel beside the circle, a maximum is too narrow to be met by chance.
  starts.push_back(SpreadStart(space, {.ar = 0.9, .ma = 0.98, .denominator = 0.3}));
  starts.push_back(SpreadStart(space, {.ar = -0.9, .ma = -0.98, .denominator = 0}));
  return starts;
}

bool IsBetter(const Candidate& a, const Candidate& b) { return a.value < b.value; }

void KeepBest(std::size_t count, std::vector<Candidate>& candidates) {
  std::sort(candidates.begin(), candidates.end(), IsBetter);
  candidates.resize(std::min(candidates.size(), count));
}

// The highest peaks of the likelihood along the frequencies of a cycle.
std::vector<Candidate> PeaksOf(Target& target, const SearchSpace& space, Cycle cycle) {
  constexpr int kFrequencies = 64;  // closer together than a cycle of these moduli is wide
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
  KeepBest(4, peaks);
  return peaks;
}

// Where two AR and two MA terms nearly cancel at some frequency, a maximum is too narrow to be met
// from another one. The likelihood along the frequencies shows where it may be.
std::vector<Candidate> CycleCandidates(Target& target, const SearchSpace& space) {
  std::vector<Candidate> candidates;
  if (!HasCycles(space)) return candidates;
  for (const Cycle& cycle : {Cycle{.ar = 0.95, .ma = 0.995}, Cycle{.ar = 0.98, .ma = 0.95}}) {
    for (Candidate& peak : PeaksOf(target, space, cycle)) {
      peak.value = target.Minimise(1e-2, 15, peak.point);
      candidates.push_back(std::move(peak));
    }
  }
  KeepBest(2, candidates);
  return candidates;
}

// The search only approaches roots on the unit circle, where the likelihood of an MA factor may
// have its maximum: puts those partial autocorrelations there that it has taken near, where nothing
// is lost by it.
void Settle(Target& target, const SearchSpace& space, Candidate& best) {
  constexpr double kNear = 4;       // the coordinate of 0.9993
  constexpr double kOnCircle = 20;  // of what is 1 in double precision
  Eigen::Index at = 0;
  for (const Block& block : space.Blocks()) {
    for (std::size_t i = 0; i < block.Count(); ++i, ++at) {
      if (block.kind != BlockKind::kMa || !block.HasPartials()) continue;
      if (std::abs(best.point[at]) < kNear) continue;
      Eigen::VectorXd settled = best.point;
      settled[at] = std::copysign(kOnCircle, settled[at]);
      const double value = target(settled);
      if (value <= best.value + 1e-6) best = {settled, value};
    }
  }
}

// The most likely point of the space.
ArimaSearchResult SearchArima(const Likelihood& likelihood, const SearchSpace& space) {
  Target target(likelihood, space);
  std::vector<Candidate> candidates = CycleCandidates(target, space);
  for (Eigen::VectorXd& start : StartingPoints(likelihood, space)) {
    candidates.push_back({std::move(start)});
  }
  const int starts = static_cast<int>(candidates.size());
  for (Candidate& candidate : candidates) {
    candidate.value = target.Minimise(1e-4, 60, candidate.point);
  }
  std::sort(candidates.begin(), candidates.end(), IsBetter);
  // The best two go on, unless they are the same.
  if (candidates.size() > 1 && candidates[1].value < candidates[0].value + 1e-3) {
    candidates.resize(1);
  }
  candidates.resize(std::min<std::size_t>(candidates.size(), 2));

  ArimaSearchResult result{.starts = starts};
  Candidate best;
  for (Candidate& candidate : candidates) {
    bool converged = false;
    for (int round = 0; round < 5 && !converged; ++round) {
      const double before = candidate.value;
      candidate.value = target.Minimise(1e-10, 200, candidate.point);
      converged = before - candidate.value < 1e-7;
    }
    if (!(candidate.value < best.value)) continue;
    best = candidate;
    result.converged = converged;
  }
  if (best.value == kInfinity) return result;
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
