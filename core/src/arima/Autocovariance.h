#ifndef TSFFIT_ARIMA_AUTOCOVARIANCE_H_
#define TSFFIT_ARIMA_AUTOCOVARIANCE_H_

#include <Eigen/Core>
#include <cstddef>
#include <vector>

#include "arima/Polynomial.h"

namespace tsffit {

// Autocovariances 0 .. count - 1 of a stationary ARMA process in units of the innovation variance:
// the linear equations for the first p + 1 of them (McLeod 1975, "Derivation of the theoretical
// autocovariance function of autoregressive-moving average time series", Applied Statistics 24,
// 255-256), then the recursion. Near a unit root they are large but as exact as the coefficients.
std::vector<double> Autocovariances(const Arma& arma, std::size_t count);

// First column of the covariance of the stationary state in Harvey's form (see StateSpace.h), in
// units of the innovation variance.
Eigen::VectorXd StationaryColumn(const Arma& arma);

// The whole covariance.
Eigen::MatrixXd StationaryCovariance(const Arma& arma);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_AUTOCOVARIANCE_H_
