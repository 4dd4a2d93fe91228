#ifndef TSFFIT_SMOOTHING_STARTS_H_
#define TSFFIT_SMOOTHING_STARTS_H_

#include <vector>

#include "smoothing/SmoothingProblem.h"

namespace tsffit {

// Weight vectors spread over the box, weights on their bounds among them: such optima are common.
// Those that learn nothing come first: all zero (Brown's weight: its least value), and for a damped
// trend all zero but the damping, which is 1.
std::vector<std::vector<double>> SpreadWeights(const KindTraits& traits);

// Components before the first case by the classical decomposition: seasonal values from a centred
// moving average (2 x m for even m), level and trend from a line through the first cases after
// taking out the season.
Components RoughStart(const SmoothingProblem& problem);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_STARTS_H_
