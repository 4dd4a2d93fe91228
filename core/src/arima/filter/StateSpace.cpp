#include "arima/filter/StateSpace.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "math/Autocovariance.h"

namespace tsffit {

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
  covariance_ = StationaryCovariance(arma);
}

void StateSpace::Resume(const Eigen::MatrixXd& states, const Eigen::MatrixXd& covariance) {
  const Eigen::Index r = ar_.size();
  states_ = states;
  unknown_.clear();
  for (Eigen::Index row = states.rows() - 1; row >= r; --row) {
    if (covariance(row, row) != 0) unknown_.push_back(row);
  }
  const auto count = static_cast<Eigen::Index>(unknown_.size());
  covariance_.resize(r + count, r + count);
  covariance_.topLeftCorner(r, r) = covariance.topLeftCorner(r, r);
  for (Eigen::Index i = 0; i < count; ++i) {
    const Eigen::Index row = unknown_[static_cast<std::size_t>(i)];
    covariance_.row(r + i).head(r) = covariance.row(row).head(r);
    for (Eigen::Index j = 0; j <= i; ++j) {
      covariance_(r + i, r + j) = covariance(row, unknown_[static_cast<std::size_t>(j)]);
    }
  }
  started_ = true;
  unobserved_ = false;
}

Eigen::MatrixXd StateSpace::Covariance() const {
  StateSpace whole = *this;
  whole.KeepUnobserved();
  std::vector<Eigen::Index> rows(static_cast<std::size_t>(ar_.size()));
  std::iota(rows.begin(), rows.end(), 0);
  rows.insert(rows.end(), whole.unknown_.begin(), whole.unknown_.end());
  Eigen::MatrixXd all = Eigen::MatrixXd::Zero(states_.rows(), states_.rows());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j <= i; ++j) {
      all(rows[i], rows[j]) = all(rows[j], rows[i]) =
          whole.covariance_(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j));
    }
  }
  return all;
}

void StateSpace::Predict() {
  KeepUnobserved();
  if (started_) {
    StepStates();
    StepCovariance();
  }
  started_ = true;
  PredictObservation();
  ShiftLags();
}

void StateSpace::StepStates() {
  const Eigen::Index last = ar_.size() - 1;
  for (Eigen::Index column = 0; column < states_.cols(); ++column) {
    double* state = states_.col(column).data();
    const double first = state[0];
    for (Eigen::Index i = 0; i < last; ++i) state[i] = state[i + 1] + ar_[i] * first;
    state[last] = ar_[last] * first;
  }
}

// alpha_i moves up by one and takes ar_i alpha_0 and its share of the shock. Column by column, from
// what the next column held.
void StateSpace::StepCovariance() {
  const Eigen::Index r = ar_.size();
  const auto others = static_cast<Eigen::Index>(unknown_.size());
  const Eigen::VectorXd first = covariance_.col(0);  // with alpha_0
  Eigen::VectorXd next = Eigen::VectorXd::Zero(r);   // its first r, moved up
  next.head(r - 1) = first.segment(1, r - 1);
  const Eigen::VectorXd moved = next + first[0] * ar_;
  for (Eigen::Index j = 0; j < r; ++j) {
    const Eigen::Index rest = r - 1 - j;
    auto column = covariance_.col(j);
    if (rest > 0) {
      column.segment(j, rest) = covariance_.col(j + 1).segment(j + 1, rest);
      column.tail(others) = covariance_.col(j + 1).tail(others);
    } else {
      column.tail(others).setZero();
    }
    column[r - 1] = 0;
    column.segment(j, rest + 1) += ar_[j] * moved.tail(rest + 1) + next[j] * ar_.tail(rest + 1) +
                                   shock_[j] * shock_.tail(rest + 1);
    column.tail(others) += ar_[j] * first.tail(others);
  }
}

void StateSpace::PredictObservation() {
  const Eigen::Index r = ar_.size();
  prediction_ = states_.row(0) + lags_.transpose() * states_.bottomRows(lags_.size());
  cross_ = covariance_.col(0);
  for (std::size_t i = 0; i < unknown_.size(); ++i) {
    const double weight = lags_[unknown_[i] - r];
    const Eigen::Index at = r + static_cast<Eigen::Index>(i);
    cross_.head(at) += weight * covariance_.row(at).head(at).transpose();
    const Eigen::Index rest = cross_.size() - at;
    cross_.tail(rest) += weight * covariance_.col(at).tail(rest);
  }
  variance_ = cross_[0];
  for (std::size_t i = 0; i < unknown_.size(); ++i) {
    variance_ += lags_[unknown_[i] - r] * cross_[r + static_cast<Eigen::Index>(i)];
  }
}

// Z of this period joins the state in the place of its oldest lag.
void StateSpace::ShiftLags() {
  const Eigen::Index r = ar_.size();
  const Eigen::Index m = lags_.size();
  if (m == 0) return;
  for (Eigen::Index column = 0; column < states_.cols(); ++column) {
    double* lags = states_.col(column).data() + r;
    std::copy_backward(lags, lags + m - 1, lags + m);
    lags[0] = prediction_[column];
  }
  unobserved_ = true;
  for (Eigen::Index& row : unknown_) ++row;
  if (unknown_.empty() || unknown_.front() < states_.rows()) return;
  unknown_.erase(unknown_.begin());
  const Eigen::Index rest = cross_.size() - r - 1;
  const Eigen::MatrixXd kept = covariance_.bottomRows(rest);
  covariance_.conservativeResize(r + rest, r + rest);
  covariance_.bottomLeftCorner(rest, r) = kept.leftCols(r);
  covariance_.bottomRightCorner(rest, rest) = kept.rightCols(rest);
  const Eigen::VectorXd tail = cross_.tail(rest);
  cross_.conservativeResize(r + rest);
  cross_.tail(rest) = tail;
}

void StateSpace::KeepUnobserved() {
  if (!unobserved_) return;
  unobserved_ = false;
  unknown_.push_back(ar_.size());
  const Eigen::Index count = cross_.size();
  covariance_.conservativeResize(count + 1, count + 1);
  covariance_.row(count).head(count) = cross_.transpose();
  covariance_(count, count) = variance_;
}

void StateSpace::Observe(const Eigen::RowVectorXd& values) {
  const Eigen::Index r = ar_.size();
  const Eigen::VectorXd gain = cross_ / variance_;
  const Eigen::RowVectorXd errors = values - prediction_;
  states_.topRows(r) += gain.head(r) * errors;
  for (std::size_t i = 0; i < unknown_.size(); ++i) {
    states_.row(unknown_[i]) += gain[r + static_cast<Eigen::Index>(i)] * errors;
  }
  for (Eigen::Index j = 0; j < gain.size(); ++j) {
    const Eigen::Index rest = gain.size() - j;
    covariance_.col(j).tail(rest) -= cross_[j] * gain.tail(rest);
  }
  // The observed element is certain now.
  if (lags_.size() == 0) covariance_.col(0).setZero();
  states_.row(lags_.size() == 0 ? 0 : r) = values;
  unobserved_ = false;
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
