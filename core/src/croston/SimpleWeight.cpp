#include "croston/SimpleWeight.h"

#include <algorithm>
#include <array>
#include <boost/math/tools/toms748_solve.hpp>
#include <cmath>
#include <cstdint>
#include <vector>

namespace tsffit {

namespace {

constexpr double kLeastWeight = 0.01;
constexpr double kGreatestWeight = 1;
constexpr double kDefaultWeight = 0.1;

// Weights at which the sum of squares is looked at: even in their square roots, since the sum
// changes fastest at small weights.
constexpr std::size_t kGridSize = 101;

// How far a floor is followed: to all bits of a weight but the last few, which the rounding of the
// slope blurs. The limit of evaluations is a guard alone.
constexpr int kBits = 48;
constexpr std::uintmax_t kMostEvaluations = 100;

// The sum of squares at one weight, equation (3) of Croston.h, with its first two derivatives by
// the weight.
struct Curve {
  double weight = 0;
  double sum = 0;
  double slope = 0;
  double bend = 0;
};

Curve CurveAt(std::span<const double> values, double weight) {
  Curve curve{.weight = weight};
  double level = values[0];
  double first = 0;  // derivatives of the level
  double second = 0;
  for (const double value : values.subspan(1)) {
    const double error = value - level;
    curve.sum += error * error;
    curve.slope -= 2 * error * first;
    curve.bend += 2 * (first * first - error * second);
    second = (1 - weight) * second - 2 * first;
    first = (1 - weight) * first + error;
    level = Smoothed(level, weight, value);
  }
  return curve;
}

std::array<Curve, kGridSize> Grid(std::span<const double> values) {
  std::array<Curve, kGridSize> grid;
  const double low = std::sqrt(kLeastWeight);
  const double step = (std::sqrt(kGreatestWeight) - low) / (kGridSize - 1);
  grid.front() = CurveAt(values, kLeastWeight);
  for (std::size_t i = 1; i + 1 < kGridSize; ++i) {
    const double root = low + step * static_cast<double>(i);
    grid[i] = CurveAt(values, root * root);
  }
  grid.back() = CurveAt(values, kGreatestWeight);
  return grid;
}

// The floor of the valley between two grid points, the sum falling at `left` and rising at `right`.
Curve Floor(std::span<const double> values, const Curve& left, const Curve& right) {
  std::uintmax_t evaluations = kMostEvaluations;
  const auto [low, high] = boost::math::tools::toms748_solve(
      [values](double weight) { return CurveAt(values, weight).slope; }, left.weight, right.weight,
      left.slope, right.slope, boost::math::tools::eps_tolerance<double>(kBits), evaluations);
  return CurveAt(values, low + (high - low) / 2);
}

// The least sum over the range of weights; empty where all weights give the same.
std::optional<Curve> LeastSum(std::span<const double> values) {
  const auto grid = Grid(values);
  Curve best = grid.front();
  bool flat = true;
  for (std::size_t i = 1; i < kGridSize; ++i) {
    flat = flat && grid[i].sum == best.sum;
    if (grid[i].sum < best.sum) best = grid[i];
    if (!(grid[i - 1].slope < 0 && grid[i].slope > 0)) continue;
    const Curve floor = Floor(values, grid[i - 1], grid[i]);
    if (floor.sum < best.sum) best = floor;
  }
  if (flat) return {};
  return best;
}

double StdError(const Curve& curve, std::size_t count) {
  if (curve.weight <= kLeastWeight || curve.weight >= kGreatestWeight) return MV::gMissingValue;
  const double variance = curve.sum / static_cast<double>(count - 2);
  const double squared = variance / (curve.bend / 2);
  return squared > 0 && std::isfinite(squared) ? std::sqrt(squared) : MV::gMissingValue;
}

// Distance of the value farthest from the first.
double Reach(std::span<const double> values) {
  double reach = 0;
  for (const double value : values) reach = std::max(reach, std::abs(value - values[0]));
  return reach;
}

// The values as distances from the first, the farthest being 1, so that no square overflows.
std::vector<double> Scaled(std::span<const double> values, double reach) {
  std::vector<double> scaled;
  scaled.reserve(values.size());
  for (const double value : values) {
    scaled.push_back(reach > 0 ? (value - values[0]) / reach : 0);
  }
  return scaled;
}

}  // namespace

SimpleSmoothing Smooth(std::span<const double> values, const WeightChoice& choice) {
  SimpleSmoothing smoothing{.weight = choice.fixed.value_or(kDefaultWeight)};
  const double reach = Reach(values);
  const std::vector<double> scaled = Scaled(values, reach);
  const bool estimate = !choice.fixed && choice.enough && reach > 0;
  if (const auto least = estimate ? LeastSum(scaled) : std::nullopt) {
    smoothing.weight = least->weight;
    smoothing.std_error = StdError(*least, values.size());
    smoothing.estimated = true;
  }
  smoothing.sse = CurveAt(scaled, smoothing.weight).sum * reach * reach;
  smoothing.level = values[0];
  for (const double value : values.subspan(1)) {
    smoothing.level = Smoothed(smoothing.level, smoothing.weight, value);
  }
  return smoothing;
}

}  // namespace tsffit
