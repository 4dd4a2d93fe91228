#ifndef TSFFIT_SMOOTHING_STDERRORS_H_
#define TSFFIT_SMOOTHING_STDERRORS_H_

#include <vector>

#include "smoothing/SmoothingProblem.h"

namespace tsffit {

// Standard errors of the weights at the least-squares solution. ESForecastState.h tells how they
// are defined and when they are missing.
std::vector<double> WeightStdErrors(SmoothingProblem& problem,
                                    const std::vector<double>& parameters);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_STDERRORS_H_
