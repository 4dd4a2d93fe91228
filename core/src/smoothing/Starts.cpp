#include "smoothing/Starts.h"

#include <algorithm>
#include <cmath>

namespace tsffit {

namespace {

using Spread = std::vector<double>;

std::vector<std::vector<double>> Combine(const std::vector<Spread>& axes) {
  std::vector<std::vector<double>> points = {{}};
  for (const Spread& axis : axes) {
    std::vector<std::vector<double>> longer;
    for (const auto& point : points) {
      for (const double value : axis) {
        longer.push_back(point);
        longer.back().push_back(value);
      }
    }
    points = std::move(longer);
  }
  return points;
}

// Mean of the observed cases in a window of one season around `t`, its two ends at half weight when
// the season is even. Missing when nothing in it was observed or it sticks out of the series.
double CentredMean(std::span<const double> series, std::size_t t, std::size_t length) {
  const std::size_t half = length / 2;
  if (t < half || t + half >= series.size()) return MV::gMissingValue;
  double sum = 0;
  double count = 0;
  for (std::size_t i = t - half; i <= t + half; ++i) {
    if (series[i] == MV::gMissingValue) continue;
    const bool end = length % 2 == 0 && (i == t - half || i == t + half);
    sum += (end ? 0.5 : 1.0) * series[i];
    count += end ? 0.5 : 1.0;
  }
  return count > 0 ? sum / count : MV::gMissingValue;
}

// Mean ratio of each position of the cycle to the centred mean, scaled to mean 1.
std::vector<double> SeasonFactors(std::span<const double> series, std::size_t length) {
  std::vector<double> sum(length, 0.0);
  std::vector<double> count(length, 0.0);
  for (std::size_t t = 0; t < series.size(); ++t) {
    const double mean = CentredMean(series, t, length);
    if (series[t] == MV::gMissingValue || mean == MV::gMissingValue) continue;
    sum[t % length] += series[t] / mean;
    count[t % length] += 1;
  }
  double total = 0;
  for (std::size_t j = 0; j < length; ++j) {
    sum[j] = std::max(count[j] > 0 ? sum[j] / count[j] : 1, 10 * kLeastSeasonFactor);
    total += sum[j];
  }
  for (double& factor : sum) factor *= static_cast<double>(length) / total;
  return sum;
}

// Least-squares line through the first cases after taking out the season, as the level before the
// first case and the slope. Falls back to a flat line where the line would start below 0.
void FitLine(std::span<const double> series, Components& start) {
  const std::size_t length = start.season.size();
  const std::size_t cases = std::min(series.size(), std::max<std::size_t>(2 * length, 10));
  double n = 0;
  double meanX = 0;
  double meanY = 0;
  const auto each = [&](auto&& use) {
    for (std::size_t t = 0; t < cases; ++t) {
      if (series[t] == MV::gMissingValue) continue;
      use(static_cast<double>(t + 1), series[t] / start.season[t % length]);
    }
  };
  each([&](double x, double y) { n += 1, meanX += x, meanY += y; });
  start.level = 1;
  if (n == 0) return;
  meanX /= n;
  meanY /= n;
  double xx = 0;
  double xy = 0;
  each([&](double x, double y) { xx += (x - meanX) * (x - meanX), xy += (x - meanX) * (y - meanY); });
  const double slope = xx > 0 ? xy / xx : 0;
  const double level = meanY - slope * meanX;
  const bool positive = level > 0 && level + slope * static_cast<double>(series.size()) > 0;
  start.level = positive ? level : meanY;
  start.trend = positive ? slope : 0;
}

}  // namespace

std::vector<std::vector<double>> SpreadWeights(const KindTraits& traits) {
  std::vector<std::vector<double>> all = {
      std::vector<double>(static_cast<std::size_t>(traits.weight_count), 0.0)};
  all[0][0] = traits.least_level_weight;
  std::vector<Spread> axes;
  const bool alone = traits.weight_count == 1;
  axes.push_back(alone ? Spread{0.03, 0.1, 0.2, 0.35, 0.5, 0.7, 0.85, 0.97}
                       : Spread{0.02, 0.12, 0.35, 0.7, 0.98});
  if (traits.trend_weight >= 0) axes.push_back({0.0, 0.06, 0.3, 0.9});
  if (traits.season_weight >= 0) axes.push_back({0.0, 0.25, 0.8});
  if (traits.damping_weight >= 0) axes.push_back({0.3, 0.8, 0.97});
  for (auto& point : Combine(axes)) all.push_back(std::move(point));
  return all;
}

Components RoughStart(const SmoothingProblem& problem) {
  Components start;
  if (problem.Traits().season == Season::kNone) return start;
  if (problem.Traits().season == Season::kAdditive) {
    start.season.assign(problem.SeasonLength(), 0.0);
    return start;
  }
  start.season = SeasonFactors(problem.Series(), problem.SeasonLength());
  FitLine(problem.Series(), start);
  return start;
}

}  // namespace tsffit
