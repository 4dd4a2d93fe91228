#include "arima/orders/Stl.h"

#include <algorithm>
#include <cmath>

namespace tsffit {

namespace {

constexpr std::size_t kSeasonalWindow = 11;
constexpr int kPasses = 2;

// Of the authors' program, which R's stl has, too: a distance beyond the first share of the width
// has no weight, one within the second all of it; and points that spread over less than the second
// share of the series tell no slope.
constexpr double kFar = 0.999;
constexpr double kNear = 0.001;

// The trend's window in terms of the season, from section 3.4 of the paper: the least odd number
// from 1.5 m / (1 - 1.5 / n_s), n_s the seasonal window.
constexpr double kTrendShare = 1.5;

std::size_t OddFrom(double least) {
  const auto n = static_cast<std::size_t>(std::ceil(least));
  return n % 2 == 0 ? n + 1 : n;
}

double Tricube(double distance, double width) {
  if (distance > kFar * width) return 0;
  if (distance <= kNear * width) return 1;
  const double u = distance / width;
  const double v = 1 - u * u * u;
  return v * v * v;
}

// A local fit: `size` neighbouring values from `first` on, weighted by their distance from `at`,
// which may lie outside them. Positions count from 0.
struct Neighbourhood {
  std::size_t first = 0;
  std::size_t size = 0;
  double width = 0;
};

// The `window` values nearest to `at`; all of them, and a width beyond them, when there are fewer.
Neighbourhood Nearest(std::size_t count, std::size_t window, double at) {
  Neighbourhood near;
  near.size = std::min(window, count);
  const std::size_t half = (near.size - 1) / 2;
  const double centred = at - static_cast<double>(half);
  near.first =
      static_cast<std::size_t>(std::clamp(centred, 0.0, static_cast<double>(count - near.size)));
  near.width = std::max(at - static_cast<double>(near.first),
                        static_cast<double>(near.first + near.size - 1) - at);
  const std::size_t beyond = window > count ? (window - count) / 2 : 0;
  near.width += static_cast<double>(beyond);
  return near;
}

// The locally constant (`linear` false) or linear fit to `y` at `at`.
double Loess(const std::vector<double>& y, std::size_t window, bool linear, double at) {
  const Neighbourhood near = Nearest(y.size(), window, at);
  double weights = 0;
  double xMean = 0;
  double yMean = 0;
  const auto weight = [&](std::size_t i) {
    return Tricube(std::abs(static_cast<double>(i) - at), near.width);
  };
  for (std::size_t i = near.first; i < near.first + near.size; ++i) {
    const double w = weight(i);
    weights += w;
    xMean += w * static_cast<double>(i);
    yMean += w * y[i];
  }
  xMean /= weights;
  yMean /= weights;
  if (!linear) return yMean;

  double sxx = 0;
  double sxy = 0;
  for (std::size_t i = near.first; i < near.first + near.size; ++i) {
    const double dx = static_cast<double>(i) - xMean;
    const double w = weight(i) / weights;
    sxx += w * dx * dx;
    sxy += w * dx * (y[i] - yMean);
  }
  if (std::sqrt(sxx) <= kNear * static_cast<double>(y.size() - 1)) return yMean;
  return yMean + (at - xMean) * sxy / sxx;
}

std::vector<double> Smoothed(const std::vector<double>& y, std::size_t window) {
  std::vector<double> smooth(y.size());
  for (std::size_t t = 0; t < y.size(); ++t) {
    smooth[t] = Loess(y, window, true, static_cast<double>(t));
  }
  return smooth;
}

// Every period of the season smoothed along the cycles, and one cycle on at either end: element t
// belongs to case t - seasonLength.
std::vector<double> CycleSmoothed(const std::vector<double>& y, std::size_t seasonLength) {
  std::vector<double> smooth(y.size() + 2 * seasonLength);
  for (std::size_t phase = 0; phase < seasonLength; ++phase) {
    std::vector<double> cycle;
    for (std::size_t t = phase; t < y.size(); t += seasonLength) cycle.push_back(y[t]);
    for (std::size_t i = 0; i < cycle.size() + 2; ++i) {
      smooth[phase + i * seasonLength] =
          Loess(cycle, kSeasonalWindow, false, static_cast<double>(i) - 1);
    }
  }
  return smooth;
}

// Means of `length` successive values; shorter by length - 1.
std::vector<double> MovingAverage(const std::vector<double>& y, std::size_t length) {
  std::vector<double> means(y.size() - length + 1);
  for (std::size_t t = 0; t < means.size(); ++t) {
    double sum = 0;
    for (std::size_t k = 0; k < length; ++k) sum += y[t + k];
    means[t] = sum / static_cast<double>(length);
  }
  return means;
}

// The trend that the smoothed cycles still have: as long as the series.
std::vector<double> LowPass(const std::vector<double>& cycles, std::size_t seasonLength) {
  const std::vector<double> means =
      MovingAverage(MovingAverage(MovingAverage(cycles, seasonLength), seasonLength), 3);
  return Smoothed(means, OddFrom(static_cast<double>(seasonLength)));
}

}  // namespace

SeasonalDecomposition DecomposeSeason(std::span<const double> series, std::size_t seasonLength) {
  const std::size_t n = series.size();
  const std::size_t trendWindow = OddFrom(kTrendShare * static_cast<double>(seasonLength) /
                                          (1 - kTrendShare / static_cast<double>(kSeasonalWindow)));
  SeasonalDecomposition parts{.season = std::vector<double>(n), .trend = std::vector<double>(n)};
  std::vector<double> rest(n);
  for (int pass = 0; pass < kPasses; ++pass) {
    for (std::size_t t = 0; t < n; ++t) rest[t] = series[t] - parts.trend[t];
    const std::vector<double> cycles = CycleSmoothed(rest, seasonLength);
    const std::vector<double> low = LowPass(cycles, seasonLength);
    for (std::size_t t = 0; t < n; ++t) {
      parts.season[t] = cycles[t + seasonLength] - low[t];
      rest[t] = series[t] - parts.season[t];
    }
    parts.trend = Smoothed(rest, trendWindow);
  }
  return parts;
}

}  // namespace tsffit
