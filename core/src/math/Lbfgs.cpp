#include "math/Lbfgs.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <new>
#include <nlopt.h>

namespace tsffit {

namespace {

struct NloptDelete {
  void operator()(nlopt_opt_s* optimizer) const { nlopt_destroy(optimizer); }
};
using Optimizer = std::unique_ptr<nlopt_opt_s, NloptDelete>;

// The function as NLopt calls it, and the best point it was asked about: the optimiser's own last
// word after a failed line search may be a worse one. Exceptions must not pass through its C code.
struct Watched {
  const GradientFunction& f;
  double forbidden = 0;
  std::vector<double> best;
  double best_value = 0;
  int evaluations = 0;
  nlopt_opt_s* optimizer = nullptr;
  std::exception_ptr thrown;
};

double Evaluate(unsigned size, const double* x, double* gradient, void* data) {
  auto& watched = *static_cast<Watched*>(data);
  ++watched.evaluations;
  try {
    const double value = watched.f({x, size}, {gradient, size});
    if (value < watched.best_value) {
      watched.best_value = value;
      watched.best.assign(x, x + size);
    }
    if (std::isfinite(value)) return value;
  } catch (...) {
    watched.thrown = std::current_exception();
    nlopt_force_stop(watched.optimizer);
  }
  std::fill(gradient, gradient + size, 0.0);
  return watched.forbidden;
}

void Require(nlopt_result result) {
  if (result == NLOPT_OUT_OF_MEMORY) throw std::bad_alloc();
}

Optimizer MakeOptimizer(const LbfgsOptions& options, std::size_t size) {
  Optimizer optimizer(nlopt_create(NLOPT_LD_LBFGS, static_cast<unsigned>(size)));
  if (!optimizer) throw std::bad_alloc();
  if (!options.lower.empty()) {
    Require(nlopt_set_lower_bounds(optimizer.get(), options.lower.data()));
  }
  if (!options.upper.empty()) {
    Require(nlopt_set_upper_bounds(optimizer.get(), options.upper.data()));
  }
  Require(nlopt_set_ftol_abs(optimizer.get(), options.absolute_tolerance));
  Require(nlopt_set_ftol_rel(optimizer.get(), options.relative_tolerance));
  Require(nlopt_set_stopval(optimizer.get(), options.target));
  Require(nlopt_set_maxeval(optimizer.get(), options.max_evaluations));
  Require(nlopt_set_vector_storage(optimizer.get(), options.memory));
  return optimizer;
}

}  // namespace

LbfgsSummary LowerByLbfgs(const GradientFunction& f, const LbfgsOptions& options, double start,
                          std::vector<double>& x) {
  const Optimizer optimizer = MakeOptimizer(options, x.size());
  Watched watched{.f = f,
                  .forbidden = options.forbidden,
                  .best = x,
                  .best_value = start,
                  .optimizer = optimizer.get(),
                  .thrown = nullptr};
  Require(nlopt_set_min_objective(optimizer.get(), Evaluate, &watched));
  double ignored = 0;
  // Every other failure is a line search that gained nothing more; the best point counts.
  Require(nlopt_optimize(optimizer.get(), x.data(), &ignored));
  if (watched.thrown) std::rethrow_exception(watched.thrown);
  x = std::move(watched.best);
  return {.value = watched.best_value, .evaluations = watched.evaluations};
}

}  // namespace tsffit
