#include "smoothing/BoundedLeastSquares.h"

#include <Eigen/Cholesky>
#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace tsffit {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;
using Normal = SmoothingProblem::NormalEquations;

constexpr double kLeastDamping = 1e-12;
constexpr double kMostDamping = 1e12;

struct Box {
  double lower;
  double upper;
};

Box BoundsOf(const KindTraits& traits, Index weight) {
  return {weight == 0 ? traits.least_level_weight : 0, 1};
}

// One damped Gauss-Newton step inside the box.
class BoxStep {
 public:
  BoxStep(const SmoothingProblem& problem, const VectorXd& at, const Normal& normal, bool holdWeights)
      : problem_(problem), at_(at), normal_(normal) {
    held_.assign(static_cast<std::size_t>(at.size()), false);
    for (Index w = 0; w < problem.WeightCount(); ++w) {
      held_[static_cast<std::size_t>(w)] = holdWeights || PushesOutward(w);
    }
  }

  // The step for one damping factor; every component finite.
  VectorXd Solve(double damping) const {
    std::vector<bool> held = held_;
    VectorXd step = VectorXd::Zero(at_.size());
    while (SolveFree(damping, held, step) && StopAtBounds(held, step)) {
    }
    return step;
  }

  // How far the quadratic model of half the sum of squares falls along `step`.
  double Predicted(const VectorXd& step) const {
    const VectorXd product = normal_.matrix.selfadjointView<Eigen::Lower>() * step;
    return -normal_.gradient.dot(step) - 0.5 * step.dot(product);
  }

 private:
  bool PushesOutward(Index w) const {
    const Box box = BoundsOf(problem_.Traits(), w);
    return (at_[w] <= box.lower && normal_.gradient[w] >= 0) ||
           (at_[w] >= box.upper && normal_.gradient[w] <= 0);
  }

  // Solves for what is not held, given the steps of what is. False when nothing is free.
  bool SolveFree(double damping, const std::vector<bool>& held, VectorXd& step) const {
    std::vector<Index> free;
    for (Index i = 0; i < step.size(); ++i) {
      if (!held[static_cast<std::size_t>(i)]) free.push_back(i);
    }
    if (free.empty()) return false;
    const auto count = static_cast<Index>(free.size());
    const double floor = 1e-12 * normal_.matrix.diagonal().maxCoeff() +
                         std::numeric_limits<double>::min();
    MatrixXd matrix(count, count);
    VectorXd right(count);
    for (Index c = 0; c < count; ++c) {
      const Index from = free[static_cast<std::size_t>(c)];
      for (Index r = c; r < count; ++r) {
        matrix(r, c) = normal_.matrix(free[static_cast<std::size_t>(r)], from);
      }
      matrix(c, c) += damping * (matrix(c, c) + floor);
      right[c] = -normal_.gradient[from];
      for (Index w = 0; w < problem_.WeightCount(); ++w) {
        if (held[static_cast<std::size_t>(w)]) {
          right[c] -= normal_.matrix(std::max(w, from), std::min(w, from)) * step[w];
        }
      }
    }
    const VectorXd solution = matrix.selfadjointView<Eigen::Lower>().ldlt().solve(right);
    for (Index c = 0; c < count; ++c) {
      step[free[static_cast<std::size_t>(c)]] = std::isfinite(solution[c]) ? solution[c] : 0;
    }
    return true;
  }

  // Shortens weights that would leave the box and holds them. False when none would.
  bool StopAtBounds(std::vector<bool>& held, VectorXd& step) const {
    bool any = false;
    for (Index w = 0; w < problem_.WeightCount(); ++w) {
      if (held[static_cast<std::size_t>(w)]) continue;
      const Box box = BoundsOf(problem_.Traits(), w);
      const double inside = std::clamp(step[w], box.lower - at_[w], box.upper - at_[w]);
      if (inside == step[w]) continue;
      step[w] = inside;
      held[static_cast<std::size_t>(w)] = true;
      any = true;
    }
    return any;
  }

  const SmoothingProblem& problem_;
  const VectorXd& at_;
  const Normal& normal_;
  std::vector<bool> held_;
};

VectorXd Moved(const SmoothingProblem& problem, const VectorXd& from, const VectorXd& step) {
  VectorXd to = from + step;
  for (Index w = 0; w < problem.WeightCount(); ++w) {
    const Box box = BoundsOf(problem.Traits(), w);
    to[w] = std::clamp(to[w], box.lower, box.upper);
  }
  return to;
}

}  // namespace

SolverSummary Minimise(const SmoothingProblem& problem, const SolverOptions& options,
                       VectorXd& parameters) {
  SolverSummary summary;
  summary.sse = problem.Sse(parameters);
  if (!std::isfinite(summary.sse)) return summary;
  Normal normal;
  double damping = options.initial_damping;
  double growth = 2;
  for (; summary.iterations < options.max_iterations; ++summary.iterations) {
    if (summary.sse <= options.exact_sse) {
      summary.converged = true;
      return summary;
    }
    if (!problem.Linearise(parameters, normal)) return summary;
    const BoxStep boxStep(problem, parameters, normal, options.hold_weights);
    for (;;) {
      const VectorXd step = boxStep.Solve(damping);
      const double predicted = boxStep.Predicted(step);
      if (!(2 * predicted > options.function_tolerance * 1e-3 * summary.sse)) {
        if (damping <= 1) {
          summary.converged = true;
          return summary;
        }
      }
      const VectorXd trial = Moved(problem, parameters, step);
      const double sse = problem.Sse(trial);
      const double decrease = summary.sse - sse;
      if (decrease > 0) {
        const double ratio = decrease / std::max(2 * predicted, std::numeric_limits<double>::min());
        const bool settled = decrease <= options.function_tolerance * sse && damping <= 1;
        parameters = trial;
        summary.sse = sse;
        damping = std::max(kLeastDamping,
                           damping * std::clamp(1 - std::pow(2 * ratio - 1, 3), 0.1, 2.0));
        growth = 2;
        if (settled) {
          summary.converged = true;
          ++summary.iterations;
          return summary;
        }
        break;
      }
      damping *= growth;
      growth *= 2;
      if (!(damping < kMostDamping)) {
        // No step of any length lowers the sum of squares: a stationary point up to rounding, or
        // the edge of a multiplicative model's region.
        summary.converged = std::isfinite(sse);
        return summary;
      }
    }
  }
  return summary;
}

}  // namespace tsffit
