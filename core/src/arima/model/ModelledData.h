#ifndef TSFFIT_ARIMA_MODEL_MODELLEDDATA_H_
#define TSFFIT_ARIMA_MODEL_MODELLEDDATA_H_

#include <cstddef>
#include <span>
#include <vector>

#include <tsfcore/AMModelSpec.h>

#include "arima/model/Design.h"

namespace tsffit {

// The first case that is not missing; `series.size()` when there is none.
std::size_t FirstObserved(std::span<const double> series);

// The specification with outliers counted from case `first`.
AMModelSpec::Fields CountedFrom(AMModelSpec::Fields spec, std::size_t first);

// f(y); missing cases stay missing.
std::vector<double> ModelledSeries(std::span<const double> series, int functionType);

// What a fit of `spec` works on: `modelled` in units of its differences' size, and the transformed
// predictors from case `first` on.
ArimaData MakeArimaData(const AMModelSpec& spec, const std::vector<double>& modelled,
                        std::span<const std::vector<double>> predictors, std::size_t first);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_MODEL_MODELLEDDATA_H_
