#ifndef TSFFIT_SMOOTHING_MINIMISE_H_
#define TSFFIT_SMOOTHING_MINIMISE_H_

#include <vector>

#include "smoothing/SmoothingProblem.h"

namespace tsffit {

struct MinimiseOptions {
  int max_evaluations = 1000;
  // Stop when a step lowers the sum of squares by less than this share of it.
  double function_tolerance = 1e-9;
  double exact_sse = 0;  // stop below this: what is left is rounding
};

struct MinimiseSummary {
  double sse = 0;
  int evaluations = 0;
};

// Lowers the sum of squares from `parameters`, which is replaced by the best point met, weights
// kept in their bounds. NLopt's limited-memory BFGS (Nocedal 1980, "Updating quasi-Newton matrices
// with limited storage", Mathematics of Computation 35; the code is Luksan's) with exact
// gradients. A start outside the region of a multiplicative model stays where it is, with an
// infinite sum.
MinimiseSummary Minimise(SmoothingProblem& problem, const MinimiseOptions& options,
                         std::vector<double>& parameters);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_MINIMISE_H_
