#ifndef TSFFIT_MATH_AUTOCOVARIANCE_H_
#define TSFFIT_MATH_AUTOCOVARIANCE_H_

#include <Eigen/Core>
#include <cstddef>
#include <vector>

#include "math/Polynomial.h"

namespace tsffit {

// Autocovariances 0 .. count - 1 of a stationary ARMA process in units of the innovation variance,
// count above 0: the coefficients of u(z) / phi(z) + u(1/z) / phi(1/z), where
//   phi(1/z) u(z) + phi(z) u(1/z) = theta(z) theta(1/z)
// is solved by a step-down recursion in the square of the degree (Tunnicliffe Wilson 1979, "Some
// efficient computational procedures for high order ARMA models", Journal of Statistical
// Computation and Simulation 8, 301-309). Near a unit root they are large but as exact as the
// coefficients.
std::vector<double> Autocovariances(const Arma& arma, std::size_t count);

// First column of the covariance of the stationary state in Harvey's form (see StateSpace.h), in
// units of the innovation variance.
Eigen::VectorXd StationaryColumn(const Arma& arma);

// The whole covariance.
Eigen::MatrixXd StationaryCovariance(const Arma& arma);

}  // namespace tsffit

#endif  // TSFFIT_MATH_AUTOCOVARIANCE_H_
