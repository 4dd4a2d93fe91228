#include "arima/filter/NoiseFilter.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "math/Autocovariance.h"

namespace tsffit {

namespace {

// ar in the first r elements.
Eigen::VectorXd PaddedAr(const Arma& arma) {
  Eigen::VectorXd ar = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(arma.StateLength()));
  for (std::size_t k = 0; k < arma.ar.size(); ++k) ar[static_cast<Eigen::Index>(k)] = arma.ar[k];
  return ar;
}

// The transition of Harvey's form: every element moves up by one, and the first enters with ar.
void Step(const Eigen::VectorXd& ar, double* state) {
  const Eigen::Index last = ar.size() - 1;
  const double first = state[0];
  for (Eigen::Index i = 0; i < last; ++i) state[i] = state[i + 1] + ar[i] * first;
  state[last] = ar[last] * first;
}

// A change of the covariance below this, in units of the innovation variance, is none: it would
// only run on into numbers too small for doubles.
constexpr double kSteady = 1e-40;

bool Usable(double nu) { return nu > 0 && std::isfinite(nu); }

}  // namespace

bool FilterExactly(const Arma& arma, Eigen::MatrixXd& columns, Eigen::VectorXd& nu) {
  const Eigen::VectorXd ar = PaddedAr(arma);
  const Eigen::Index r = ar.size();
  nu.resize(columns.rows());

  const Eigen::VectorXd stationary = StationaryColumn(arma);
  double f = stationary[0];           // variance of the prediction
  Eigen::VectorXd gain = stationary;  // T P Z', not yet divided by f
  Step(ar, gain.data());
  Eigen::VectorXd change = gain;  // P(t+1) - P(t) = weight change change'
  double weight = -1 / f;
  Eigen::MatrixXd states = Eigen::MatrixXd::Zero(r, columns.cols());

  for (Eigen::Index t = 0; t < columns.rows(); ++t) {
    if (!Usable(f)) return false;
    nu[t] = f;
    for (Eigen::Index j = 0; j < columns.cols(); ++j) {  // (1) of NoiseFilter.h
      double* state = states.col(j).data();
      const double error = columns(t, j) - state[0];
      columns(t, j) = error;
      Step(ar, state);
      const double share = error / f;
      for (Eigen::Index i = 0; i < r; ++i) state[i] += gain[i] * share;
    }
    if (weight == 0) continue;  // the steady state; otherwise (2) of NoiseFilter.h
    const double head = change[0];
    const double next = f + weight * head * head;
    Step(ar, change.data());
    gain += (weight * head) * change;
    change -= (head / next) * gain;
    weight += weight * weight * head * head / f;
    f = next;
    if (-weight * change.squaredNorm() < kSteady) weight = 0;
  }
  return true;
}

bool FilterConditionally(const Arma& arma, Eigen::MatrixXd& columns, Eigen::VectorXd& nu) {
  const auto p = std::min(static_cast<Eigen::Index>(arma.ar.size()), columns.rows());
  const auto q = static_cast<Eigen::Index>(arma.ma.size());
  nu = Eigen::VectorXd::Ones(columns.rows());
  nu.head(p).setZero();
  for (Eigen::Index j = 0; j < columns.cols(); ++j) {
    Eigen::VectorXd errors = Eigen::VectorXd::Zero(columns.rows());
    for (Eigen::Index t = p; t < columns.rows(); ++t) {
      double error = columns(t, j);
      for (Eigen::Index k = 1; k <= p; ++k) {
        error -= arma.ar[static_cast<std::size_t>(k - 1)] * columns(t - k, j);
      }
      for (Eigen::Index k = 1; k <= std::min(q, t); ++k) {
        error -= arma.ma[static_cast<std::size_t>(k - 1)] * errors[t - k];
      }
      errors[t] = error;
    }
    if (!errors.allFinite()) return false;
    columns.col(j) = errors;
  }
  return true;
}

ThetaRecursion::ThetaRecursion(const Arma& arma)
    : ar_(arma.ar), q_(arma.ma.size()), m_(std::max(arma.ar.size(), arma.ma.size())) {
  gamma_ = Autocovariances(arma, 2 * m_ + 1);
  ma_gamma_ = Autocovariances({.ar = {}, .ma = arma.ma}, q_ + 1);
}

ThetaRecursion::ThetaRecursion(const Arma& arma, std::size_t count,
                               std::vector<std::vector<double>> thetas, std::vector<double> nus)
    : ThetaRecursion(arma) {
  count_ = count;
  rows_.assign(std::make_move_iterator(thetas.begin()), std::make_move_iterator(thetas.end()));
  nus_.assign(nus.begin(), nus.end());
}

// Covariance of the transformed process at periods i and j, counted from 1.
double ThetaRecursion::Kappa(std::size_t i, std::size_t j) const {
  const std::size_t low = std::min(i, j);
  const std::size_t lag = std::max(i, j) - low;
  if (low > m_) return lag <= q_ ? ma_gamma_[lag] : 0;
  if (low + lag <= m_) return gamma_[lag];
  if (low + lag > 2 * m_) return 0;
  double kappa = gamma_[lag];
  for (std::size_t r = 1; r <= ar_.size(); ++r) {
    kappa -= ar_[r - 1] * gamma_[r > lag ? r - lag : lag - r];
  }
  return kappa;
}

// theta(row, j); 0 for what the row does not hold.
double ThetaRecursion::ThetaAt(std::size_t row, std::size_t j) const {
  const std::vector<double>& thetas = rows_[rows_.size() - (count_ - row)];
  return j <= thetas.size() ? thetas[j - 1] : 0;
}

const std::vector<double>& ThetaRecursion::NextRow() {
  const std::size_t n = count_;
  const std::size_t width = n < m_ ? n : std::min(n, q_);
  std::vector<double> row(width, 0.0);
  double nu = Kappa(n + 1, n + 1);
  for (std::size_t k = n - width; k < n; ++k) {  // theta(n, n - k)
    double sum = Kappa(n + 1, k + 1);
    for (std::size_t j = n - width; j < k; ++j) {
      sum -= ThetaAt(k, k - j) * row[n - j - 1] * nus_[nus_.size() - (count_ - j)];
    }
    const double before = nus_[nus_.size() - (count_ - k)];
    row[n - k - 1] = sum / before;
    nu -= row[n - k - 1] * row[n - k - 1] * before;
  }
  rows_.push_back(std::move(row));
  nus_.push_back(nu);
  ++count_;
  const auto needed = std::max<std::size_t>({m_, q_, 1});
  while (rows_.size() > needed) {
    rows_.pop_front();
    nus_.pop_front();
  }
  return rows_.back();
}

bool FilterByThetas(const Arma& arma, Eigen::MatrixXd& columns, Eigen::VectorXd& nu) {
  const std::size_t p = arma.ar.size();
  const std::size_t m = std::max(p, arma.ma.size());
  ThetaRecursion recursion(arma);
  nu.resize(columns.rows());
  Eigen::MatrixXd errors(columns.rows(), columns.cols());
  for (Eigen::Index t = 0; t < columns.rows(); ++t) {
    const std::vector<double>& thetas = recursion.NextRow();
    nu[t] = recursion.Nu();
    if (!Usable(nu[t])) return false;
    errors.row(t) = columns.row(t);
    for (std::size_t j = 1; j <= thetas.size(); ++j) {
      errors.row(t) -= thetas[j - 1] * errors.row(t - static_cast<Eigen::Index>(j));
    }
    if (static_cast<std::size_t>(t) < m) continue;
    for (std::size_t k = 1; k <= p; ++k) {
      errors.row(t) -= arma.ar[k - 1] * columns.row(t - static_cast<Eigen::Index>(k));
    }
  }
  columns = errors;
  return true;
}

}  // namespace tsffit
