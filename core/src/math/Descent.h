#ifndef TSFFIT_MATH_DESCENT_H_
#define TSFFIT_MATH_DESCENT_H_

#include <Eigen/Core>
#include <functional>

namespace tsffit {

struct DescentOptions {
  int max_steps = 200;       // points at which a gradient is taken
  double tolerance = 1e-9;   // stop when a step gains less
  double difference = 1e-5;  // step of the central differences
};

// Lowers `f` from `point`, which is replaced by the best point met; returns its value. NLopt's
// limited-memory BFGS (Nocedal 1980, "Updating quasi-Newton matrices with limited storage",
// Mathematics of Computation 35; the code is Luksan's) with gradients by central differences. `f`
// may be infinite, which turns the line search back. A start where it is infinite stays where it
// is. What `f` throws comes out.
double Descend(const std::function<double(const Eigen::VectorXd&)>& f,
               const DescentOptions& options, Eigen::VectorXd& point);

}  // namespace tsffit

#endif  // TSFFIT_MATH_DESCENT_H_
