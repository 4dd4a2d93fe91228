#include "core/support/DenseLikelihood.h"

#include <Eigen/Cholesky>
#include <cmath>
#include <numbers>

#include <tsfcore/MV.h>

namespace test {

namespace {

using Real = long double;
using Matrix = Eigen::Matrix<Real, Eigen::Dynamic, Eigen::Dynamic>;
using Vector = Eigen::Matrix<Real, Eigen::Dynamic, 1>;
using tsffit::Polynomial;

// The first `count` weights of numerator / denominator.
std::vector<Real> Weights(const Polynomial& numerator, const Polynomial& denominator,
                          std::size_t count) {
  std::vector<Real> weights(count, 0);
  for (std::size_t t = 0; t < count; ++t) {
    if (t < numerator.size()) weights[t] = numerator[t];
    for (std::size_t k = 1; k < denominator.size() && k <= t; ++k) {
      weights[t] -= Real(denominator[k]) * weights[t - k];
    }
  }
  return weights;
}

// Autocovariances as sums over the weights of the infinite moving average, cut off where nothing is
// left of them.
std::vector<Real> Autocovariances(const Polynomial& phi, const Polynomial& theta,
                                  std::size_t count) {
  constexpr std::size_t kTerms = 6000;
  const std::vector<Real> psi = Weights(theta, phi, kTerms);
  std::vector<Real> gamma(count, 0);
  for (std::size_t k = 0; k < count; ++k) {
    for (std::size_t j = 0; j + k < kTerms; ++j) gamma[k] += psi[j] * psi[j + k];
  }
  return gamma;
}

// Z in the rows is start * (values before, newest first) + sums * (N in the rows).
struct Integration {
  Matrix start;
  Matrix sums;
};

Integration Integrate(const Polynomial& difference, Eigen::Index rows) {
  const auto m = static_cast<Eigen::Index>(difference.size()) - 1;
  Integration result{Matrix::Zero(rows, m), Matrix::Identity(rows, rows)};
  for (Eigen::Index t = 0; t < rows; ++t) {
    for (Eigen::Index k = 1; k <= m; ++k) {
      const Real d = difference[static_cast<std::size_t>(k)];
      if (t >= k) {
        result.start.row(t) -= d * result.start.row(t - k);
        result.sums.row(t) -= d * result.sums.row(t - k);
      } else {
        result.start(t, k - t - 1) -= d;
      }
    }
  }
  return result;
}

// Columns of `from` picked by `which`; rows likewise below.
Matrix Columns(const Matrix& from, const std::vector<Eigen::Index>& which) {
  Matrix picked(from.rows(), static_cast<Eigen::Index>(which.size()));
  for (std::size_t i = 0; i < which.size(); ++i) {
    picked.col(static_cast<Eigen::Index>(i)) = from.col(which[i]);
  }
  return picked;
}

Matrix Rows(const Matrix& from, const std::vector<Eigen::Index>& which) {
  return Columns(from.transpose(), which).transpose();
}

// The model as a regression: Z in the rows has mean known + flat b + effects c, covariance V.
struct Regression {
  Vector known;
  Matrix flat;
  Matrix effects;
  Matrix covariance;
  std::vector<Eigen::Index> observed;
  Vector z;  // the observed ones
};

Regression Set(const DenseModel& model) {
  const Eigen::Index rows = model.effects.rows();
  const std::size_t first = model.z.size() - static_cast<std::size_t>(rows);
  const auto [start, sums] = Integrate(model.difference, rows);

  Regression regression;
  regression.known = Vector::Zero(rows);
  std::vector<Eigen::Index> missing;
  for (Eigen::Index k = 0; k < start.cols(); ++k) {
    const double before = model.z[first - 1 - static_cast<std::size_t>(k)];
    if (before == MV::gMissingValue) {
      missing.push_back(k);
    } else {
      regression.known += Real(before) * start.col(k);
    }
  }
  regression.flat = Columns(start, missing);
  regression.effects = sums * model.effects.cast<Real>();
  const auto gamma = Autocovariances(model.phi, model.theta, static_cast<std::size_t>(rows));
  Matrix noise(rows, rows);
  for (Eigen::Index i = 0; i < rows; ++i) {
    for (Eigen::Index j = 0; j < rows; ++j) {
      noise(i, j) = gamma[static_cast<std::size_t>(std::abs(i - j))];
    }
  }
  regression.covariance = sums * noise * sums.transpose();
  std::vector<Real> z;
  for (Eigen::Index t = 0; t < rows; ++t) {
    const double value = model.z[first + static_cast<std::size_t>(t)];
    if (value == MV::gMissingValue) continue;
    regression.observed.push_back(t);
    z.push_back(value);
  }
  regression.z = Eigen::Map<const Vector>(z.data(), static_cast<Eigen::Index>(z.size()));
  return regression;
}

Real LogDeterminant(const Eigen::LLT<Matrix>& factor) {
  const Matrix lower = factor.matrixL();
  return 2 * lower.diagonal().array().log().sum();
}

}  // namespace

DenseLikelihood Evaluate(const DenseModel& model) {
  const Regression all = Set(model);
  const Eigen::LLT<Matrix> v(Columns(Rows(all.covariance, all.observed), all.observed));
  Matrix columns(v.rows(), 1 + all.flat.cols() + all.effects.cols());
  columns << all.z - Rows(all.known, all.observed), Rows(all.flat, all.observed),
      Rows(all.effects, all.observed);
  const Matrix white = v.matrixL().solve(columns);
  const Vector y = white.col(0);
  const Matrix w = white.rightCols(white.cols() - 1);

  DenseLikelihood result;
  Vector coefficients = Vector::Zero(w.cols());
  if (w.cols() > 0) coefficients = (w.transpose() * w).llt().solve(w.transpose() * y);
  const Real sse = (y - w * coefficients).squaredNorm();
  Real logDeterminant = LogDeterminant(v);
  const Eigen::Index flat = all.flat.cols();
  if (flat > 0) {
    const Matrix own = w.leftCols(flat);
    logDeterminant += LogDeterminant(Eigen::LLT<Matrix>(own.transpose() * own));
  }
  const auto n = static_cast<Real>(all.z.size() - flat);
  result.residuals = static_cast<std::size_t>(all.z.size() - flat);
  result.sse = static_cast<double>(sse);
  result.log_determinant = static_cast<double>(logDeterminant);
  result.log_likelihood = static_cast<double>(
      -n / 2 * (std::log(2 * std::numbers::pi_v<Real> * sse / n) + 1) - logDeterminant / 2);
  for (Eigen::Index j = flat; j < coefficients.size(); ++j) {
    result.effects.push_back(static_cast<double>(coefficients[j]));
  }
  return result;
}

// Universal kriging: the flat values are estimated by generalised least squares.
DensePrediction Predict(const DenseModel& model) {
  const Regression all = Set(model);
  const Eigen::LLT<Matrix> v(Columns(Rows(all.covariance, all.observed), all.observed));
  const Matrix cross = Columns(all.covariance, all.observed);
  const Matrix weights = v.solve(cross.transpose()).transpose();
  const Vector deviation = all.z - Rows(all.known, all.observed);
  Vector mean = all.known + weights * deviation;
  Matrix variance = all.covariance - weights * cross.transpose();
  if (all.flat.cols() > 0) {
    const Matrix seen = Rows(all.flat, all.observed);
    const Matrix spread = all.flat - weights * seen;
    const Eigen::LLT<Matrix> information(seen.transpose() * v.solve(seen));
    mean += spread * information.solve(seen.transpose() * v.solve(deviation));
    variance += spread * information.solve(spread.transpose());
  }
  DensePrediction prediction;
  for (Eigen::Index t = 0; t < mean.size(); ++t) {
    prediction.mean.push_back(static_cast<double>(mean[t]));
    prediction.variance.push_back(static_cast<double>(variance(t, t)));
  }
  return prediction;
}

}  // namespace test
