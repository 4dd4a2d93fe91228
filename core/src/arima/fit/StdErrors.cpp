#include "arima/fit/StdErrors.h"

#include <Eigen/Cholesky>
#include <cmath>
#include <optional>

#include <tsfcore/MV.h>

#include "arima/fit/Surroundings.h"

namespace tsffit {

namespace {

// A pivot of a matrix with a unit diagonal below this share is none: what is left of it after
// elimination is rounding.
constexpr double kLeastPivot = 1e-12;

// The inverse of a positive definite matrix, scaled to a unit diagonal in between.
std::optional<Eigen::MatrixXd> InversePositive(const Eigen::MatrixXd& matrix) {
  if (!matrix.allFinite() || !(matrix.diagonal().array() > 0).all()) return std::nullopt;
  const Eigen::VectorXd scale = matrix.diagonal().cwiseSqrt().cwiseInverse();
  const Eigen::LDLT<Eigen::MatrixXd> factors(scale.asDiagonal() * matrix * scale.asDiagonal());
  if (factors.info() != Eigen::Success || !(factors.vectorD().array() > kLeastPivot).all()) {
    return std::nullopt;
  }
  const Eigen::MatrixXd inverse =
      factors.solve(Eigen::MatrixXd::Identity(matrix.rows(), matrix.cols()));
  return scale.asDiagonal() * inverse * scale.asDiagonal();
}

// Variances of the coordinates together, and of each linear coefficient.
struct Variances {
  Eigen::MatrixXd coordinates;
  Eigen::VectorXd linear;
};

// By the inverse of the joint Hessian, put together from that of the profile likelihood (Patefield
// 1977, "On the maximized likelihood function", Sankhya B 39, 92-96).
std::optional<Variances> FromHessian(const Likelihood& likelihood, const Surroundings& around,
                                     const Evaluation& solution) {
  if (!around.IsClear()) return std::nullopt;
  const std::optional<Eigen::MatrixXd> coordinates = InversePositive(around.Hessian());
  if (!coordinates) return std::nullopt;
  const double variance = solution.fit.sse / static_cast<double>(solution.residuals);
  const auto count = static_cast<Eigen::Index>(likelihood.GetDesign().LinearPositions().size());
  const Eigen::MatrixXd slopes = around.Slopes(count, [&](const std::vector<double>& parameters) {
    return parameters.empty() ? Eigen::VectorXd() : likelihood.LinearAt(parameters);
  });
  const Eigen::MatrixXd given = InverseGram(solution.regressors, solution.fit.dropped);
  const Eigen::MatrixXd linear =
      variance * given.bottomRightCorner(count, count) + slopes * *coordinates * slopes.transpose();
  return Variances{.coordinates = *coordinates, .linear = linear.diagonal()};
}

std::optional<Variances> FromJacobian(const Likelihood& likelihood, const Surroundings& around,
                                      const Evaluation& solution, unsigned estimated) {
  const Eigen::Index count = around.Count();
  const Eigen::Index linear = solution.regressors.cols();
  if (count + linear == 0) return std::nullopt;
  Eigen::MatrixXd jacobian(solution.regressors.rows(), count + linear);
  jacobian.rightCols(linear) = solution.regressors;
  jacobian.leftCols(count) =
      around.Slopes(jacobian.rows(), [&](const std::vector<double>& parameters) {
        return parameters.empty() ? Eigen::VectorXd() : likelihood.ErrorsAt(parameters);
      });
  Eigen::MatrixXd gram = jacobian.transpose() * jacobian;
  for (Eigen::Index j = 0; j < linear; ++j) {
    if (!solution.fit.dropped[static_cast<std::size_t>(j)]) continue;
    gram.row(count + j).setZero();
    gram.col(count + j).setZero();
    gram(count + j, count + j) = 1;
  }
  const std::optional<Eigen::MatrixXd> inverse = InversePositive(gram);
  if (!inverse) return std::nullopt;
  const double variance = solution.fit.sse / static_cast<double>(solution.residuals - estimated);
  const Eigen::VectorXd diagonal = inverse->diagonal();
  return Variances{.coordinates = variance * inverse->topLeftCorner(count, count),
                   .linear = variance * diagonal.tail(linear)};
}

}  // namespace

std::vector<double> ArimaStdErrors(const Likelihood& likelihood, const SearchSpace& space,
                                   const Evaluation& solution, unsigned estimated) {
  std::vector<double> errors(solution.parameters.size(), MV::gMissingValue);
  const Surroundings around(likelihood, space, solution);
  const std::optional<Variances> variances =
      likelihood.Method() == ArimaMethod::kCls
          ? FromJacobian(likelihood, around, solution, estimated)
          : FromHessian(likelihood, around, solution);
  if (!variances) return errors;

  const std::vector<std::size_t>& searched = space.Positions();
  const Eigen::MatrixXd slopes =
      around.Slopes(space.Dimension(), [&](const std::vector<double>& parameters) {
        Eigen::VectorXd values(parameters.empty() ? 0 : space.Dimension());
        for (Eigen::Index i = 0; i < values.size(); ++i) {
          values[i] = parameters[searched[static_cast<std::size_t>(i)]];
        }
        return values;
      });
  const Eigen::VectorXd coefficients =
      (slopes * variances->coordinates * slopes.transpose()).diagonal();
  for (const FreeCoordinate& free : around.Coordinates()) {
    errors[searched[static_cast<std::size_t>(free.coordinate)]] =
        std::sqrt(coefficients[free.coordinate]);
  }
  const std::vector<std::size_t>& linear = likelihood.GetDesign().LinearPositions();
  const std::size_t diffuse = solution.fit.dropped.size() - linear.size();
  for (std::size_t j = 0; j < linear.size(); ++j) {
    if (solution.fit.dropped[diffuse + j]) continue;
    errors[linear[j]] = std::sqrt(variances->linear[static_cast<Eigen::Index>(j)]);
  }
  return errors;
}

}  // namespace tsffit
