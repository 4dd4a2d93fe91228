#ifndef TSFFIT_SMOOTHING_CHECK_H_
#define TSFFIT_SMOOTHING_CHECK_H_

#include <span>

#include <tsffit/Smoothing.h>

namespace tsffit {

// Fills `status`, `message` and `bad_case` of `fit` with the first reason against fitting
// `series`. True when there is none.
bool CheckSeries(std::span<const double> series, const SmoothingOptions& options,
                 SmoothingFit& fit);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_CHECK_H_
