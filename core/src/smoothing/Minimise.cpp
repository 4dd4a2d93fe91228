#include "smoothing/Minimise.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "math/Lbfgs.h"

namespace tsffit {

namespace {

// Correction pairs that BFGS remembers. More than a fit of a monthly season has parameters.
constexpr unsigned kMemory = 30;

// What no sum of squares is told to exceed, the infinite ones outside the region of a
// multiplicative model least of all, in terms of the sum at the start.
constexpr double kForbidden = 4;

// Weights stay in their box, seasonal factors of a multiplicative model in its region.
void SetBounds(const SmoothingProblem& problem, LbfgsOptions& options) {
  const std::size_t size = problem.Layout().size;
  options.lower.assign(size, -std::numeric_limits<double>::infinity());
  options.upper.assign(size, std::numeric_limits<double>::infinity());
  std::fill_n(options.lower.begin(), problem.WeightCount(), 0.0);
  std::fill_n(options.upper.begin(), problem.WeightCount(), 1.0);
  options.lower[0] = problem.Traits().least_level_weight;
  if (problem.Traits().season == Season::kMultiplicative) {
    std::fill(options.lower.begin() + static_cast<std::ptrdiff_t>(problem.Layout().season),
              options.lower.end(), 2 * kLeastSeasonFactor);
  }
}

}  // namespace

MinimiseSummary Minimise(SmoothingProblem& problem, const MinimiseOptions& options,
                         std::vector<double>& parameters) {
  const double start = problem.Sse(parameters);
  if (!std::isfinite(start)) return {.sse = start};
  const double forbidden = kForbidden * start;
  const auto sse = [&](std::span<const double> x, std::span<double> gradient) {
    return std::min(problem.Sse(x, gradient), forbidden);
  };
  LbfgsOptions lbfgs{.max_evaluations = options.max_evaluations,
                     .relative_tolerance = options.function_tolerance,
                     .target = options.exact_sse,
                     .forbidden = forbidden,
                     .memory = kMemory};
  SetBounds(problem, lbfgs);
  const LbfgsSummary summary = LowerByLbfgs(sse, lbfgs, start, parameters);
  return {.sse = summary.value, .evaluations = summary.evaluations};
}

}  // namespace tsffit
