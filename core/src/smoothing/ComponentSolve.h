#ifndef TSFFIT_SMOOTHING_COMPONENTSOLVE_H_
#define TSFFIT_SMOOTHING_COMPONENTSOLVE_H_

#include <span>
#include <vector>

#include "smoothing/SmoothingProblem.h"

namespace tsffit {

// One Gauss-Newton step of the starting components in `parameters` at its weights, taken if it, its
// half or its quarter lowers the sum of squares, which is returned. The errors of the additive
// kinds are affine in the starting components, so that the step solves for them. The derivatives of
// the errors come from forward sensitivities: the recursion carries those of level, trend and
// season along.
double SolveComponents(SmoothingProblem& problem, std::vector<double>& parameters);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_COMPONENTSOLVE_H_
