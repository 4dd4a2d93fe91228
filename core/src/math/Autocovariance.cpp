#include "math/Autocovariance.h"

#include <algorithm>
#include <utility>

namespace tsffit {

namespace {

double MaAt(const Arma& arma, std::size_t k) {
  if (k == 0) return 1;
  return k <= arma.ma.size() ? arma.ma[k - 1] : 0;
}

double ArAt(const Arma& arma, std::size_t k) { return k <= arma.ar.size() ? arma.ar[k - 1] : 0; }

// Of the moving-average part, 0 .. count - 1.
std::vector<double> OfMovingAverage(const Arma& arma, std::size_t count) {
  std::vector<double> gamma(count, 0.0);
  for (std::size_t k = 0; k < count && k <= arma.ma.size(); ++k) {
    for (std::size_t j = k; j <= arma.ma.size(); ++j) gamma[k] += MaAt(arma, j) * MaAt(arma, j - k);
  }
  return gamma;
}

// Elements i and k - i, from `first` to k - first: those of c when what is given are those of
// c(z) + r z^k c(1/z).
void TakeOutReverse(double r, std::size_t k, std::size_t first, std::vector<double>& c) {
  for (std::size_t i = first; i <= k - i; ++i) {
    const double low = c[i];
    const double high = c[k - i];
    c[i] = (low - r * high) / ((1 - r) * (1 + r));
    c[k - i] = (high - r * low) / ((1 - r) * (1 + r));
  }
}

// u_0 .. u_m of phi(1/z) u(z) + phi(z) u(1/z) = rho_0 + rho_1 (z + 1/z) + .. + rho_m (z^m + z^-m).
// Each step of the first loop lowers the degree of both sides by one; the second goes back.
Polynomial SolveSymmetric(Polynomial phi, std::vector<double> rho) {
  const std::size_t m = rho.size() - 1;
  phi.resize(m + 1, 0.0);
  std::vector<double> last(m + 1, 0.0);
  for (std::size_t k = m; k > 0; --k) {
    last[k] = phi[k];
    if (last[k] != 0) TakeOutReverse(last[k], k, 1, phi);
    for (std::size_t i = 1; i < k; ++i) rho[i] -= rho[k] * phi[k - i];
  }
  Polynomial u = std::move(rho);
  u[0] /= 2;
  for (std::size_t k = 1; k <= m; ++k) {
    if (last[k] != 0) TakeOutReverse(last[k], k, 0, u);
  }
  return u;
}

}  // namespace

std::vector<double> Autocovariances(const Arma& arma, std::size_t count) {
  if (arma.ar.empty()) return OfMovingAverage(arma, count);
  Polynomial phi = {1};
  for (const double ar : arma.ar) phi.push_back(-ar);
  const std::size_t m = std::max(arma.ar.size(), arma.ma.size());
  std::vector<double> gamma =
      Quotient(SolveSymmetric(phi, OfMovingAverage(arma, m + 1)), phi, count);
  gamma[0] *= 2;
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
