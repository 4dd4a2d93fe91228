#include "arima/forecast/NoisePath.h"

#include <utility>

#include "arima/forecast/Known.h"
#include "arima/forecast/Undifference.h"
#include "arima/model/Effects.h"

namespace tsffit {

std::optional<LastNoise> FindLastNoise(const std::valarray<double>& actual,
                                       const std::valarray<double>& predicted, std::size_t depth) {
  if (actual.size() < depth || predicted.size() < depth) return std::nullopt;
  if (!AllKnown(actual) || !AllKnown(predicted)) return std::nullopt;
  LastNoise last;
  for (std::size_t k = depth; k > 0; --k) {
    last.values.push_back(actual[actual.size() - k]);
    last.errors.push_back(actual[actual.size() - k] - predicted[predicted.size() - k]);
  }
  return last;
}

std::optional<std::vector<double>> MeanFromNoise(const ARMAForecastState& state,
                                                 const std::vector<double>& noise,
                                                 const std::vector<double>& mean) {
  const Polynomial difference = SeriesDifference(state.GetAMModelSpec());
  std::optional<std::vector<double>> z = LastZ(state, Degree(difference));
  if (!z) return std::nullopt;
  std::vector<double> differenced = mean;
  for (std::size_t h = 0; h < mean.size(); ++h) differenced[h] += noise[h];
  return SumUp(difference, std::move(*z), differenced);
}

std::vector<double> ChiWeights(const Arma& arma, const Polynomial& difference, std::size_t count) {
  Polynomial ar = {1};
  for (const double phi : arma.ar) ar.push_back(-phi);
  return Quotient({1}, Product(ar, difference), count);
}

}  // namespace tsffit
