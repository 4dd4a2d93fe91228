#include "math/Descent.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <new>
#include <nlopt.h>

namespace tsffit {

namespace {

using Function = std::function<double(const Eigen::VectorXd&)>;

// What stands for an infinite value, above that of the start: high enough for the line search to
// turn back, low enough for its interpolation to go on.
constexpr double kForbidden = 20;

struct NloptDelete {
  void operator()(nlopt_opt_s* optimizer) const { nlopt_destroy(optimizer); }
};
using Optimizer = std::unique_ptr<nlopt_opt_s, NloptDelete>;

// The function as NLopt calls it, and the best point it was asked about. Exceptions must not pass
// through the optimiser's C code.
struct Watched {
  const Function& f;
  double difference = 0;
  double forbidden = 0;
  Eigen::VectorXd best;
  double best_value = 0;
  nlopt_opt_s* optimizer = nullptr;
  std::exception_ptr thrown;
};

// Beside the border of a region the difference is one-sided.
void TakeGradient(const Watched& watched, Eigen::VectorXd point, double value, double* gradient) {
  for (Eigen::Index i = 0; i < point.size(); ++i) {
    const double centre = point[i];
    double width = 0;
    double change = 0;
    for (const double side : {1.0, -1.0}) {
      point[i] = centre + side * watched.difference;
      const double moved = watched.f(point);
      if (!std::isfinite(moved)) continue;
      change += side * (moved - value);
      width += watched.difference;
    }
    point[i] = centre;
    gradient[i] = width > 0 ? change / width : 0;
  }
}

double Evaluate(unsigned size, const double* x, double* gradient, void* data) {
  auto& watched = *static_cast<Watched*>(data);
  try {
    const Eigen::VectorXd point = Eigen::Map<const Eigen::VectorXd>(x, size);
    const double value = watched.f(point);
    if (value < watched.best_value) {
      watched.best_value = value;
      watched.best = point;
    }
    if (std::isfinite(value) && gradient != nullptr) TakeGradient(watched, point, value, gradient);
    if (std::isfinite(value)) return value;
  } catch (...) {
    watched.thrown = std::current_exception();
    nlopt_force_stop(watched.optimizer);
  }
  if (gradient != nullptr) std::fill(gradient, gradient + size, 0.0);
  return watched.forbidden;
}

void Require(nlopt_result result) {
  if (result == NLOPT_OUT_OF_MEMORY) throw std::bad_alloc();
}

}  // namespace

double Descend(const Function& f, const DescentOptions& options, Eigen::VectorXd& point) {
  Watched watched{.f = f,
                  .difference = options.difference,
                  .forbidden = 0,
                  .best = point,
                  .best_value = f(point),
                  .optimizer = nullptr,
                  .thrown = nullptr};
  if (point.size() == 0 || !std::isfinite(watched.best_value)) return watched.best_value;
  watched.forbidden = watched.best_value + kForbidden;

  const auto size = static_cast<unsigned>(point.size());
  const Optimizer optimizer(nlopt_create(NLOPT_LD_LBFGS, size));
  if (!optimizer) throw std::bad_alloc();
  watched.optimizer = optimizer.get();
  Require(nlopt_set_min_objective(optimizer.get(), Evaluate, &watched));
  Require(nlopt_set_ftol_abs(optimizer.get(), options.tolerance));
  Require(nlopt_set_maxeval(optimizer.get(), options.max_steps));
  double ignored = 0;
  Eigen::VectorXd x = point;
  // Every other failure is a line search that gained nothing more; the best point counts.
  Require(nlopt_optimize(optimizer.get(), x.data(), &ignored));
  if (watched.thrown) std::rethrow_exception(watched.thrown);
  point = watched.best;
  return watched.best_value;
}

}  // namespace tsffit
