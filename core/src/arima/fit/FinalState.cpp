#include "arima/fit/FinalState.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>
#include <tsfcore/MV.h>

#include "arima/filter/NoiseFilter.h"
#include "arima/filter/StateSpace.h"
#include "arima/fit/GappyRun.h"
#include "arima/model/Effects.h"
#include "series/Observed.h"

namespace tsffit {

namespace {

std::valarray<double> ToValarray(const Eigen::VectorXd& values) {
  return {values.data(), static_cast<std::size_t>(values.size())};
}

std::valarray<double> Tail(const std::vector<double>& values, std::size_t count, double unit) {
  count = std::min(count, values.size());
  std::valarray<double> tail(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double value = values[values.size() - count + i];
    tail[i] = IsMissing(value) ? value : value * unit;
  }
  return tail;
}

ARMAForecastState::XHistory PredictorHistory(const Likelihood& likelihood,
                                             const Evaluation& solution, unsigned i) {
  const Design& design = likelihood.GetDesign();
  const AMModelSpec& spec = design.Spec();
  ARMAForecastState::XHistory history;
  history.predictor = Tail(design.Data().predictors[i], PredictorReach(spec, i), 1);

  const std::size_t depth = Degree(TransferFunctionOf(spec, i, solution.parameters).denominator);
  if (depth == 0) return history;
  AMPowers regular;
  AMPowers seasonal;
  spec.GetXNumerator(i, regular, seasonal);
  const std::size_t from = spec.GetXRegressionCoeff(i);
  Eigen::VectorXd beta = LinearCoefficients(likelihood, solution);
  for (std::size_t j = 0; j < design.LinearPositions().size(); ++j) {
    const std::size_t position = design.LinearPositions()[j];
    if (position < from || position > from + regular.GetCount()) {
      beta[static_cast<Eigen::Index>(j)] = 0;
    }
  }
  const Eigen::VectorXd output = design.Effects(solution.parameters) * beta;
  history.transfer_function =
      ToValarray(design.Data().unit * output.tail(static_cast<Eigen::Index>(depth)));
  return history;
}

// The noise and its one-step predictions, over the rows.
struct Noise {
  std::vector<double> actual;
  std::vector<double> predicted;
};

Noise NoiseOf(const Likelihood& likelihood, const Evaluation& solution, const ArimaReplay& replay) {
  const Design& design = likelihood.GetDesign();
  const Eigen::VectorXd noise = design.Differenced() - LinearEffect(likelihood, solution);
  Noise result;
  for (Eigen::Index row = 0; row < noise.size(); ++row) {
    const std::size_t t = design.First() + static_cast<std::size_t>(row);
    const double prediction = replay.predictions[t];
    const double error = IsMissing(prediction) ? 0 : design.Data().series[t] - prediction;
    result.actual.push_back(noise[row]);
    result.predicted.push_back(noise[row] - error);
  }
  return result;
}

std::unique_ptr<ForecastState> KalmanState(const Likelihood& likelihood, const Evaluation& solution,
                                           ARMAForecastState::Common common) {
  const Design& design = likelihood.GetDesign();
  const double unit = design.Data().unit;
  const Arma arma = NoiseModel(design.Spec(), solution.parameters);
  Eigen::VectorXd state;
  Eigen::MatrixXd covariance;
  if (design.IsComplete()) {
    const Eigen::VectorXd noise = design.Differenced() - LinearEffect(likelihood, solution);
    StateSpace filter(arma, {1}, Eigen::MatrixXd(0, 1));
    RunStateSpace(filter, noise, design.MissingRows());
    state = filter.States().col(0);
    covariance = filter.Covariance();
  } else {
    GappyRun run = RunWithGaps(likelihood, solution);
    state = std::move(run.state);
    covariance = std::move(run.covariance);
  }
  // The last values of Z are part of the state only where one of them had to be estimated.
  if (std::none_of(std::begin(common.actual_z), std::end(common.actual_z), IsMissing)) {
    const auto length = static_cast<Eigen::Index>(arma.StateLength());
    state = state.head(length).eval();
    covariance = covariance.topLeftCorner(length, length).eval();
  }
  const auto order = static_cast<std::size_t>(state.size());
  std::valarray<double> packed(order * (order + 1) / 2);
  std::size_t at = 0;
  for (Eigen::Index i = 0; i < state.size(); ++i) {
    for (Eigen::Index j = 0; j <= i; ++j) packed[at++] = covariance(i, j);
  }
  return std::make_unique<ARMAMLForecastState>(
      ARMAMLForecastState::Fields{.common = std::move(common),
                                  .final_omega = DSymMat(order, std::move(packed)),
                                  .final_state = ToValarray(unit * state)});
}

std::unique_ptr<ForecastState> ThetaState(const Likelihood& likelihood, const Evaluation& solution,
                                          const ArimaReplay& replay,
                                          ARMAForecastState::Common common) {
  const Design& design = likelihood.GetDesign();
  const double unit = design.Data().unit;
  const Arma arma = NoiseModel(design.Spec(), solution.parameters);
  const std::size_t q = arma.ma.size();
  const std::size_t depth = std::max(arma.ar.size(), q);
  const Noise noise = NoiseOf(likelihood, solution, replay);
  ThetaRecursion recursion(arma);
  while (recursion.Count() < design.Rows()) recursion.NextRow();

  ARMAMLSpForecastState::Fields fields;
  fields.common = std::move(common);
  fields.actual_n = Tail(noise.actual, depth, unit);
  fields.predicted_n = Tail(noise.predicted, depth, unit);
  fields.final_iteration_count = recursion.Count();
  if (q > 0) {
    const auto rows = static_cast<std::ptrdiff_t>(q);
    fields.final_thetas.assign(recursion.Rows().end() - rows, recursion.Rows().end());
    fields.final_nu.assign(recursion.Nus().end() - rows, recursion.Nus().end());
  }
  return std::make_unique<ARMAMLSpForecastState>(std::move(fields));
}

std::unique_ptr<ForecastState> ConditionalState(const Likelihood& likelihood,
                                                const Evaluation& solution,
                                                const ArimaReplay& replay,
                                                ARMAForecastState::Common common) {
  const double unit = likelihood.GetDesign().Data().unit;
  const Arma arma = NoiseModel(likelihood.GetDesign().Spec(), solution.parameters);
  const std::size_t depth = std::max(arma.ar.size(), arma.ma.size());
  const Noise noise = NoiseOf(likelihood, solution, replay);
  return std::make_unique<ARMACLSForecastState>(
      ARMACLSForecastState::Fields{.common = std::move(common),
                                   .actual_n = Tail(noise.actual, depth, unit),
                                   .predicted_n = Tail(noise.predicted, depth, unit)});
}

}  // namespace

ArimaReplay ReplayArima(const Likelihood& likelihood, const Evaluation& solution) {
  const Design& design = likelihood.GetDesign();
  const std::vector<double>& series = design.Data().series;
  ArimaReplay replay;
  replay.predictions.assign(series.size(), MV::gMissingValue);
  replay.standardised.assign(series.size(), MV::gMissingValue);
  Eigen::VectorXd predictions;
  if (!design.IsComplete()) predictions = RunWithGaps(likelihood, solution).predictions;
  for (std::size_t row = 0; row < design.Rows(); ++row) {
    const std::size_t t = design.First() + row;
    const auto at = static_cast<Eigen::Index>(row);
    const double nu = solution.nu[at];
    if (nu > 0) replay.standardised[t] = solution.fit.residuals[at];
    if (!design.IsComplete()) {
      replay.predictions[t] = predictions[at];
    } else if (nu > 0) {
      replay.predictions[t] = series[t] - solution.fit.residuals[at] * std::sqrt(nu);
    }
  }
  return replay;
}

std::unique_ptr<ForecastState> MakeArimaState(const Likelihood& likelihood,
                                              const Evaluation& solution, const ArimaReplay& replay,
                                              ARMAForecastState::Common common) {
  const Design& design = likelihood.GetDesign();
  const std::size_t depth = std::max<std::size_t>(Degree(design.Difference()), 1);
  common.actual_z = Tail(design.Data().series, depth, design.Data().unit);
  common.predicted_z = Tail(replay.predictions, depth, design.Data().unit);
  for (unsigned i = 0; i < design.Spec().GetXCount(); ++i) {
    common.x_history.push_back(PredictorHistory(likelihood, solution, i));
  }
  switch (likelihood.Method()) {
    case ArimaMethod::kMl:
      return KalmanState(likelihood, solution, std::move(common));
    case ArimaMethod::kMlTheta:
      return ThetaState(likelihood, solution, replay, std::move(common));
    case ArimaMethod::kCls:
      return ConditionalState(likelihood, solution, replay, std::move(common));
  }
  return nullptr;
}

}  // namespace tsffit
