#ifndef TSFFIT_ARIMA_FORECAST_KNOWN_H_
#define TSFFIT_ARIMA_FORECAST_KNOWN_H_

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <valarray>
#include <vector>

#include "series/Observed.h"

namespace tsffit {

// What a state must have to be gone on from: it may have been written down by hand.

// No fit has more periods; sums of periods and a horizon stay in the range of their types.
inline constexpr std::uint64_t kMostPeriods = std::numeric_limits<std::uint32_t>::max();

template <typename Values>
bool AllKnown(const Values& values) {
  return std::all_of(std::begin(values), std::end(values),
                     [](double value) { return !IsMissing(value) && std::isfinite(value); });
}

inline std::vector<double> ToVector(const std::valarray<double>& values) {
  return {std::begin(values), std::end(values)};
}

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FORECAST_KNOWN_H_
