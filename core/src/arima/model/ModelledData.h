#ifndef TSFFIT_ARIMA_MODEL_MODELLEDDATA_H_
#define TSFFIT_ARIMA_MODEL_MODELLEDDATA_H_

#include <cstddef>
#include <span>
#include <vector>

#include <tsfcore/AMModelSpec.h>

#include "arima/model/Design.h"

namespace tsffit {

// The specification with outliers counted from case `first`.
AMModelSpec::Fields CountedFrom(AMModelSpec::Fields spec, std::size_t first);

// What a fit of `spec` works on: `modelled` in units of its differences' size, and the transformed
// predictors from case `first` on.
ArimaData MakeArimaData(const AMModelSpec& spec, const std::vector<double>& modelled,
                        std::span<const std::vector<double>> predictors, std::size_t first);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_MODEL_MODELLEDDATA_H_
