#ifndef TSFFIT_ARIMA_FIT_STDERRORS_H_
#define TSFFIT_ARIMA_FIT_STDERRORS_H_

#include <vector>

#include "arima/fit/Likelihood.h"
#include "arima/fit/SearchSpace.h"

namespace tsffit {

// Standard errors of all parameters at the solution, in the units of `solution.parameters`; missing
// where Arima.h says so. `estimated` counts the estimated coefficients.
std::vector<double> ArimaStdErrors(const Likelihood& likelihood, const SearchSpace& space,
                                   const Evaluation& solution, unsigned estimated);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_STDERRORS_H_
