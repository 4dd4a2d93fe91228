#ifndef TSFFIT_SMOOTHING_BOUNDEDLEASTSQUARES_H_
#define TSFFIT_SMOOTHING_BOUNDEDLEASTSQUARES_H_

#include <Eigen/Core>

#include "smoothing/LeastSquares.h"

namespace tsffit {

struct SolverOptions {
  int max_iterations = 100;
  // Stop when a nearly undamped step lowers the sum of squares by less than this share of it.
  double function_tolerance = 1e-9;
  double exact_sse = 0;  // stop below this: the series is reproduced up to rounding
  double initial_damping = 1e-3;
  bool hold_weights = false;  // search the starting components alone
};

struct SolverSummary {
  double sse = 0;
  int iterations = 0;
  bool converged = false;
};

// Minimises the sum of squares from `parameters` (replaced by the best point found), with weights
// kept in their bounds. Levenberg-Marquardt with Marquardt's scaling (1963, "An algorithm for
// least-squares estimation of nonlinear parameters", SIAM Journal 11) and the damping rule of
// Nielsen (1999, "Damping parameter in Marquardt's method", IMM-REP-1999-05, equation 2.5).
// A weight that sits on a bound with the gradient pointing outward is held; one that a step would
// carry over its bound stops there and the other parameters are solved for again. A start outside
// the region of a multiplicative model has an infinite sum of squares and is left as it is.
SolverSummary Minimise(const SmoothingProblem& problem, const SolverOptions& options,
                       Eigen::VectorXd& parameters);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_BOUNDEDLEASTSQUARES_H_
