#ifndef TSFFIT_MATH_LBFGS_H_
#define TSFFIT_MATH_LBFGS_H_

#include <functional>
#include <limits>
#include <span>
#include <vector>

namespace tsffit {

// The value of a function at `x`, and its gradient there. The value is infinite outside the
// function's region, and the gradient of no matter.
using GradientFunction =
    std::function<double(std::span<const double> x, std::span<double> gradient)>;

struct LbfgsOptions {
  int max_evaluations = 1000;     // ends with the step in which so many have been made
  double absolute_tolerance = 0;  // stop when a step lowers the value by less; 0: never for this
  double relative_tolerance = 0;  // or by less than this share of it
  double target = -std::numeric_limits<double>::infinity();  // or when the value is below this
  // What stands for an infinite value: high enough for the line search to turn back, low enough for
  // its interpolation not to turn back all the way. 1e300 makes it give up at once.
  double forbidden = 0;
  unsigned memory = 0;          // correction pairs remembered; 0: what the library thinks fit
  std::vector<double> lower{};  // bounds of every coordinate; empty: none
  std::vector<double> upper{};
};

struct LbfgsSummary {
  double value = 0;
  int evaluations = 0;
};

// Lowers `f` from `x`, where it has the finite value `start`; `x` is replaced by the best point
// met. NLopt's limited-memory BFGS (Nocedal 1980, "Updating quasi-Newton matrices with limited
// storage", Mathematics of Computation 35; the code is Luksan's). What `f` throws comes out.
LbfgsSummary LowerByLbfgs(const GradientFunction& f, const LbfgsOptions& options, double start,
                          std::vector<double>& x);

}  // namespace tsffit

#endif  // TSFFIT_MATH_LBFGS_H_
