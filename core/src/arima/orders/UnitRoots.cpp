#include "arima/orders/UnitRoots.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "arima/orders/Stl.h"
#include "series/Observed.h"

namespace tsffit {

namespace {

constexpr double kKpssCritical = 0.463;      // 5 %: table 1 of the paper
constexpr double kStrengthOfASeason = 0.64;  // least strength that a difference is taken for
constexpr double kEqual = 1e-8;

double Mean(std::span<const double> x) {
  return std::accumulate(x.begin(), x.end(), 0.0) / static_cast<double>(x.size());
}

double Variance(std::span<const double> x) {
  const double mean = Mean(x);
  double sum = 0;
  for (const double value : x) sum += (value - mean) * (value - mean);
  return sum / static_cast<double>(x.size());
}

// The nearest observed case at t + step, t + 2 step, ..; `series.size()` when there is none.
std::size_t NextObserved(std::span<const double> series, std::size_t t, std::ptrdiff_t step) {
  const auto size = static_cast<std::ptrdiff_t>(series.size());
  for (std::ptrdiff_t i = static_cast<std::ptrdiff_t>(t) + step; i >= 0 && i < size; i += step) {
    if (!IsMissing(series[static_cast<std::size_t>(i)])) return static_cast<std::size_t>(i);
  }
  return series.size();
}

// A value for the missing case t on the line between its neighbours `step` apart; missing without
// neighbours.
double Interpolated(std::span<const double> series, std::size_t t, std::size_t step) {
  const std::size_t before = NextObserved(series, t, -static_cast<std::ptrdiff_t>(step));
  const std::size_t after = NextObserved(series, t, static_cast<std::ptrdiff_t>(step));
  if (before == series.size()) {
    return after == series.size() ? MV::gMissingValue : series[after];
  }
  if (after == series.size()) return series[before];
  const double share = static_cast<double>(t - before) / static_cast<double>(after - before);
  return series[before] + share * (series[after] - series[before]);
}

std::vector<double> Completed(std::span<const double> series, std::size_t seasonLength) {
  std::vector<double> complete(series.begin(), series.end());
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (!IsMissing(series[t])) continue;
    complete[t] = Interpolated(series, t, seasonLength);
    if (IsMissing(complete[t])) complete[t] = Interpolated(series, t, 1);
  }
  return complete;
}

}  // namespace

bool IsConstant(std::span<const double> series) {
  const std::vector<double> x = Observed(series);
  if (x.size() < 2) return true;
  const auto [least, most] = std::minmax_element(x.begin(), x.end());
  return *most - *least <= kEqual * std::max(std::abs(*least), std::abs(*most));
}

std::vector<double> DifferencedBy(std::span<const double> series, std::size_t lag) {
  std::vector<double> differences;
  for (std::size_t t = lag; t < series.size(); ++t) {
    const bool missing = IsMissing(series[t]) || IsMissing(series[t - lag]);
    differences.push_back(missing ? MV::gMissingValue : series[t] - series[t - lag]);
  }
  return differences;
}

std::vector<double> Observed(std::span<const double> series) {
  std::vector<double> observed;
  std::copy_if(series.begin(), series.end(), std::back_inserter(observed),
               [](double value) { return !IsMissing(value); });
  return observed;
}

double KpssStatistic(std::span<const double> series) {
  const std::size_t n = series.size();
  const auto count = static_cast<double>(n);
  const double mean = Mean(series);
  double partial = 0;
  double sumOfPartials = 0;
  for (const double value : series) {
    partial += value - mean;
    sumOfPartials += partial * partial;
  }
  const auto lags = static_cast<std::size_t>(3 * std::sqrt(count) / 13);
  double longRun = 0;
  for (std::size_t lag = 0; lag <= lags; ++lag) {
    double products = 0;
    for (std::size_t t = lag; t < n; ++t) products += (series[t] - mean) * (series[t - lag] - mean);
    const double bartlett = 1 - static_cast<double>(lag) / static_cast<double>(lags + 1);
    longRun += (lag == 0 ? 1 : 2) * bartlett * products / count;
  }
  return sumOfPartials / (count * count) / longRun;
}

double SeasonalStrength(std::span<const double> series, std::size_t seasonLength) {
  const std::vector<double> complete = Completed(series, seasonLength);
  const SeasonalDecomposition parts = DecomposeSeason(complete, seasonLength);
  std::vector<double> remainder;
  std::vector<double> withSeason;
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (IsMissing(series[t])) continue;
    withSeason.push_back(series[t] - parts.trend[t]);
    remainder.push_back(withSeason.back() - parts.season[t]);
  }
  const double all = Variance(withSeason);
  return all > 0 ? std::max(0.0, 1 - Variance(remainder) / all) : 0;
}

unsigned NonSeasonalDifferences(std::span<const double> series, unsigned limit) {
  std::vector<double> x = Observed(series);
  unsigned d = 0;
  while (d < limit && !IsConstant(x) && KpssStatistic(x) > kKpssCritical) {
    x = DifferencedBy(x, 1);
    ++d;
  }
  return d;
}

unsigned SeasonalDifferences(std::span<const double> series, std::size_t seasonLength,
                             unsigned limit) {
  if (seasonLength < 2) return 0;
  std::vector<double> x(series.begin(), series.end());
  unsigned d = 0;
  while (d < limit && x.size() > 2 * seasonLength && !IsConstant(x) &&
         SeasonalStrength(x, seasonLength) > kStrengthOfASeason) {
    x = DifferencedBy(x, seasonLength);
    ++d;
  }
  return d;
}

}  // namespace tsffit
