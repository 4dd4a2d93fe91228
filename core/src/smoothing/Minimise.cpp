#include "smoothing/Minimise.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <new>
#include <nlopt.h>

namespace tsffit {

namespace {

// Correction pairs that BFGS remembers. More than a fit of a monthly season has parameters.
constexpr unsigned kMemory = 30;

// What stands for an infinite sum of squares, in terms of the sum at the start: high enough for
// the line search to turn back, low enough for its interpolation not to turn back all the way.
constexpr double kForbidden = 4;

struct NloptDelete {
  void operator()(nlopt_opt_s* optimizer) const { nlopt_destroy(optimizer); }
};
using Optimizer = std::unique_ptr<nlopt_opt_s, NloptDelete>;

// The objective as NLopt calls it, and the best point it was asked about: the optimiser's own last
// word after a failed line search may be a worse one.
struct Watched {
  SmoothingProblem& problem;
  std::vector<double> best;
  double best_sse = 0;
  double forbidden = 0;
  int evaluations = 0;
};

double Evaluate(unsigned size, const double* x, double* gradient, void* data) {
  auto& watched = *static_cast<Watched*>(data);
  ++watched.evaluations;
  const std::span<const double> parameters(x, size);
  const double sse = gradient == nullptr ? watched.problem.Sse(parameters)
                                         : watched.problem.Sse(parameters, {gradient, size});
  if (sse < watched.best_sse) {
    watched.best_sse = sse;
    std::copy(x, x + size, watched.best.begin());
  }
  return std::min(sse, watched.forbidden);
}

void Require(nlopt_result result) {
  if (result == NLOPT_OUT_OF_MEMORY) throw std::bad_alloc();
}

Optimizer MakeOptimizer(const SmoothingProblem& problem, const MinimiseOptions& options,
                        Watched& watched) {
  const std::size_t size = problem.Layout().size;
  Optimizer optimizer(nlopt_create(NLOPT_LD_LBFGS, static_cast<unsigned>(size)));
  if (!optimizer) throw std::bad_alloc();
  std::vector<double> lower(size, -std::numeric_limits<double>::infinity());
  std::vector<double> upper(size, std::numeric_limits<double>::infinity());
  std::fill_n(lower.begin(), problem.WeightCount(), 0.0);
  std::fill_n(upper.begin(), problem.WeightCount(), 1.0);
  lower[0] = problem.Traits().least_level_weight;
  if (problem.Traits().season == Season::kMultiplicative) {
    std::fill(lower.begin() + static_cast<std::ptrdiff_t>(problem.Layout().season), lower.end(),
              2 * kLeastSeasonFactor);
  }
  Require(nlopt_set_lower_bounds(optimizer.get(), lower.data()));
  Require(nlopt_set_upper_bounds(optimizer.get(), upper.data()));
  Require(nlopt_set_min_objective(optimizer.get(), Evaluate, &watched));
  Require(nlopt_set_ftol_rel(optimizer.get(), options.function_tolerance));
  Require(nlopt_set_stopval(optimizer.get(), options.exact_sse));
  Require(nlopt_set_maxeval(optimizer.get(), options.max_evaluations));
  Require(nlopt_set_vector_storage(optimizer.get(), kMemory));
  return optimizer;
}

}  // namespace

MinimiseSummary Minimise(SmoothingProblem& problem, const MinimiseOptions& options,
                         std::vector<double>& parameters) {
  Watched watched{.problem = problem, .best = parameters, .best_sse = problem.Sse(parameters)};
  if (std::isfinite(watched.best_sse)) {
    watched.forbidden = kForbidden * watched.best_sse;
    const Optimizer optimizer = MakeOptimizer(problem, options, watched);
    double ignored = 0;
    std::vector<double> x = parameters;
    // Every other failure is a line search that gained nothing more; the best point counts.
    Require(nlopt_optimize(optimizer.get(), x.data(), &ignored));
    parameters = watched.best;
  }
  return {.sse = watched.best_sse, .evaluations = watched.evaluations};
}

}  // namespace tsffit
