#include "smoothing/Components.h"

#include <numeric>

namespace tsffit {

Scale ScaleFor(Season season, std::span<const double> series) {
  return season == Season::kMultiplicative ? MeanScale(series) : StandardScale(series);
}

Components ScaledUp(Components c, const Scale& scale, Season season) {
  c.level = scale.Up(c.level);
  c.trend *= scale.unit;
  if (season == Season::kAdditive) {
    for (double& value : c.season) value *= scale.unit;
  }
  return c;
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
