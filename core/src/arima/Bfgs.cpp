#include "arima/Bfgs.h"

#include <algorithm>
#include <cmath>

namespace tsffit {

namespace {

using Function = std::function<double(const Eigen::VectorXd&)>;

// Beside a region's border the difference is one-sided.
Eigen::VectorXd Gradient(const Function& f, const Eigen::VectorXd& point, double value,
                         double step) {
  Eigen::VectorXd gradient(point.size());
  Eigen::VectorXd moved = point;
  for (Eigen::Index i = 0; i < point.size(); ++i) {
    moved[i] = point[i] + step;
    double up = f(moved);
    moved[i] = point[i] - step;
    double down = f(moved);
    moved[i] = point[i];
    double width = 2 * step;
    if (!std::isfinite(up)) up = value, width -= step;
    if (!std::isfinite(down)) down = value, width -= step;
    gradient[i] = width > 0 ? (up - down) / width : 0;
  }
  return gradient;
}

void Update(Eigen::MatrixXd& inverse, const Eigen::VectorXd& step, const Eigen::VectorXd& change,
            bool first) {
  const double curvature = step.dot(change);
  if (!(curvature > 1e-12 * step.norm() * change.norm())) return;
  if (first) inverse *= curvature / change.squaredNorm();
  const Eigen::VectorXd image = inverse * change;
  inverse += (curvature + change.dot(image)) / (curvature * curvature) * step * step.transpose() -
             (image * step.transpose() + step * image.transpose()) / curvature;
}

}  // namespace

BfgsResult MinimiseBfgs(const Function& f, const BfgsOptions& options, Eigen::VectorXd& point) {
  BfgsResult result{.value = f(point), .converged = point.size() == 0};
  if (result.converged || !std::isfinite(result.value)) return result;
  Eigen::MatrixXd inverse = Eigen::MatrixXd::Identity(point.size(), point.size());
  Eigen::VectorXd gradient = Gradient(f, point, result.value, options.difference);
  bool fresh = true;  // `inverse` holds no curvature yet
  int small = 0;
  for (int iteration = 0; iteration < options.max_iterations; ++iteration) {
    Eigen::VectorXd direction = -inverse * gradient;
    double slope = direction.dot(gradient);
    if (!(slope < 0)) {
      inverse.setIdentity();
      direction = -gradient;
      slope = -gradient.squaredNorm();
      fresh = true;
    }
    const double longest = direction.cwiseAbs().maxCoeff();
    double length = longest > 1 ? 1 / longest : 1;

    Eigen::VectorXd next = point + length * direction;
    double value = f(next);
    while (!(value <= result.value + 1e-4 * length * slope) && length * longest > 1e-9) {
      length *= std::isfinite(value) ? 0.35 : 0.1;
      next = point + length * direction;
      value = f(next);
    }
    if (!(value < result.value)) {  // no step gains anything
      if (fresh) {
        result.converged = gradient.cwiseAbs().maxCoeff() < 1e-3 * std::max(1.0, std::abs(value));
        return result;
      }
      inverse.setIdentity();
      fresh = true;
      continue;
    }
    const Eigen::VectorXd before = gradient;
    gradient = Gradient(f, next, value, options.difference);
    Update(inverse, next - point, gradient - before, fresh);
    fresh = false;
    small = result.value - value < options.tolerance ? small + 1 : 0;
    point = next;
    result.value = value;
    if (small == 2 || gradient.cwiseAbs().maxCoeff() < 1e-7) {
      result.converged = true;
      return result;
    }
  }
  return result;
}

}  // namespace tsffit
