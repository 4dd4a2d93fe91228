#include "series/Scale.h"

#include <algorithm>
#include <cmath>

#include "series/Observed.h"

namespace tsffit {

namespace {

// Mean of `f(y)` over the observed cases; the division comes first, so that no sum overflows.
template <class F>
double MeanOf(std::span<const double> series, F&& f) {
  double count = 0;
  for (const double y : series) count += IsMissing(y) ? 0 : 1;
  double mean = 0;
  for (const double y : series) {
    if (!IsMissing(y)) mean += f(y) / count;
  }
  return mean;
}

// Counted from the first value, so that a constant series has no deviations at all.
double MeanFromFirst(std::span<const double> series) {
  const double first = series[FirstObserved(series)];
  return first + MeanOf(series, [first](double y) { return y - first; });
}

}  // namespace

Scale StandardScale(std::span<const double> series) {
  const double mean = MeanFromFirst(series);
  Scale scale{.shift = mean};
  double largest = 0;
  for (const double y : series) {
    if (!IsMissing(y)) largest = std::max(largest, std::abs(y - mean));
  }
  if (largest == 0) return scale;
  const auto square = [&](double y) { return (y - mean) / largest * ((y - mean) / largest); };
  scale.unit = largest * std::sqrt(MeanOf(series, square));
  return scale;
}

Scale MeanScale(std::span<const double> series) { return {.unit = MeanFromFirst(series)}; }

std::vector<double> Scaled(std::span<const double> series, const Scale& scale) {
  std::vector<double> scaled(series.begin(), series.end());
  for (double& y : scaled) y = IsMissing(y) ? y : scale.Down(y);
  return scaled;
}

}  // namespace tsffit
