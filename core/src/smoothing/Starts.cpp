#include "smoothing/Starts.h"

#include <algorithm>

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
    if (IsMissing(series[i])) continue;
    const bool end = length % 2 == 0 && (i == t - half || i == t + half);
    sum += (end ? 0.5 : 1.0) * series[i];
    count += end ? 0.5 : 1.0;
  }
  return count > 0 ? sum / count : MV::gMissingValue;
}

double Without(double y, double seasonal, Season season) {
  return season == Season::kMultiplicative ? y / seasonal : y - seasonal;
}

// Mean ratio or deviation of each position of the cycle from the centred mean.
std::vector<double> SeasonalValues(std::span<const double> series, std::size_t length,
                                   Season season) {
  const bool ratios = season == Season::kMultiplicative;
  std::vector<double> sum(length, 0.0);
  std::vector<double> count(length, 0.0);
  for (std::size_t t = 0; t < series.size(); ++t) {
    const double mean = CentredMean(series, t, length);
    if (IsMissing(series[t]) || IsMissing(mean)) continue;
    sum[t % length] += Without(series[t], mean, season);
    count[t % length] += 1;
  }
  for (std::size_t j = 0; j < length; ++j) {
    sum[j] = count[j] > 0 ? sum[j] / count[j] : (ratios ? 1 : 0);
    if (ratios) sum[j] = std::max(sum[j], 10 * kLeastSeasonFactor);
  }
  return sum;
}

// Least-squares line through the first cases after taking out the season. A multiplicative model
// gets a flat one where the line would run below 0 somewhere in the series.
void FitLine(const SmoothingProblem& problem, Components& start) {
  const std::span<const double> series = problem.Series();
  const Season season = problem.Traits().season;
  const std::size_t length = problem.SeasonLength();
  const std::size_t cases = std::min(series.size(), std::max<std::size_t>(2 * length, 10));
  const auto each = [&](auto&& use) {
    for (std::size_t t = 0; t < cases; ++t) {
      if (IsMissing(series[t])) continue;
      const double y = season == Season::kNone
                           ? series[t]
                           : Without(series[t], start.season[t % length], season);
      use(static_cast<double>(t + 1), y);
    }
  };
  double n = 0;
  double meanX = 0;
  double meanY = 0;
  each([&](double x, double y) { n += 1, meanX += x, meanY += y; });
  meanX /= n;
  meanY /= n;
  double xx = 0;
  double xy = 0;
  each([&](double x, double y) {
    xx += (x - meanX) * (x - meanX);
    xy += (x - meanX) * (y - meanY);
  });
  const double slope = xx > 0 && problem.Traits().trend ? xy / xx : 0;
  const double level = meanY - slope * meanX;
  const double least = std::min(level, level + slope * static_cast<double>(series.size()));
  const bool usable = season != Season::kMultiplicative || least > 0;
  start.level = usable ? level : meanY;
  start.trend = usable ? slope : 0;
}

}  // namespace

std::vector<std::vector<double>> SpreadWeights(const KindTraits& traits) {
  std::vector<std::vector<double>> all = {
      std::vector<double>(static_cast<std::size_t>(traits.weight_count), 0.0)};
  all[0][0] = traits.least_level_weight;
  if (traits.damped) {
    all.push_back(all[0]);
    all[1][static_cast<std::size_t>(traits.damping_weight)] = 1;
  }
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
  const KindTraits& traits = problem.Traits();
  if (traits.season != Season::kNone) {
    start.season = SeasonalValues(problem.Series(), problem.SeasonLength(), traits.season);
  }
  FitLine(problem, start);
  return start;
}

}  // namespace tsffit
