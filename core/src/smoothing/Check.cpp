#include "smoothing/Check.h"

#include <optional>
#include <vector>

#include "series/Observed.h"
#include "series/Refusal.h"
#include "series/Transform.h"
#include "smoothing/Kind.h"

namespace tsffit {

namespace {

bool CheckOptions(const SmoothingOptions& options, SmoothingFit& fit) {
  if (!kinds::IsSmoothingKind(options.kind)) {
    return Refuse(fit, FitStatus::kBadOptions, "no such kind of exponential smoothing");
  }
  if (auto fault = NoSuchTransformation(options.function_type)) {
    return Refuse(fit, *fault);
  }
  if (TraitsOf(options.kind).season != Season::kNone && options.season_length < 2) {
    return Refuse(fit, FitStatus::kBadOptions,
                  "a seasonal model needs a season length of at least 2");
  }
  return true;
}

std::optional<Fault> ValueFault(double y, const SmoothingOptions& options) {
  if (auto fault = NotFinite(y)) return fault;
  if (auto fault = TooLarge(y, kLargestValue)) return fault;
  if (auto fault = OutsideDomain(options.function_type, y)) return fault;
  if (TraitsOf(options.kind).season != Season::kMultiplicative ||
      Transformed(options.function_type, y) > 0) {
    return std::nullopt;
  }
  return Fault{FitStatus::kNotPositive,
               options.function_type == TSTransformation::kLogarithm
                   ? "multiplicative seasons under the logarithm need values above 1"
                   : "multiplicative seasons need values above 0"};
}

std::size_t LeastCases(const KindTraits& traits, std::size_t seasonLength) {
  if (traits.season != Season::kNone) return 2 * seasonLength + 2;
  return traits.trend ? 4 : 3;
}

bool CheckLength(std::span<const double> series, const SmoothingOptions& options,
                 SmoothingFit& fit) {
  const KindTraits traits = TraitsOf(options.kind);
  const std::size_t observed = CountObserved(series);
  const std::size_t least = LeastCases(traits, options.season_length);
  if (observed < least) return Refuse(fit, TooShort(least, observed));
  if (traits.season == Season::kNone) return true;
  std::vector<bool> seen(options.season_length, false);
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (!IsMissing(series[t])) seen[t % options.season_length] = true;
  }
  for (std::size_t j = 0; j < seen.size(); ++j) {
    if (seen[j]) continue;
    fit.bad_case = j;
    return Refuse(fit, FitStatus::kTooShort, "a period of the season is missing in every season");
  }
  return true;
}

}  // namespace

bool CheckSeries(std::span<const double> series, const SmoothingOptions& options,
                 SmoothingFit& fit) {
  if (!CheckOptions(options, fit)) return false;
  for (std::size_t t = 0; t < series.size(); ++t) {
    auto fault = IsMissing(series[t]) ? std::nullopt : ValueFault(series[t], options);
    if (!fault) continue;
    fit.bad_case = t;
    return Refuse(fit, *fault);
  }
  return CheckLength(series, options, fit);
}

}  // namespace tsffit
