#ifndef TSFFIT_SERIES_LJUNGBOX_H_
#define TSFFIT_SERIES_LJUNGBOX_H_

#include <span>

#include <tsfcore/EstimationInfo.h>

namespace tsffit {

// Ljung-Box test of `errors` (missing where there is none) with `lags` lags, `estimated` of its
// degrees of freedom used up. EstimationInfo.h has the formula and says when it is missing.
EstimationInfo::LjungBox LjungBoxTest(std::span<const double> errors, unsigned lags,
                                      unsigned estimated);

}  // namespace tsffit

#endif  // TSFFIT_SERIES_LJUNGBOX_H_
