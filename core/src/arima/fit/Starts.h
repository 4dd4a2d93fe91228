#ifndef TSFFIT_ARIMA_FIT_STARTS_H_
#define TSFFIT_ARIMA_FIT_STARTS_H_

#include <optional>
#include <vector>

#include "arima/fit/Likelihood.h"
#include "arima/fit/SearchSpace.h"

namespace tsffit {

// Starting values of the ARMA coefficients, the cross products of the factors neglected: the
// innovations are taken from a long autoregression, and the series, less its linear effects, is
// regressed on its own lags and theirs (Hannan and Rissanen 1982). Nothing when there are too few
// cases.
std::optional<Eigen::VectorXd> HannanRissanenStart(const Likelihood& likelihood,
                                                   const SearchSpace& space);

// A point with one value for the first partial autocorrelation of each kind of factor.
struct Spread {
  double ar = 0;
  double ma = 0;
  double denominator = 0;
};
Eigen::VectorXd SpreadStart(const SearchSpace& space, const Spread& spread);

// A pair of complex roots of phi and one of theta at the same frequency, in radians a period (of a
// seasonal factor, a season); the moduli are those of the inverse roots.
struct Cycle {
  double frequency = 0;
  double ar = 0;
  double ma = 0;
};

// The point with that cycle alone, in factors of two coefficients or more that have the same lags.
// Nothing without them.
std::optional<Eigen::VectorXd> CycleStart(const SearchSpace& space, const Cycle& cycle);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_STARTS_H_
