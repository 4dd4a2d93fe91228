#include "arima/fit/SearchSpace.h"

#include <algorithm>
#include <cmath>

#include "math/Polynomial.h"

namespace tsffit {

std::vector<double> FromPartials(std::span<const double> partials) {
  std::vector<double> c(partials.begin(), partials.end());
  std::vector<double> before(c.size());
  for (std::size_t k = 1; k < c.size(); ++k) {
    std::copy_n(c.begin(), k, before.begin());
    for (std::size_t j = 0; j < k; ++j) c[j] = before[j] - c[k] * before[k - 1 - j];
  }
  return c;
}

std::optional<std::vector<double>> ToPartials(std::span<const double> coefficients) {
  std::vector<double> c(coefficients.begin(), coefficients.end());
  std::vector<double> partials(c.size());
  while (!c.empty()) {
    const double r = c.back();
    if (!(std::abs(r) < 1)) return std::nullopt;
    partials[c.size() - 1] = r;
    std::vector<double> lower(c.size() - 1);
    for (std::size_t j = 0; j < lower.size(); ++j) {
      lower[j] = (c[j] + r * c[lower.size() - 1 - j]) / ((1 - r) * (1 + r));
    }
    c = std::move(lower);
  }
  return partials;
}

bool Block::HasPartials() const {
  if (kind == BlockKind::kFree || kind == BlockKind::kDecay) return false;
  for (std::uint32_t i = 0; i < lags.GetCount(); ++i) {
    if (lags.GetPower(i) != lags.GetPower(0) * (i + 1)) return false;
  }
  return true;
}

namespace {

// Beyond this a coordinate no longer moves its partial autocorrelation, which is 1 - 4e-9 there.
constexpr double kFarthest = 10;
// A decay nearer to an end of its range, where its coordinate is infinite, is moved away from it.
constexpr double kNearestDecay = 1e-9;
// A root this near to the unit circle, or a decay to the end of its range, is on it.
constexpr double kEdge = 1e-3;

// Coefficients outside the region are taken towards 0, by this factor at a time, until they are in
// it.
constexpr double kTowardsZero = 0.9;

std::span<const double> CoefficientsOf(const Block& block, const std::vector<double>& parameters) {
  return std::span<const double>(parameters).subspan(block.first, block.Count());
}

bool Inside(const Block& block, std::span<const double> coefficients) {
  if (block.kind == BlockKind::kFree) return std::isfinite(coefficients[0]);
  if (block.kind == BlockKind::kDecay) return coefficients[0] > 0 && coefficients[0] < 1;
  if (block.HasPartials()) return ToPartials(coefficients).has_value();
  return IsStable(Minus(1, block.lags, coefficients));
}

// Replaces coefficients inside the region by their coordinates.
void ToCoordinates(const Block& block, std::vector<double>& c) {
  if (block.kind == BlockKind::kDecay) {
    c[0] = std::log(c[0] / (1 - c[0]));
  } else if (block.HasPartials()) {
    c = *ToPartials(c);
    for (double& r : c) r = std::clamp(std::atanh(r), -kFarthest, kFarthest);
  }
}

}  // namespace

bool IsInside(const Block& block, const std::vector<double>& parameters) {
  return Inside(block, CoefficientsOf(block, parameters));
}

bool IsAtEdge(const Block& block, const std::vector<double>& parameters) {
  const std::span<const double> c = CoefficientsOf(block, parameters);
  if (block.kind == BlockKind::kDecay) return c[0] < kEdge || c[0] > 1 - kEdge;
  if (block.kind != BlockKind::kMa) return false;
  // Moves the roots inwards by kEdge, in units of the first lag: B^lag becomes (B (1 + kEdge))^lag.
  std::vector<double> stretched(c.begin(), c.end());
  for (std::uint32_t i = 0; i < block.lags.GetCount(); ++i) {
    const double units = static_cast<double>(block.lags.GetPower(i)) / block.lags.GetPower(0);
    stretched[i] *= std::pow(1 + kEdge, units);
  }
  return !Inside(block, stretched);
}

SearchSpace::SearchSpace(const AMModelSpec& spec, const std::vector<bool>& leftOut) {
  AMPowers regular;
  AMPowers seasonal;
  std::size_t at = spec.GetARStruct(regular, seasonal);
  AddFactor(BlockKind::kAr, regular, at);
  AddFactor(BlockKind::kAr, seasonal, at + regular.GetCount());
  at = spec.GetMAStruct(regular, seasonal);
  AddFactor(BlockKind::kMa, regular, at);
  AddFactor(BlockKind::kMa, seasonal, at + regular.GetCount());
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    spec.GetXNumerator(i, regular, seasonal);
    at = spec.GetXRegressionCoeff(i);
    const auto numerator = leftOut.begin() + static_cast<std::ptrdiff_t>(at);
    if (std::find(numerator, numerator + 1 + regular.GetCount(), false) ==
        numerator + 1 + regular.GetCount()) {
      continue;
    }
    AddFactor(BlockKind::kFree, seasonal, at + 1 + regular.GetCount());
    at = spec.GetXDenominator(i, regular, seasonal);
    AddFactor(BlockKind::kStable, regular, at);
    AddFactor(BlockKind::kStable, seasonal, at + regular.GetCount());
  }
  const TSOutlierSpecList& outliers = spec.GetOutliers();
  for (unsigned j = 0; j < outliers.GetOutlierSpecCount(false); ++j) {
    if (outliers.GetOutlierSpec(j).GetType() != TSOutlierSpec::kTransient) continue;
    at = spec.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 0);
    if (!leftOut[at]) AddFactor(BlockKind::kDecay, {1}, at + 1);
  }
}

void SearchSpace::AddFactor(BlockKind kind, const AMPowers& lags, std::size_t first) {
  if (lags.GetCount() == 0) return;
  blocks_.push_back({.kind = kind, .lags = lags, .first = first});
  for (std::size_t i = 0; i < lags.GetCount(); ++i) positions_.push_back(first + i);
  dimension_ = static_cast<Eigen::Index>(positions_.size());
}

bool SearchSpace::Has(BlockKind kind) const {
  return std::any_of(blocks_.begin(), blocks_.end(),
                     [kind](const Block& block) { return block.kind == kind; });
}

bool SearchSpace::Parameters(const Eigen::VectorXd& point, std::vector<double>& parameters) const {
  const double* x = point.data();
  for (const Block& block : blocks_) {
    std::vector<double> c(x, x + block.Count());
    x += block.Count();
    if (block.kind == BlockKind::kDecay) {
      c[0] = 1 / (1 + std::exp(-c[0]));
    } else if (block.HasPartials()) {
      for (double& r : c) r = std::tanh(r);
      c = FromPartials(c);
    } else if (!Inside(block, c)) {
      return false;
    }
    std::copy(c.begin(), c.end(), parameters.begin() + static_cast<std::ptrdiff_t>(block.first));
  }
  return true;
}

Eigen::VectorXd SearchSpace::PointAt(const std::vector<double>& parameters) const {
  Eigen::VectorXd point(dimension_);
  double* x = point.data();
  for (const Block& block : blocks_) {
    const std::span<const double> given = CoefficientsOf(block, parameters);
    std::vector<double> c(given.begin(), given.end());
    if (block.kind == BlockKind::kDecay) c[0] = std::clamp(c[0], kNearestDecay, 1 - kNearestDecay);
    while (!Inside(block, c)) {
      for (double& value : c) value = std::isfinite(value) ? value * kTowardsZero : 0;
    }
    ToCoordinates(block, c);
    x = std::copy(c.begin(), c.end(), x);
  }
  return point;
}

}  // namespace tsffit
