#ifndef TSFFIT_ARIMA_FORECAST_NOISEPATH_H_
#define TSFFIT_ARIMA_FORECAST_NOISEPATH_H_

#include <cstddef>
#include <optional>
#include <valarray>
#include <vector>

#include <tsfcore/ARMAForecastState.h>

#include "math/Polynomial.h"

namespace tsffit {

// What the methods share that keep the last values of the noise N of equation (1) of Arima.h.

// The last noise values and the errors of their predictions, oldest first.
struct LastNoise {
  std::vector<double> values{};
  std::vector<double> errors{};
};

// `depth` of each; nothing when one is not known.
std::optional<LastNoise> FindLastNoise(const std::valarray<double>& actual,
                                       const std::valarray<double>& predicted, std::size_t depth);

// Predictions of the noise over `horizon` periods, by equation (2) of Arima.h solved for N_t:
// `thetaAt(j, h)` multiplies the error j periods before period h to come.
template <typename ThetaAt>
std::vector<double> PredictNoise(const Arma& arma, LastNoise last, std::size_t horizon,
                                 const ThetaAt& thetaAt) {
  std::vector<double>& noise = last.values;
  const std::size_t depth = noise.size();
  for (std::size_t h = 1; h <= horizon; ++h) {
    double value = 0;
    for (std::size_t k = 1; k <= arma.ar.size(); ++k) {
      value += arma.ar[k - 1] * noise[noise.size() - k];
    }
    for (std::size_t j = h; j <= arma.ma.size(); ++j) {
      value += thetaAt(j, h) * last.errors[last.errors.size() - (j - h + 1)];
    }
    noise.push_back(value);
  }
  noise.erase(noise.begin(), noise.begin() + static_cast<std::ptrdiff_t>(depth));
  return noise;
}

// The forecasts of Z from predictions of the noise and the mean of the differenced series; nothing
// when the last values of Z are not known.
std::optional<std::vector<double>> MeanFromNoise(const ARMAForecastState& state,
                                                 const std::vector<double>& noise,
                                                 const std::vector<double>& mean);

// The first `count` weights of 1 / (phi(B) D(B)).
std::vector<double> ChiWeights(const Arma& arma, const Polynomial& difference, std::size_t count);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FORECAST_NOISEPATH_H_
