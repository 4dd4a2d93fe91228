#include "arima/fit/GappyRun.h"

#include <algorithm>
#include <vector>

#include "arima/filter/StateSpace.h"
#include "arima/model/Effects.h"
#include "series/Observed.h"

namespace tsffit {

Eigen::VectorXd LinearCoefficients(const Likelihood& likelihood, const Evaluation& solution) {
  const std::vector<std::size_t>& positions = likelihood.GetDesign().LinearPositions();
  Eigen::VectorXd beta(static_cast<Eigen::Index>(positions.size()));
  for (std::size_t j = 0; j < positions.size(); ++j) {
    beta[static_cast<Eigen::Index>(j)] = ValueOrZero(solution.parameters[positions[j]]);
  }
  return beta;
}

Eigen::VectorXd LinearEffect(const Likelihood& likelihood, const Evaluation& solution) {
  return likelihood.GetDesign().Effects(solution.parameters) *
         LinearCoefficients(likelihood, solution);
}

GappyRun RunWithGaps(const Likelihood& likelihood, const Evaluation& solution) {
  const Design& design = likelihood.GetDesign();
  const Eigen::VectorXd effect = design.Integrated(LinearEffect(likelihood, solution));
  const Eigen::Index diffuse = solution.diffuse.size();
  const Eigen::VectorXd known = design.LagsBeforeFirst();
  Eigen::MatrixXd lags = Eigen::MatrixXd::Zero(known.size(), 1 + diffuse);
  Eigen::Index next = 0;
  for (Eigen::Index k = 0; k < known.size(); ++k) {
    if (IsMissing(known[k])) {
      lags(k, 0) = solution.diffuse[next];
      lags(k, ++next) = 1;
    } else {
      lags(k, 0) = known[k];
    }
  }
  Eigen::MatrixXd columns = Eigen::MatrixXd::Zero(effect.size(), 1 + diffuse);
  columns.col(0) = design.Undifferenced() - effect;
  StateSpace filter(NoiseModel(design.Spec(), solution.parameters), design.Difference(), lags);
  const StateSpaceRun run = RunStateSpace(filter, columns, design.MissingRows());

  GappyRun result;
  result.predictions = run.predictions.col(0) + effect;
  result.state = filter.States().col(0);
  result.covariance = filter.Covariance();
  if (diffuse > 0) {  // their uncertainty is the state's
    const std::vector<bool> none(static_cast<std::size_t>(diffuse), false);
    const Eigen::MatrixXd spread = filter.States().rightCols(diffuse);
    result.covariance +=
        spread * InverseGram(solution.regressors.leftCols(diffuse), none) * spread.transpose();
  }
  // The lags of Z in the state are those of Z less its effects since the first row.
  const auto lagCount = static_cast<Eigen::Index>(Degree(design.Difference()));
  for (Eigen::Index k = 0; k < std::min(lagCount, effect.size()); ++k) {
    result.state[result.state.size() - lagCount + k] += effect[effect.size() - 1 - k];
  }
  return result;
}

}  // namespace tsffit
