#include "arima/fit/Surroundings.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tsffit {

namespace {

// A second difference this much larger than the noise in its values is curvature.
constexpr double kSignal = 100;

// Steps of the differences in coordinates, which are about 1 in size: a thousandth, and a hundredth
// where that does not stand out from the noise (docs/decisions.md tells what came of the thousandth
// alone).
constexpr double kStep = 1e-3;
constexpr double kLongStep = 1e-2;

// Steps in coefficients: shares of their size, or of kSmall where they are smaller; shorter than
// kShortest they would be rounding.
constexpr double kSmall = 0.1;
constexpr double kShortest = 1e-8;

// Moves of all coordinates too small to matter: the curvature changes the criterion by some 1e-16
// over them, so that what it changes is noise.
constexpr double kNoMove = 1e-9;
constexpr int kNoMoves = 4;

// The largest step, halved from a thousandth of the coefficient's size, that stays in the region
// with something to spare; 0 when there is none.
double StepWithin(const Block& block, std::vector<double> parameters, std::size_t position) {
  const double value = parameters[position];
  double step = kStep * std::max(std::abs(value), kSmall);
  while (step > kShortest) {
    bool inside = true;
    for (const double side : {-2.0, 2.0}) {
      parameters[position] = value + side * step;
      inside = inside && IsInside(block, parameters);
    }
    if (inside) return step;
    step /= 2;
  }
  return 0;
}

}  // namespace

Surroundings::Surroundings(const Likelihood& likelihood, const SearchSpace& space,
                           const Evaluation& solution)
    : likelihood_(likelihood),
      space_(space),
      solution_(solution),
      point_(space.PointAt(solution.parameters)),
      centre_(CriterionAt(point_)),
      noise_(Noise()) {
  Eigen::Index coordinate = 0;
  for (const Block& block : space.Blocks()) {
    for (std::size_t i = 0; i < block.Count(); ++i, ++coordinate) {
      if (IsAtEdge(block, solution.parameters)) continue;
      const std::optional<FreeCoordinate> free = FreeAt(coordinate, StepsOf(block, i));
      if (free) free_.push_back(*free);
    }
  }
}

bool Surroundings::IsClear() const {
  return std::all_of(free_.begin(), free_.end(), [this](const FreeCoordinate& free) {
    return free.second_difference > kSignal * noise_;
  });
}

Eigen::MatrixXd Surroundings::Hessian() const {
  Eigen::MatrixXd hessian(Count(), Count());
  for (Eigen::Index i = 0; i < Count(); ++i) {
    const auto& [row, step, bend] = free_[static_cast<std::size_t>(i)];
    hessian(i, i) = bend / (step * step);
    for (Eigen::Index j = 0; j < i; ++j) {
      const auto& [column, other, otherBend] = free_[static_cast<std::size_t>(j)];
      double mixed = 0;
      for (const double a : {1.0, -1.0}) {
        for (const double b : {1.0, -1.0}) {
          Eigen::VectorXd moved = Moved(row, a * step);
          moved[column] += b * other;
          mixed += a * b * CriterionAt(moved);
        }
      }
      hessian(i, j) = hessian(j, i) = mixed / (4 * step * other);
    }
  }
  return hessian;
}

Eigen::VectorXd Surroundings::Moved(Eigen::Index coordinate, double by) const {
  Eigen::VectorXd moved = point_;
  moved[coordinate] += by;
  return moved;
}

std::vector<double> Surroundings::StepsOf(const Block& block, std::size_t i) const {
  if (block.HasPartials() || block.kind == BlockKind::kDecay) return {kStep, kLongStep};
  const double step = StepWithin(block, solution_.parameters, block.first + i);
  return step > 0 ? std::vector<double>{step} : std::vector<double>();
}

std::optional<FreeCoordinate> Surroundings::FreeAt(Eigen::Index coordinate,
                                                   const std::vector<double>& steps) const {
  std::optional<FreeCoordinate> free;
  for (const double step : steps) {
    const double up = CriterionAt(Moved(coordinate, step)) - centre_;
    if (up == 0) return std::nullopt;
    const double down = CriterionAt(Moved(coordinate, -step)) - centre_;
    free = {.coordinate = coordinate, .step = step, .second_difference = up + down};
    if (free->second_difference > kSignal * noise_) break;
  }
  return free;
}

double Surroundings::Noise() const {
  double noise = 0;
  for (int k = 1; k <= kNoMoves; ++k) {
    const Eigen::VectorXd moved = point_.array() + kNoMove * k;
    const double difference = std::abs(CriterionAt(moved) - centre_);
    if (std::isfinite(difference)) noise = std::max(noise, difference);
  }
  return noise;
}

std::vector<double> Surroundings::ParametersAt(const Eigen::VectorXd& point) const {
  std::vector<double> parameters = solution_.parameters;
  if (!space_.Parameters(point, parameters)) return {};
  for (const Block& block : space_.Blocks()) {
    if (!IsAtEdge(block, solution_.parameters)) continue;
    std::copy_n(solution_.parameters.begin() + static_cast<std::ptrdiff_t>(block.first),
                block.Count(), parameters.begin() + static_cast<std::ptrdiff_t>(block.first));
  }
  return parameters;
}

double Surroundings::CriterionAt(const Eigen::VectorXd& point) const {
  const std::vector<double> parameters = ParametersAt(point);
  return parameters.empty() ? std::numeric_limits<double>::infinity()
                            : likelihood_.CriterionAt(parameters);
}

}  // namespace tsffit
