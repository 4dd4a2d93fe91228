#ifndef TSFFIT_SMOOTHING_STDERRORS_H_
#define TSFFIT_SMOOTHING_STDERRORS_H_

#include <Eigen/Core>
#include <vector>

#include "smoothing/LeastSquares.h"

namespace tsffit {

// Standard errors of the weights at the least-squares solution: the roots of the diagonal of
// s^2 (J'J)^-1 (Seber and Wild 1989, "Nonlinear regression", equation 2.23), s^2 = SSE / (n -
// number of weights), J the Jacobian by weights and starting components together, so that the
// uncertainty of the starting components counts. Weights on a bound are taken as known; theirs is
// missing, and so is that of a weight which the errors do not depend on.
std::vector<double> WeightStdErrors(const SmoothingProblem& problem,
                                    const Eigen::VectorXd& parameters);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_STDERRORS_H_
