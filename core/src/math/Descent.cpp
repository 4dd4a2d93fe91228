#include "math/Descent.h"

#include <cmath>
#include <span>
#include <vector>

#include "math/Lbfgs.h"

namespace tsffit {

namespace {

using Function = std::function<double(const Eigen::VectorXd&)>;

// How far above the value at the start an infinite one is taken to stand.
constexpr double kForbidden = 20;

// By central differences; beside the border of a region they are one-sided.
void TakeGradient(const Function& f, double difference, Eigen::VectorXd point, double value,
                  std::span<double> gradient) {
  for (Eigen::Index i = 0; i < point.size(); ++i) {
    const double centre = point[i];
    double width = 0;
    double change = 0;
    for (const double side : {1.0, -1.0}) {
      point[i] = centre + side * difference;
      const double moved = f(point);
      if (!std::isfinite(moved)) continue;
      change += side * (moved - value);
      width += difference;
    }
    point[i] = centre;
    gradient[static_cast<std::size_t>(i)] = width > 0 ? change / width : 0;
  }
}

}  // namespace

double Descend(const Function& f, const DescentOptions& options, Eigen::VectorXd& point) {
  const double start = f(point);
  if (point.size() == 0 || !std::isfinite(start)) return start;
  const auto withGradient = [&](std::span<const double> x, std::span<double> gradient) {
    const Eigen::VectorXd at = Eigen::Map<const Eigen::VectorXd>(x.data(), point.size());
    const double value = f(at);
    if (std::isfinite(value)) TakeGradient(f, options.difference, at, value, gradient);
    return value;
  };
  std::vector<double> x(point.begin(), point.end());
  const LbfgsSummary summary = LowerByLbfgs(withGradient,
                                            {.max_evaluations = options.max_steps,
                                             .absolute_tolerance = options.tolerance,
                                             .forbidden = start + kForbidden},
                                            start, x);
  point = Eigen::Map<const Eigen::VectorXd>(x.data(), point.size());
  return summary.value;
}

}  // namespace tsffit
