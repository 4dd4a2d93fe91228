#ifndef TSFFIT_ARIMA_FORECAST_UNDIFFERENCE_H_
#define TSFFIT_ARIMA_FORECAST_UNDIFFERENCE_H_

#include <cstddef>
#include <optional>
#include <vector>

#include <tsfcore/ARMAForecastState.h>

#include "math/Polynomial.h"

namespace tsffit {

// Adds up a differenced path to the scale of Z, from its last values on, oldest first.
std::vector<double> SumUp(const Polynomial& difference, std::vector<double> z,
                          const std::vector<double>& differenced);

// The last values of Z that undoing the differences needs; nothing when they are not known.
std::optional<std::vector<double>> LastZ(const ARMAForecastState& state, std::size_t count);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FORECAST_UNDIFFERENCE_H_
