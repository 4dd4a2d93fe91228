#ifndef TSFFIT_SMOOTHING_STARTS_H_
#define TSFFIT_SMOOTHING_STARTS_H_

#include <Eigen/Core>
#include <vector>

#include "smoothing/LeastSquares.h"

namespace tsffit {

// Weight vectors spread over the box, the ones that look dull but often win included: weights on
// their bounds. All zero comes first.
std::vector<std::vector<double>> SpreadWeights(const KindTraits& traits);

// Components before the first case, from which the least-squares search sets out: 0 where the
// errors are affine in them (one Gauss-Newton step solves for them), the classical decomposition
// by a centred moving average (2 x m for even m) where they are not.
Components RoughStart(const SmoothingProblem& problem);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_STARTS_H_
