#ifndef TSXPORT_MODELS_CROSTON_H_
#define TSXPORT_MODELS_CROSTON_H_

#include <cstddef>
#include <string>

#include "models/ModelClass.h"

namespace tsx::models {

// How often a series is zero.
struct ZeroCount {
  std::size_t zeros = 0;
  std::size_t cases = 0;  // that are not missing
  bool intermittent = false;
};

// Demand is intermittent when at least 30 % of the cases are zero, none is negative and some are
// above 0.
ZeroCount CountZeros(const Series& series);

const KindInfo& CrostonKind();

// Croston's method. Intermittent demand is its own: its errors are of another sort than those of
// smoothing, so no criterion decides between them.
class CrostonClass final : public ModelClass {
 public:
  std::span<const KindInfo> Kinds() const override { return {&CrostonKind(), 1}; }
  DialectContent Content() const override { return DialectContent::kCroston; }
  Fitting Fit(const KindInfo& kind, const Task& task) const override;
  std::optional<Claim> FindClaim(const Series& series) const override;
};

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_CROSTON_H_
