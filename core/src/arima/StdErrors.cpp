#include "arima/StdErrors.h"

#include <Eigen/Cholesky>
#include <algorithm>
#include <cmath>
#include <optional>

#include <tsfcore/MV.h>

#include "arima/Effects.h"

namespace tsffit {

namespace {

// A searched coefficient that may be moved to both sides, and by how much.
struct Free {
  std::size_t position = 0;
  double step = 0;
};

// The largest step, halved from a thousandth of the coefficient's size, that stays in the region
// with something to spare; 0 when there is none.
double StepWithin(const Block& block, std::vector<double> parameters, std::size_t position) {
  const double value = parameters[position];
  for (double step = 1e-3 * std::max(std::abs(value), 0.1); step > 1e-8; step /= 2) {
    bool inside = true;
    for (const double side : {-2.0, 2.0}) {
      parameters[position] = value + side * step;
      inside = inside && IsInside(block, parameters);
    }
    if (inside) return step;
  }
  return 0;
}

std::vector<Free> FreeCoefficients(const Likelihood& likelihood, const SearchSpace& space,
                                   const std::vector<double>& parameters) {
  std::vector<Free> free;
  const double at = likelihood.CriterionAt(parameters);
  for (const Block& block : space.Blocks()) {
    if (IsAtEdge(block, parameters)) continue;
    for (std::size_t i = 0; i < block.Count(); ++i) {
      const std::size_t position = block.first + i;
      const double step = StepWithin(block, parameters, position);
      if (step == 0) continue;
      // A coefficient that moves nothing (the decay of an outlier in the last case) has no
      // curvature.
      std::vector<double> moved = parameters;
      moved[position] += step;
      if (likelihood.CriterionAt(moved) == at) continue;
      free.push_back({.position = position, .step = step});
    }
  }
  return free;
}

Eigen::MatrixXd Hessian(const Likelihood& likelihood, const std::vector<Free>& free,
                        std::vector<double> parameters) {
  const auto count = static_cast<Eigen::Index>(free.size());
  Eigen::MatrixXd hessian(count, count);
  const auto at = [&](std::size_t i, double a, std::size_t j, double b) {
    std::vector<double> moved = parameters;
    moved[free[i].position] += a * free[i].step;
    moved[free[j].position] += b * free[j].step;
    return likelihood.CriterionAt(moved);
  };
  const double centre = likelihood.CriterionAt(parameters);
  for (std::size_t i = 0; i < free.size(); ++i) {
    const auto row = static_cast<Eigen::Index>(i);
    hessian(row, row) =
        (at(i, 1, i, 0) - 2 * centre + at(i, -1, i, 0)) / (free[i].step * free[i].step);
    for (std::size_t j = 0; j < i; ++j) {
      const double mixed = at(i, 1, j, 1) - at(i, 1, j, -1) - at(i, -1, j, 1) + at(i, -1, j, -1);
      hessian(row, static_cast<Eigen::Index>(j)) = mixed / (4 * free[i].step * free[j].step);
      hessian(static_cast<Eigen::Index>(j), row) = hessian(row, static_cast<Eigen::Index>(j));
    }
  }
  return hessian;
}

// The inverse of a positive definite matrix, scaled to a unit diagonal in between.
std::optional<Eigen::MatrixXd> InversePositive(const Eigen::MatrixXd& matrix) {
  if (!matrix.allFinite() || !(matrix.diagonal().array() > 0).all()) return std::nullopt;
  const Eigen::VectorXd scale = matrix.diagonal().cwiseSqrt().cwiseInverse();
  const Eigen::LDLT<Eigen::MatrixXd> factors(scale.asDiagonal() * matrix * scale.asDiagonal());
  if (factors.info() != Eigen::Success || !(factors.vectorD().array() > 1e-12).all()) {
    return std::nullopt;
  }
  const Eigen::MatrixXd inverse =
      factors.solve(Eigen::MatrixXd::Identity(matrix.rows(), matrix.cols()));
  return scale.asDiagonal() * inverse * scale.asDiagonal();
}

// How the linear coefficients, diffuse values first, move with the searched ones.
Eigen::MatrixXd LinearSlopes(const Likelihood& likelihood, const std::vector<Free>& free,
                             const Evaluation& solution) {
  Eigen::MatrixXd slopes = Eigen::MatrixXd::Zero(solution.fit.coefficients.size(),
                                                 static_cast<Eigen::Index>(free.size()));
  for (std::size_t i = 0; i < free.size(); ++i) {
    std::vector<double> moved = solution.parameters;
    moved[free[i].position] += free[i].step;
    const Evaluation up = likelihood.At(moved);
    moved[free[i].position] -= 2 * free[i].step;
    const Evaluation down = likelihood.At(moved);
    if (!up.usable || !down.usable) continue;
    slopes.col(static_cast<Eigen::Index>(i)) =
        (up.fit.coefficients - down.fit.coefficients) / (2 * free[i].step);
  }
  return slopes;
}

// Variances of all coefficients: searched ones (in the order of `free`), then linear ones.
struct Variances {
  Eigen::VectorXd searched;
  Eigen::VectorXd linear;
};

// By the inverse of the joint Hessian, put together from that of the profile likelihood (Patefield
// 1977, "On the maximized likelihood function", Sankhya B 39, 92-96).
std::optional<Variances> FromHessian(const Likelihood& likelihood, const std::vector<Free>& free,
                                     const Evaluation& solution) {
  const std::optional<Eigen::MatrixXd> searched =
      InversePositive(Hessian(likelihood, free, solution.parameters));
  if (!searched) return std::nullopt;
  const double variance = solution.fit.sse / static_cast<double>(solution.residuals);
  const Eigen::MatrixXd slopes = LinearSlopes(likelihood, free, solution);
  const Eigen::MatrixXd linear = variance * InverseGram(solution.regressors, solution.fit.dropped) +
                                 slopes * *searched * slopes.transpose();
  return Variances{.searched = searched->diagonal(), .linear = linear.diagonal()};
}

std::optional<Variances> FromJacobian(const Likelihood& likelihood, const std::vector<Free>& free,
                                      const Evaluation& solution, unsigned estimated) {
  const auto count = static_cast<Eigen::Index>(free.size());
  const Eigen::Index linear = solution.regressors.cols();
  Eigen::MatrixXd jacobian(solution.regressors.rows(), count + linear);
  jacobian.rightCols(linear) = solution.regressors;
  for (Eigen::Index i = 0; i < count; ++i) {
    const Free& coefficient = free[static_cast<std::size_t>(i)];
    std::vector<double> moved = solution.parameters;
    moved[coefficient.position] += coefficient.step;
    const Eigen::VectorXd up = likelihood.ErrorsAt(moved);
    moved[coefficient.position] -= 2 * coefficient.step;
    const Eigen::VectorXd down = likelihood.ErrorsAt(moved);
    if (up.size() == 0 || down.size() == 0) return std::nullopt;
    jacobian.col(i) = (up - down) / (2 * coefficient.step);
  }
  std::vector<bool> dropped(free.size(), false);
  dropped.insert(dropped.end(), solution.fit.dropped.begin(), solution.fit.dropped.end());
  Eigen::MatrixXd gram = jacobian.transpose() * jacobian;
  for (std::size_t j = 0; j < dropped.size(); ++j) {
    const auto at = static_cast<Eigen::Index>(j);
    if (dropped[j]) gram(at, at) = 1;
  }
  const std::optional<Eigen::MatrixXd> inverse = InversePositive(gram);
  if (!inverse) return std::nullopt;
  const double variance = solution.fit.sse / static_cast<double>(solution.residuals - estimated);
  const Eigen::VectorXd diagonal = variance * inverse->diagonal();
  return Variances{.searched = diagonal.head(count), .linear = diagonal.tail(linear)};
}

}  // namespace

std::vector<double> ArimaStdErrors(const Likelihood& likelihood, const SearchSpace& space,
                                   const Evaluation& solution, unsigned estimated) {
  std::vector<double> errors(solution.parameters.size(), MV::gMissingValue);
  const std::vector<Free> free = FreeCoefficients(likelihood, space, solution.parameters);
  const std::optional<Variances> variances =
      likelihood.Method() == ArimaMethod::kCls ? FromJacobian(likelihood, free, solution, estimated)
                                               : FromHessian(likelihood, free, solution);
  if (!variances) return errors;
  for (std::size_t i = 0; i < free.size(); ++i) {
    errors[free[i].position] = std::sqrt(variances->searched[static_cast<Eigen::Index>(i)]);
  }
  const std::vector<std::size_t>& linear = likelihood.GetDesign().LinearPositions();
  const std::size_t diffuse = solution.fit.dropped.size() - linear.size();
  for (std::size_t j = 0; j < linear.size(); ++j) {
    if (solution.fit.dropped[diffuse + j]) continue;
    errors[linear[j]] = std::sqrt(variances->linear[static_cast<Eigen::Index>(diffuse + j)]);
  }
  return errors;
}

}  // namespace tsffit
