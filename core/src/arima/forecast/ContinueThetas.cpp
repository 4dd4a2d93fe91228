#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "arima/filter/NoiseFilter.h"
#include "arima/forecast/Continue.h"
#include "arima/forecast/Known.h"
#include "arima/forecast/NoisePath.h"
#include "arima/model/Effects.h"

namespace tsffit {

namespace {

// Rows of the theta recursion and the variances of their predictions.
struct ThetaRows {
  std::vector<std::vector<double>> thetas{};
  std::vector<double> nus{};
};

// The last `count` rows of the state.
std::optional<ThetaRows> LastRows(const ARMAMLSpForecastState& state, std::size_t count) {
  const auto& given = state.GetFinalThetas();
  const auto& variances = state.GetFinalNu();
  if (given.size() < count || variances.size() < count) return std::nullopt;
  ThetaRows rows;
  rows.thetas.assign(given.end() - static_cast<std::ptrdiff_t>(count), given.end());
  rows.nus.assign(variances.end() - static_cast<std::ptrdiff_t>(count), variances.end());
  const bool known =
      std::all_of(rows.thetas.begin(), rows.thetas.end(), AllKnown<std::vector<double>>) &&
      std::all_of(rows.nus.begin(), rows.nus.end(),
                  [](double nu) { return nu > 0 && std::isfinite(nu); });
  if (!known) return std::nullopt;
  return rows;
}

// The recursion after its last row; nothing where the state does not hold it.
std::optional<ThetaRecursion> Resumed(const ARMAMLSpForecastState& state, const Arma& arma,
                                      std::size_t depth) {
  const std::size_t q = arma.ma.size();
  if (state.GetFinalIterCount() < depth || state.GetFinalIterCount() > kMostPeriods) {
    return std::nullopt;
  }
  std::optional<ThetaRows> last = LastRows(state, q);
  if (!last) return std::nullopt;
  for (const std::vector<double>& row : last->thetas) {
    if (row.size() < q && state.GetFinalIterCount() > depth + q) return std::nullopt;
  }
  return ThetaRecursion(arma, state.GetFinalIterCount(), std::move(last->thetas),
                        std::move(last->nus));
}

ThetaRows NextRows(ThetaRecursion& recursion, std::size_t horizon) {
  ThetaRows rows;
  for (std::size_t h = 0; h < horizon; ++h) {
    rows.thetas.push_back(recursion.NextRow());
    rows.nus.push_back(recursion.Nu());
  }
  return rows;
}

// Brockwell and Davis (1991), equation 5.3.22, D(B) taken with phi(B).
std::vector<double> Variances(const ThetaRows& rows, const std::vector<double>& chi,
                              std::size_t q) {
  std::vector<double> variances;
  for (std::size_t h = 1; h <= rows.nus.size(); ++h) {
    double variance = 0;
    for (std::size_t j = 0; j < h; ++j) {  // the error of period h - j to come
      double weight = chi[j];
      for (std::size_t k = 1; k <= std::min(q, j); ++k) {
        weight += chi[j - k] * rows.thetas[h - j + k - 1][k - 1];
      }
      variance += weight * weight * rows.nus[h - j - 1];
    }
    variances.push_back(variance);
  }
  return variances;
}

}  // namespace

// Brockwell and Davis (1991), equation 5.3.15.
std::optional<ForecastPath> Continue(const ARMAMLSpForecastState& state,
                                     const std::vector<double>& mean) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const Arma arma = NoiseModel(spec, ToVector(state.GetParameterEstimates()));
  const std::size_t depth = std::max(arma.ar.size(), arma.ma.size());
  std::optional<LastNoise> last = FindLastNoise(state.GetActualN(), state.GetPredN(), depth);
  if (!last) return std::nullopt;
  std::optional<ThetaRecursion> recursion = Resumed(state, arma, depth);
  if (!recursion) return std::nullopt;
  const ThetaRows rows = NextRows(*recursion, mean.size());

  const auto thetaAt = [&](std::size_t j, std::size_t h) { return rows.thetas[h - 1][j - 1]; };
  const std::vector<double> noise = PredictNoise(arma, std::move(*last), mean.size(), thetaAt);
  std::optional<std::vector<double>> z = MeanFromNoise(state, noise, mean);
  if (!z) return std::nullopt;
  const std::vector<double> chi = ChiWeights(arma, SeriesDifference(spec), mean.size());
  return ForecastPath{.mean = std::move(*z), .variance = Variances(rows, chi, arma.ma.size())};
}

}  // namespace tsffit
