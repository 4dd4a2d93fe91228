#include <cstddef>
#include <optional>
#include <vector>

#include "arima/filter/StateSpace.h"
#include "arima/forecast/Continue.h"
#include "arima/forecast/Known.h"
#include "arima/forecast/Undifference.h"
#include "arima/model/Effects.h"

namespace tsffit {

namespace {

// What the filter begins with: its state, which is alpha and the last values of Z, and their
// covariance.
struct Filtered {
  Eigen::MatrixXd states;
  Eigen::MatrixXd covariance;
};

// The covariance comes packed by rows of its lower triangle.
Filtered Unpacked(const std::vector<double>& given, const std::valarray<double>& packed,
                  Eigen::Index order) {
  Filtered filtered{.states = Eigen::MatrixXd::Zero(order, 1),
                    .covariance = Eigen::MatrixXd::Zero(order, order)};
  std::size_t at = 0;
  for (std::size_t i = 0; i < given.size(); ++i) {
    const auto row = static_cast<Eigen::Index>(i);
    filtered.states(row, 0) = given[i];
    for (Eigen::Index column = 0; column <= row; ++column, ++at) {
      filtered.covariance(row, column) = packed[at];
      filtered.covariance(column, row) = packed[at];
    }
  }
  return filtered;
}

// Without the lags of Z in the state they are known.
std::optional<Filtered> FilteredState(const ARMAMLForecastState& state, std::size_t r,
                                      std::size_t m) {
  const std::vector<double> given = ToVector(state.GetFinalStateV());
  const std::valarray<double>& packed = state.GetFinalOmega().AsArray();
  if (given.size() != r && given.size() != r + m) return std::nullopt;
  if (packed.size() != given.size() * (given.size() + 1) / 2) return std::nullopt;
  if (!AllKnown(given) || !AllKnown(packed)) return std::nullopt;

  Filtered filtered = Unpacked(given, packed, static_cast<Eigen::Index>(r + m));
  if (given.size() == r && m > 0) {
    const std::optional<std::vector<double>> z = LastZ(state, m);
    if (!z) return std::nullopt;
    for (std::size_t k = 0; k < m; ++k) {
      filtered.states(static_cast<Eigen::Index>(r + k), 0) = (*z)[m - 1 - k];
    }
  }
  return filtered;
}

}  // namespace

std::optional<ForecastPath> Continue(const ARMAMLForecastState& state,
                                     const std::vector<double>& mean) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const Arma arma = NoiseModel(spec, ToVector(state.GetParameterEstimates()));
  const Polynomial difference = SeriesDifference(spec);
  const std::size_t m = Degree(difference);
  const std::optional<Filtered> from = FilteredState(state, arma.StateLength(), m);
  if (!from) return std::nullopt;

  StateSpace filter(arma, difference, Eigen::MatrixXd::Zero(static_cast<Eigen::Index>(m), 1));
  filter.Resume(from->states, from->covariance);
  // The effects since the state, which the filter does not know, summed up from 0.
  const std::vector<double> effects = SumUp(difference, std::vector<double>(m, 0.0), mean);
  ForecastPath path;
  for (std::size_t h = 0; h < mean.size(); ++h) {
    filter.Predict();
    path.mean.push_back(filter.Prediction()[0] + effects[h]);
    path.variance.push_back(filter.Variance());
  }
  return path;
}

}  // namespace tsffit
