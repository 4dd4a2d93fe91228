#include "smoothing/StdErrors.h"

#include <Eigen/Cholesky>
#include <algorithm>
#include <cmath>

namespace tsffit {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;

// Share of a column that must be left after the other parameters have explained theirs.
constexpr double kLeastShare = 1e-10;

// J'J of the weights after the starting components have been eliminated (the Schur complement).
// The tiny ridge settles the one direction in which a season and the level may trade constants;
// it touches no weight.
MatrixXd EliminateComponents(const MatrixXd& full, Index weights) {
  const Index rest = full.rows() - weights;
  MatrixXd components = full.bottomRightCorner(rest, rest);
  components.diagonal() *= 1 + 1e-12;
  components.diagonal().array() += 1e-14 * full.diagonal().maxCoeff();
  const MatrixXd cross = full.bottomLeftCorner(rest, weights);
  const MatrixXd solved = components.selfadjointView<Eigen::Lower>().ldlt().solve(cross);
  MatrixXd schur = full.topLeftCorner(weights, weights);
  schur = MatrixXd(schur.selfadjointView<Eigen::Lower>());
  return schur - cross.transpose() * solved;
}

std::vector<Index> FreeWeights(const SmoothingProblem& problem, const Eigen::VectorXd& parameters,
                               const MatrixXd& full, const MatrixXd& schur) {
  std::vector<Index> free;
  for (Index w = 0; w < problem.WeightCount(); ++w) {
    const double lower = w == 0 ? problem.Traits().least_level_weight : 0;
    const bool inside = parameters[w] > lower && parameters[w] < 1;
    if (inside && schur(w, w) > kLeastShare * full(w, w)) free.push_back(w);
  }
  return free;
}

}  // namespace

std::vector<double> WeightStdErrors(const SmoothingProblem& problem,
                                    const Eigen::VectorXd& parameters) {
  const Index weights = problem.WeightCount();
  std::vector<double> errors(static_cast<std::size_t>(weights), MV::gMissingValue);
  SmoothingProblem::NormalEquations normal;
  if (!problem.Linearise(parameters, normal) || !(normal.sse > 0)) return errors;

  const MatrixXd schur = EliminateComponents(normal.matrix, weights);
  const std::vector<Index> free = FreeWeights(problem, parameters, normal.matrix, schur);
  const Eigen::LDLT<MatrixXd> factor(MatrixXd(schur(free, free)));
  if (free.empty() || !factor.isPositive()) return errors;

  const auto count = static_cast<Index>(free.size());
  const MatrixXd inverse = factor.solve(MatrixXd::Identity(count, count));
  const auto observed = std::count_if(problem.Series().begin(), problem.Series().end(),
                                      [](double y) { return y != MV::gMissingValue; });
  const double variance = normal.sse / static_cast<double>(observed - weights);
  for (Index i = 0; i < count; ++i) {
    const double squared = variance * inverse(i, i);
    if (squared > 0 && std::isfinite(squared)) {
      errors[static_cast<std::size_t>(free[static_cast<std::size_t>(i)])] = std::sqrt(squared);
    }
  }
  return errors;
}

}  // namespace tsffit
