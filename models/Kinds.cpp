#include "models/Kinds.h"

#include <algorithm>

#include <tsfcore/ESModelSpec.h>

namespace tsx::cli {
namespace {

constexpr KindInfo kSmoothingKinds[] = {
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

constexpr KindInfo kCroston = {-1, "croston", "Croston's method", false, false};
constexpr KindInfo kArima = {-1, "arima", "ARIMA", false, false};

}  // namespace

std::span<const KindInfo> SmoothingKinds() { return kSmoothingKinds; }

const KindInfo& CrostonKind() { return kCroston; }

const KindInfo& ArimaKind() { return kArima; }

const KindInfo* FindKind(std::string_view option) {
  if (option == kCroston.option) return &kCroston;
  const auto* const found =
      std::find_if(std::begin(kSmoothingKinds), std::end(kSmoothingKinds),
                   [option](const KindInfo& k) { return k.option == option; });
  return found == std::end(kSmoothingKinds) ? nullptr : found;
}

}  // namespace tsx::cli
