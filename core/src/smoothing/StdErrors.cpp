#include "smoothing/StdErrors.h"

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <algorithm>
#include <cmath>

#include "series/Observed.h"

namespace tsffit {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;

// Beyond so many starting components those of the season are held, not concentrated out.
constexpr std::size_t kMostComponents = 600;

// Step of the central differences, for parameters of a series of unit size.
constexpr double kStep = 1e-4;

// Share of its curvature that a weight must keep after the other parameters have adapted.
constexpr double kLeastShare = 1e-9;

bool OnBound(const SmoothingProblem& problem, double weight, std::size_t position) {
  const double lower = position == 0 ? problem.Traits().least_level_weight : 0;
  return weight <= lower || weight >= 1;
}

// Parameters whose curvature counts: free weights, then starting components. The last seasonal
// value is left out, since only its difference from the level counts.
std::vector<std::size_t> Active(const SmoothingProblem& problem,
                                const std::vector<double>& parameters) {
  std::vector<std::size_t> active;
  for (std::size_t w = 0; w < problem.WeightCount(); ++w) {
    if (!OnBound(problem, parameters[w], w)) active.push_back(w);
  }
  const bool seasonal = problem.Traits().season != Season::kNone;
  std::size_t end = problem.Layout().size - (seasonal ? 1 : 0);
  if (end > kMostComponents) end = problem.Layout().season;
  for (std::size_t i = problem.WeightCount(); i < end; ++i) active.push_back(i);
  return active;
}

// Second derivatives of half the sum of squares by the active parameters: central differences of
// the exact gradient. Empty when a step leaves the region of the model.
MatrixXd Hessian(SmoothingProblem& problem, const std::vector<double>& parameters,
                 const std::vector<std::size_t>& active) {
  const auto count = static_cast<Index>(active.size());
  MatrixXd hessian(count, count);
  std::vector<double> x = parameters;
  std::vector<double> up(x.size());
  std::vector<double> down(x.size());
  for (Index column = 0; column < count; ++column) {
    const std::size_t i = active[static_cast<std::size_t>(column)];
    x[i] = parameters[i] + kStep;
    const bool upInside = std::isfinite(problem.Sse(x, up));
    x[i] = parameters[i] - kStep;
    if (!upInside || !std::isfinite(problem.Sse(x, down))) return {};
    x[i] = parameters[i];
    for (Index row = 0; row < count; ++row) {
      const std::size_t j = active[static_cast<std::size_t>(row)];
      hessian(row, column) = (up[j] - down[j]) / (4 * kStep);
    }
  }
  return (hessian + hessian.transpose()) / 2;
}

// The curvature that is left to the weights when the starting components adapt: the Schur
// complement.
MatrixXd Concentrated(const MatrixXd& hessian, Index weights) {
  const Index rest = hessian.rows() - weights;
  MatrixXd components = hessian.bottomRightCorner(rest, rest);
  components.diagonal().array() += 1e-13 * components.diagonal().cwiseAbs().maxCoeff();
  const MatrixXd cross = hessian.bottomLeftCorner(rest, weights);
  const MatrixXd adapted = components.ldlt().solve(cross);
  return hessian.topLeftCorner(weights, weights) - cross.transpose() * adapted;
}

// Rows of the weights that bend the sum of squares at all.
std::vector<Index> Bending(const MatrixXd& curvature, double most) {
  std::vector<Index> bending;
  for (Index i = 0; i < curvature.rows(); ++i) {
    if (curvature(i, i) > kLeastShare * most) bending.push_back(i);
  }
  return bending;
}

double ErrorVariance(SmoothingProblem& problem, const std::vector<double>& parameters) {
  const std::size_t observed = CountObserved(problem.Series());
  return problem.Sse(parameters) / static_cast<double>(observed - problem.WeightCount());
}

}  // namespace

std::vector<double> WeightStdErrors(SmoothingProblem& problem,
                                    const std::vector<double>& parameters) {
  std::vector<double> errors(problem.WeightCount(), MV::gMissingValue);
  const std::vector<std::size_t> active = Active(problem, parameters);
  const auto weights = static_cast<Index>(std::count_if(
      active.begin(), active.end(), [&](std::size_t i) { return i < problem.WeightCount(); }));
  if (weights == 0) return errors;
  const MatrixXd hessian = Hessian(problem, parameters, active);
  if (hessian.size() == 0) return errors;

  const MatrixXd curvature = Concentrated(hessian, weights);
  const std::vector<Index> bending =
      Bending(curvature, hessian.diagonal().head(weights).maxCoeff());
  if (bending.empty()) return errors;
  const Eigen::LDLT<MatrixXd> factor(MatrixXd(curvature(bending, bending)));
  if (!factor.isPositive() || !(factor.vectorD().minCoeff() > 0)) return errors;
  const auto count = static_cast<Index>(bending.size());
  const MatrixXd inverse = factor.solve(MatrixXd::Identity(count, count));

  const double variance = ErrorVariance(problem, parameters);
  for (Index i = 0; i < count; ++i) {
    const double squared = variance * inverse(i, i);
    const Index row = bending[static_cast<std::size_t>(i)];
    if (squared > 0 && std::isfinite(squared)) {
      errors[active[static_cast<std::size_t>(row)]] = std::sqrt(squared);
    }
  }
  return errors;
}

}  // namespace tsffit
