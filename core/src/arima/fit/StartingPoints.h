#ifndef TSFFIT_ARIMA_FIT_STARTINGPOINTS_H_
#define TSFFIT_ARIMA_FIT_STARTINGPOINTS_H_

#include <vector>

#include "arima/fit/Likelihood.h"
#include "arima/fit/SearchSpace.h"
#include "arima/fit/Target.h"

namespace tsffit {

// Where a search begins: the peaks along the frequencies of cycles that nearly cancel, with their
// values, then the points of Starts.h that suit the model, without.
std::vector<Candidate> StartingPoints(const Likelihood& likelihood, const SearchSpace& space,
                                      Target& target);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_STARTINGPOINTS_H_
