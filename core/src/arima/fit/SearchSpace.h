#ifndef TSFFIT_ARIMA_FIT_SEARCHSPACE_H_
#define TSFFIT_ARIMA_FIT_SEARCHSPACE_H_

#include <Eigen/Core>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <tsfcore/AMModelSpec.h>

namespace tsffit {

// The coefficients c of 1 - c_1 B - .. - c_k B^k with the given partial autocorrelations, by the
// Durbin-Levinson recursion.
std::vector<double> FromPartials(std::span<const double> partials);

// The other way, by the step-down recursion; nothing when the polynomial is not stable.
std::optional<std::vector<double>> ToPartials(std::span<const double> coefficients);

// What one group of searched coefficients is. The search itself is unconstrained.
enum class BlockKind {
  kAr,      // a factor of phi: stationary
  kMa,      // a factor of theta: invertible
  kStable,  // a factor of a denominator
  kFree,    // the seasonal factor of a numerator
  kDecay,   // the decay of a transient outlier, between 0 and 1
};

struct Block {
  BlockKind kind = BlockKind::kFree;
  AMPowers lags{};        // of the factor; one, of no meaning, for a decay
  std::size_t first = 0;  // position of its first coefficient in the parameter vector
  std::size_t Count() const { return lags.GetCount(); }
  // Whether the lags are g, 2 g, .., k g: then the search runs over partial autocorrelations.
  bool HasPartials() const;
};

// Whether the block's coefficients are inside its region.
bool IsInside(const Block& block, const std::vector<double>& parameters);

// Whether an invertible factor has a root as good as on the unit circle, a decay is as good as at
// an end of its range.
bool IsAtEdge(const Block& block, const std::vector<double>& parameters);

// The coefficients that a fit searches for, those that do not enter linearly, and their coordinates
// in the search: the inverse hyperbolic tangent of partial autocorrelations, the logit of a decay,
// otherwise the coefficient itself.
class SearchSpace {
 public:
  // `leftOut` tells, by position in the parameter vector, which linear coefficients are not
  // estimated: what belongs to a predictor or an outlier without effect is not searched for either.
  SearchSpace(const AMModelSpec& spec, const std::vector<bool>& leftOut);

  const std::vector<Block>& Blocks() const { return blocks_; }
  Eigen::Index Dimension() const { return dimension_; }
  bool Has(BlockKind kind) const;

  // Positions of all searched coefficients in the parameter vector, in the order of coordinates.
  const std::vector<std::size_t>& Positions() const { return positions_; }

  // Writes the coefficients at `point` into `parameters`; false outside the region.
  bool Parameters(const Eigen::VectorXd& point, std::vector<double>& parameters) const;

  // Coordinates of the coefficients, moved into the region (towards 0) where they are outside.
  Eigen::VectorXd PointAt(const std::vector<double>& parameters) const;

 private:
  void AddFactor(BlockKind kind, const AMPowers& lags, std::size_t first);

  std::vector<Block> blocks_;
  std::vector<std::size_t> positions_;
  Eigen::Index dimension_ = 0;
};

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_SEARCHSPACE_H_
