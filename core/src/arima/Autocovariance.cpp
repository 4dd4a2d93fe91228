#include "arima/Autocovariance.h"

#include <Eigen/LU>
#include <algorithm>

namespace tsffit {

namespace {

double MaAt(const Arma& arma, std::size_t k) {
  if (k == 0) return 1;
  return k <= arma.ma.size() ? arma.ma[k - 1] : 0;
}

double ArAt(const Arma& arma, std::size_t k) { return k <= arma.ar.size() ? arma.ar[k - 1] : 0; }

// sum over j = k .. q of ma_j psi_(j-k): the covariance of the moving-average part at t with N at
// t - k.
std::vector<double> RightHandSide(const Arma& arma, std::size_t count) {
  const std::size_t q = arma.ma.size();
  const std::vector<double> psi = PsiWeights(arma, q + 1);
  std::vector<double> rhs(count, 0.0);
  for (std::size_t k = 0; k < count && k <= q; ++k) {
    for (std::size_t j = k; j <= q; ++j) rhs[k] += MaAt(arma, j) * psi[j - k];
  }
  return rhs;
}

}  // namespace

std::vector<double> Autocovariances(const Arma& arma, std::size_t count) {
  const std::size_t p = arma.ar.size();
  std::vector<double> gamma = RightHandSide(arma, std::max(count, p + 1));
  if (p > 0) {
    const auto order = static_cast<Eigen::Index>(p + 1);
    Eigen::MatrixXd system = Eigen::MatrixXd::Identity(order, order);
    for (Eigen::Index k = 0; k < order; ++k) {
      for (Eigen::Index i = 1; i < order; ++i) {
        system(k, std::abs(k - i)) -= arma.ar[static_cast<std::size_t>(i - 1)];
      }
    }
    const Eigen::Map<const Eigen::VectorXd> rhs(gamma.data(), order);
    const Eigen::VectorXd solved = system.partialPivLu().solve(rhs);
    std::copy(solved.begin(), solved.end(), gamma.begin());
    for (std::size_t k = p + 1; k < gamma.size(); ++k) {
      for (std::size_t i = 1; i <= p; ++i) gamma[k] += arma.ar[i - 1] * gamma[k - i];
    }
  }
  gamma.resize(count);
  return gamma;
}

Eigen::VectorXd StationaryColumn(const Arma& arma) {
  const std::size_t r = arma.StateLength();
  const std::vector<double> gamma = Autocovariances(arma, r + 1);
  const std::vector<double> psi = PsiWeights(arma, r);
  Eigen::VectorXd column = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(r));
  column[0] = gamma[0];
  for (std::size_t i = 1; i < r; ++i) {
    double sum = 0;
    for (std::size_t k = i + 1; k <= arma.ar.size(); ++k) sum += ArAt(arma, k) * gamma[k - i];
    for (std::size_t k = i; k <= arma.ma.size(); ++k) sum += MaAt(arma, k) * psi[k - i];
    column[static_cast<Eigen::Index>(i)] = sum;
  }
  return column;
}

Eigen::MatrixXd StationaryCovariance(const Arma& arma) {
  const Eigen::VectorXd first = StationaryColumn(arma);
  const Eigen::Index r = first.size();
  Eigen::MatrixXd p = Eigen::MatrixXd::Zero(r + 1, r + 1);
  p.col(0).head(r) = first;
  p.row(0).head(r) = first.transpose();
  // From the last element up: alpha_i(t) = ar_i N(t-1) + alpha_(i+1)(t-1) + ma_(i-1) a(t).
  for (Eigen::Index i = r - 1; i > 0; --i) {
    for (Eigen::Index j = i; j > 0; --j) {
      const double phi = ArAt(arma, static_cast<std::size_t>(i + 1));
      const double other = ArAt(arma, static_cast<std::size_t>(j + 1));
      p(i, j) = phi * other * first[0] + phi * p(0, j + 1) + other * p(i + 1, 0) + p(i + 1, j + 1) +
                MaAt(arma, static_cast<std::size_t>(i)) * MaAt(arma, static_cast<std::size_t>(j));
      p(j, i) = p(i, j);
    }
  }
  return p.topLeftCorner(r, r);
}

}  // namespace tsffit
