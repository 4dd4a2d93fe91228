#ifndef TSFFIT_SERIES_OBSERVED_H_
#define TSFFIT_SERIES_OBSERVED_H_

#include <cstddef>
#include <span>

#include <tsfcore/MV.h>

namespace tsffit {

// What of a series is there; a missing case is MV::gMissingValue.

inline bool IsMissing(double value) { return value == MV::gMissingValue; }

// The first case that is not missing; `series.size()` when there is none.
std::size_t FirstObserved(std::span<const double> series);

// How many cases are not missing.
std::size_t CountObserved(std::span<const double> series);

}  // namespace tsffit

#endif  // TSFFIT_SERIES_OBSERVED_H_
