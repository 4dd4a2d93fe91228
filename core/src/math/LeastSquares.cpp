#include "math/LeastSquares.h"

#include <Eigen/QR>
#include <cmath>

namespace tsffit {

namespace {

// A column is dropped when less than this share of it is new.
constexpr double kCollinear = 1e-8;

}  // namespace

LeastSquaresFit SolveLeastSquares(const Eigen::VectorXd& y, const Eigen::MatrixXd& x,
                                  Eigen::Index leading) {
  const Eigen::Index columns = x.cols();
  LeastSquaresFit fit;
  fit.dropped.assign(static_cast<std::size_t>(columns), false);
  fit.coefficients = Eigen::VectorXd::Zero(columns);
  fit.residuals = y;
  Eigen::MatrixXd q = x;
  Eigen::MatrixXd r = Eigen::MatrixXd::Identity(columns, columns);
  Eigen::VectorXd projections = Eigen::VectorXd::Zero(columns);
  for (Eigen::Index j = 0; j < columns; ++j) {
    const double size = q.col(j).norm();
    for (int pass = 0; pass < 2; ++pass) {
      for (Eigen::Index i = 0; i < j; ++i) {
        if (fit.dropped[static_cast<std::size_t>(i)]) continue;
        const double share = q.col(i).dot(q.col(j));
        r(i, j) += share;
        q.col(j) -= share * q.col(i);
      }
    }
    const double left = q.col(j).norm();
    if (!(left > kCollinear * size)) {
      fit.dropped[static_cast<std::size_t>(j)] = true;
      continue;
    }
    q.col(j) /= left;
    r(j, j) = left;
    projections[j] = q.col(j).dot(fit.residuals);
    fit.residuals -= projections[j] * q.col(j);
    if (j < leading) fit.log_determinant += 2 * std::log(left);
  }
  for (Eigen::Index j = columns - 1; j >= 0; --j) {
    if (fit.dropped[static_cast<std::size_t>(j)]) continue;
    double value = projections[j];
    for (Eigen::Index k = j + 1; k < columns; ++k) value -= r(j, k) * fit.coefficients[k];
    fit.coefficients[j] = value / r(j, j);
  }
  fit.sse = fit.residuals.squaredNorm();
  return fit;
}

Eigen::MatrixXd InverseGram(const Eigen::MatrixXd& x, const std::vector<bool>& dropped) {
  std::vector<Eigen::Index> kept;
  for (Eigen::Index j = 0; j < x.cols(); ++j) {
    if (!dropped[static_cast<std::size_t>(j)]) kept.push_back(j);
  }
  Eigen::MatrixXd inverse = Eigen::MatrixXd::Zero(x.cols(), x.cols());
  if (kept.empty()) return inverse;

  // By X = Q R, for X'X itself squares the condition of X.
  const Eigen::MatrixXd columns = x(Eigen::all, kept);
  const Eigen::VectorXd scale = columns.colwise().norm().cwiseInverse();
  const Eigen::HouseholderQR<Eigen::MatrixXd> factors(columns * scale.asDiagonal());
  const auto count = static_cast<Eigen::Index>(kept.size());
  const Eigen::MatrixXd root =
      scale.asDiagonal() * factors.matrixQR().topRows(count).triangularView<Eigen::Upper>().solve(
                               Eigen::MatrixXd::Identity(count, count));
  inverse(kept, kept) = root * root.transpose();
  return inverse;
}

}  // namespace tsffit
