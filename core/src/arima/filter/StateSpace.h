#ifndef TSFFIT_ARIMA_FILTER_STATESPACE_H_
#define TSFFIT_ARIMA_FILTER_STATESPACE_H_

#include <Eigen/Core>
#include <vector>

#include "math/Polynomial.h"

namespace tsffit {

// The Kalman filter for a differenced ARMA process D(B) Z = N, Z observed save where it is missing.
//
// The state after period t, m the degree of D and r that of Arma::StateLength:
//
//   alpha_i(t), i = 0 .. r-1, Harvey's form (1989, "Forecasting, structural time series models and
//       the Kalman filter", section 3.3): alpha_0(t) = N_t,
//       alpha_i(t) = ar_(i+1) N_(t-1) + alpha_(i+1)(t-1) + ma_i a_t
//   Z_t, Z_(t-1), .., Z_(t-m+1)
//
// (Harvey and Pierse 1984). Variances are in units of the innovation variance. Several series that
// are missing at the same periods go through at once, one column each, as in NoiseFilter.h. Of the
// covariance only what is not zero is kept: alpha and those values of Z that were missing.
class StateSpace {
 public:
  // Starts from the stationary N and the known values `lags` of Z before the first period: one
  // column for each series, newest first, m rows.
  StateSpace(const Arma& arma, const Polynomial& difference, const Eigen::MatrixXd& lags);

  // Goes on to the next period; ahead of the observation.
  void Predict();

  // Predictions of Z in the period, one per series, and their common variance.
  Eigen::RowVectorXd Prediction() const { return prediction_; }
  double Variance() const { return variance_; }

  // Takes the period's observation, one value per series; not called for a missing one.
  void Observe(const Eigen::RowVectorXd& values);

  // The state after the latest period, one column per series, and its covariance.
  const Eigen::MatrixXd& States() const { return states_; }
  Eigen::MatrixXd Covariance() const;

  // Continues from a state and its covariance.
  void Resume(const Eigen::MatrixXd& states, const Eigen::MatrixXd& covariance);

 private:
  void StepStates();
  void StepCovariance();
  void PredictObservation();
  void ShiftLags();
  void KeepUnobserved();

  Eigen::VectorXd ar_;
  Eigen::VectorXd shock_;  // what an innovation of 1 adds to alpha
  Eigen::VectorXd lags_;   // coefficients of Z_(t-1), .. in Z_t
  bool started_ = false;
  Eigen::MatrixXd states_;
  std::vector<Eigen::Index> unknown_;  // rows of the states that hold a missing Z, oldest first
  Eigen::MatrixXd covariance_;         // lower triangle: of alpha, then of the rows in unknown_
  Eigen::RowVectorXd prediction_;
  Eigen::VectorXd cross_;  // covariance of the prediction's error with the same
  double variance_ = 0;
  bool unobserved_ = false;  // the latest Z is neither observed nor in unknown_
};

// The errors and variances of a whole sample, as the filters of NoiseFilter.h. Rows with `missing`
// have error and nu 0; their predictions are in `predictions` like all others'.
struct StateSpaceRun {
  bool usable = true;
  Eigen::MatrixXd errors;
  Eigen::MatrixXd predictions;
  Eigen::VectorXd nu;
};
StateSpaceRun RunStateSpace(StateSpace& filter, const Eigen::MatrixXd& columns,
                            const std::vector<bool>& missing);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FILTER_STATESPACE_H_
