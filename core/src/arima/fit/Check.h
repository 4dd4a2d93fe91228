#ifndef TSFFIT_ARIMA_FIT_CHECK_H_
#define TSFFIT_ARIMA_FIT_CHECK_H_

#include <cstddef>
#include <span>
#include <vector>

#include <tsffit/Arima.h>

namespace tsffit {

// A fit asks for so many cases more than coefficients, in the likelihood and after the longest
// lags: one degree of freedom for the error variance and one to judge by.
inline constexpr std::size_t kSpareCases = 2;

// Fills status, message and the place to blame with the first reason against the fit. True when
// there is none.
bool CheckArima(std::span<const double> series, std::span<const std::vector<double>> predictors,
                const ArimaOptions& options, ArimaFit& fit);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_CHECK_H_
