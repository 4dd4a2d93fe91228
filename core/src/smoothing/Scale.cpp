#include "smoothing/Scale.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tsffit {

namespace {

// Mean of `f(y)` over the observed cases; the division comes first, so that no sum overflows.
template <class F>
double MeanOf(std::span<const double> series, F&& f) {
  double count = 0;
  for (const double y : series) count += y == MV::gMissingValue ? 0 : 1;
  double mean = 0;
  for (const double y : series) {
    if (y != MV::gMissingValue) mean += f(y) / count;
  }
  return mean;
}

}  // namespace

Components Scale::Up(Components c, Season season) const {
  c.level = Up(c.level);
  c.trend *= unit;
  if (season == Season::kAdditive) {
    for (double& value : c.season) value *= unit;
  }
  return c;
}

Scale ScaleOf(std::span<const double> series, Season season) {
  Scale scale;
  const double first =
      *std::find_if(series.begin(), series.end(), [](double y) { return y != MV::gMissingValue; });
  // Counted from the first value, so that a constant series has no deviations at all.
  const double mean = first + MeanOf(series, [first](double y) { return y - first; });
  if (season == Season::kMultiplicative) {
    scale.unit = mean;
    return scale;
  }
  scale.shift = mean;
  double largest = 0;
  for (const double y : series) {
    if (y != MV::gMissingValue) largest = std::max(largest, std::abs(y - mean));
  }
  if (largest == 0) return scale;
  const auto square = [&](double y) { return (y - mean) / largest * ((y - mean) / largest); };
  scale.unit = largest * std::sqrt(MeanOf(series, square));
  return scale;
}

std::vector<double> Scaled(std::span<const double> series, const Scale& scale) {
  std::vector<double> scaled(series.begin(), series.end());
  for (double& y : scaled) y = y == MV::gMissingValue ? y : scale.Down(y);
  return scaled;
}

void NormaliseSeason(Components& c, Season season) {
  if (season == Season::kNone) return;
  const double mean =
      std::accumulate(c.season.begin(), c.season.end(), 0.0) / static_cast<double>(c.season.size());
  if (season == Season::kAdditive) {
    c.level += mean;
    for (double& value : c.season) value -= mean;
  } else {
    c.level *= mean;
    c.trend *= mean;
    for (double& value : c.season) value /= mean;
  }
}

}  // namespace tsffit
