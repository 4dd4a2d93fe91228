#include "arima/StateSpace.h"

#include <cmath>

#include "arima/Autocovariance.h"

namespace tsffit {

namespace {

// rows 0 .. r-1 of `m` become T times them.
void StepRows(const Eigen::VectorXd& ar, Eigen::MatrixXd& m) {
  const Eigen::Index r = ar.size();
  const Eigen::RowVectorXd first = m.row(0);
  for (Eigen::Index i = 0; i + 1 < r; ++i) m.row(i) = m.row(i + 1) + ar[i] * first;
  m.row(r - 1) = ar[r - 1] * first;
}

// Shifts the rows of the lags of Z down by one and puts `newest` above them.
void ShiftLags(Eigen::Index r, const Eigen::RowVectorXd& newest, Eigen::MatrixXd& m) {
  for (Eigen::Index i = m.rows() - 1; i > r; --i) m.row(i) = m.row(i - 1);
  if (m.rows() > r) m.row(r) = newest;
}

}  // namespace

StateSpace::StateSpace(const Arma& arma, const Polynomial& difference,
                       const Eigen::MatrixXd& lags) {
  const auto r = static_cast<Eigen::Index>(arma.StateLength());
  const auto m = static_cast<Eigen::Index>(Degree(difference));
  ar_ = Eigen::VectorXd::Zero(r);
  shock_ = Eigen::VectorXd::Zero(r);
  lags_ = Eigen::VectorXd::Zero(m);
  shock_[0] = 1;
  for (std::size_t k = 0; k < arma.ar.size(); ++k) ar_[static_cast<Eigen::Index>(k)] = arma.ar[k];
  for (std::size_t k = 0; k < arma.ma.size(); ++k) {
    shock_[static_cast<Eigen::Index>(k + 1)] = arma.ma[k];
  }
  for (Eigen::Index k = 0; k < m; ++k) lags_[k] = -difference[static_cast<std::size_t>(k + 1)];

  states_ = Eigen::MatrixXd::Zero(r + m, lags.cols());
  states_.bottomRows(m) = lags;
  covariance_ = Eigen::MatrixXd::Zero(r + m, r + m);
  covariance_.topLeftCorner(r, r) = StationaryCovariance(arma);
}

void StateSpace::Resume(const Eigen::MatrixXd& states, const Eigen::MatrixXd& covariance) {
  states_ = states;
  covariance_ = covariance;
  started_ = true;
}

void StateSpace::Predict() {
  const Eigen::Index r = ar_.size();
  const Eigen::Index m = lags_.size();
  if (started_) {
    StepRows(ar_, states_);
    StepRows(ar_, covariance_);
    covariance_.transposeInPlace();
    StepRows(ar_, covariance_);
    covariance_.topLeftCorner(r, r) += shock_ * shock_.transpose();
  }
  started_ = true;

  prediction_ = states_.row(0) + lags_.transpose() * states_.bottomRows(m);
  Eigen::RowVectorXd cross = covariance_.row(0) + lags_.transpose() * covariance_.bottomRows(m);
  variance_ = cross[0] + cross.tail(m).dot(lags_);

  // Z of this period joins the state in the place of its oldest lag.
  ShiftLags(r, prediction_, states_);
  ShiftLags(r, cross, covariance_);
  covariance_.transposeInPlace();
  for (Eigen::Index i = cross.size() - 1; i > r; --i) cross[i] = cross[i - 1];
  if (m > 0) cross[r] = variance_;
  ShiftLags(r, cross, covariance_);
}

void StateSpace::Observe(const Eigen::RowVectorXd& values) {
  const Eigen::Index r = ar_.size();
  const bool integrated = lags_.size() > 0;
  const Eigen::VectorXd gain = covariance_.col(integrated ? r : 0) / variance_;
  states_ += gain * (values - prediction_);
  covariance_ -= gain * gain.transpose() * variance_;
  const Eigen::Index known = integrated ? r : 0;  // the observed element is certain now
  covariance_.row(known).setZero();
  covariance_.col(known).setZero();
  states_.row(known) = values;
}

StateSpaceRun RunStateSpace(StateSpace& filter, const Eigen::MatrixXd& columns,
                            const std::vector<bool>& missing) {
  StateSpaceRun run;
  run.errors = Eigen::MatrixXd::Zero(columns.rows(), columns.cols());
  run.predictions = Eigen::MatrixXd::Zero(columns.rows(), columns.cols());
  run.nu = Eigen::VectorXd::Zero(columns.rows());
  for (Eigen::Index t = 0; t < columns.rows(); ++t) {
    filter.Predict();
    run.predictions.row(t) = filter.Prediction();
    if (missing[static_cast<std::size_t>(t)]) continue;
    run.nu[t] = filter.Variance();
    run.errors.row(t) = columns.row(t) - filter.Prediction();
    if (!(run.nu[t] > 0) || !std::isfinite(run.nu[t])) run.usable = false;
    if (!run.usable) return run;
    filter.Observe(columns.row(t));
  }
  return run;
}

}  // namespace tsffit
