#include "cli/Kinds.h"

#include <algorithm>

#include <tsfcore/ESModelSpec.h>

namespace tsx::cli {
namespace {

constexpr KindInfo kKinds[] = {
    {ESModelSpec::kSimple, "simple", "simple smoothing", false, false},
    {ESModelSpec::kBrown, "brown", "Brown's linear trend", false, false},
    {ESModelSpec::kHolt, "holt", "Holt's linear trend", false, false},
    {ESModelSpec::kDampedTrend, "damped-trend", "damped trend", false, false},
    {ESModelSpec::kSimpleSeasonal, "simple-seasonal", "simple seasonal smoothing", true, false},
    {ESModelSpec::kAdditiveWinters, "winters-additive", "Winters with additive seasons", true,
     false},
    {ESModelSpec::kMultiplicativeWinters, "winters-multiplicative",
     "Winters with multiplicative seasons", true, true},
};

}  // namespace

std::span<const KindInfo> AllKinds() { return kKinds; }

const KindInfo* FindKind(std::string_view option) {
  const auto* const found =
      std::find_if(std::begin(kKinds), std::end(kKinds),
                   [option](const KindInfo& k) { return k.option == option; });
  return found == std::end(kKinds) ? nullptr : found;
}

}  // namespace tsx::cli
