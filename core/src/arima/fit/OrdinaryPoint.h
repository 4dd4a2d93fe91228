#ifndef TSFFIT_ARIMA_FIT_ORDINARYPOINT_H_
#define TSFFIT_ARIMA_FIT_ORDINARYPOINT_H_

#include <vector>

#include <tsfcore/AMModelSpec.h>

namespace tsffit {

// Coefficients inside the region at which effects agree only when they agree everywhere. In white
// noise, say, an innovational outlier is an additive one, in an autoregression it is not.
std::vector<double> OrdinaryPoint(const AMModelSpec& spec);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_ORDINARYPOINT_H_
