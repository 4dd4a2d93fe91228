#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "arima/forecast/Continue.h"
#include "arima/forecast/Known.h"
#include "arima/forecast/NoisePath.h"
#include "arima/model/Effects.h"

namespace tsffit {

namespace {

// Sums of the squared psi weights of the whole model (Box and Jenkins 1976, section 5.1).
std::vector<double> Variances(const Arma& arma, const std::vector<double>& chi) {
  std::vector<double> variances;
  double variance = 0;
  for (std::size_t j = 0; j < chi.size(); ++j) {
    double psi = chi[j];
    for (std::size_t k = 1; k <= std::min(arma.ma.size(), j); ++k) {
      psi += chi[j - k] * arma.ma[k - 1];
    }
    variance += psi * psi;
    variances.push_back(variance);
  }
  return variances;
}

}  // namespace

std::optional<ForecastPath> Continue(const ARMACLSForecastState& state,
                                     const std::vector<double>& mean) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const Arma arma = NoiseModel(spec, ToVector(state.GetParameterEstimates()));
  const std::size_t depth = std::max(arma.ar.size(), arma.ma.size());
  std::optional<LastNoise> last = FindLastNoise(state.GetActualN(), state.GetPredN(), depth);
  if (!last) return std::nullopt;
  const auto thetaAt = [&](std::size_t j, std::size_t) { return arma.ma[j - 1]; };
  const std::vector<double> noise = PredictNoise(arma, std::move(*last), mean.size(), thetaAt);
  std::optional<std::vector<double>> z = MeanFromNoise(state, noise, mean);
  if (!z) return std::nullopt;
  const std::vector<double> chi = ChiWeights(arma, SeriesDifference(spec), mean.size());
  return ForecastPath{.mean = std::move(*z), .variance = Variances(arma, chi)};
}

}  // namespace tsffit
