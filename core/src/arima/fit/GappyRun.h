#ifndef TSFFIT_ARIMA_FIT_GAPPYRUN_H_
#define TSFFIT_ARIMA_FIT_GAPPYRUN_H_

#include <Eigen/Core>

#include "arima/fit/Likelihood.h"

namespace tsffit {

// The linear coefficients of a solution, in the order of LinearPositions(); 0 where left out.
Eigen::VectorXd LinearCoefficients(const Likelihood& likelihood, const Evaluation& solution);

// The linear effects on the differenced series, all together.
Eigen::VectorXd LinearEffect(const Likelihood& likelihood, const Evaluation& solution);

// A run of the Kalman filter over a sample with missing cases, the values before the first row
// filled with their estimates, and the filter's end.
struct GappyRun {
  Eigen::VectorXd predictions;  // of Z
  Eigen::VectorXd state;
  Eigen::MatrixXd covariance;
};

GappyRun RunWithGaps(const Likelihood& likelihood, const Evaluation& solution);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_GAPPYRUN_H_
