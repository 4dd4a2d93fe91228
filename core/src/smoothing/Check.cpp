#include "smoothing/Check.h"

#include <cmath>
#include <string>
#include <vector>

#include "series/Transform.h"
#include "smoothing/Kind.h"

namespace tsffit {

namespace {

bool Refuse(SmoothingFit& fit, FitStatus status, std::string message, std::size_t badCase = 0) {
  fit.status = status;
  fit.message = std::move(message);
  fit.bad_case = badCase;
  return false;
}

bool CheckOptions(const SmoothingOptions& options, SmoothingFit& fit) {
  if (!IsSmoothingKind(options.kind)) {
    return Refuse(fit, FitStatus::kBadOptions, "no such kind of exponential smoothing");
  }
  if (!IsTransformation(options.function_type)) {
    return Refuse(fit, FitStatus::kBadOptions, "no such transformation");
  }
  if (TraitsOf(options.kind).season != Season::kNone && options.season_length < 2) {
    return Refuse(fit, FitStatus::kBadOptions,
                  "a seasonal model needs a season length of at least 2");
  }
  return true;
}

// Differences of larger values are no longer numbers.
constexpr double kLargest = 1e300;

bool CheckValue(double y, std::size_t at, const SmoothingOptions& options, SmoothingFit& fit) {
  if (!std::isfinite(y)) return Refuse(fit, FitStatus::kNotFinite, "a value is not finite", at);
  if (std::abs(y) > kLargest) {
    return Refuse(fit, FitStatus::kNotFinite, "a value is too large to calculate with", at);
  }
  if (options.function_type == TSTransformation::kLogarithm && y <= 0) {
    return Refuse(fit, FitStatus::kNotPositive, "the logarithm needs values above 0", at);
  }
  if (options.function_type == TSTransformation::kSquareRoot && y < 0) {
    return Refuse(fit, FitStatus::kNegative, "the square root needs values of at least 0", at);
  }
  if (TraitsOf(options.kind).season == Season::kMultiplicative &&
      Transformed(options.function_type, y) <= 0) {
    return Refuse(fit, FitStatus::kNotPositive,
                  options.function_type == TSTransformation::kLogarithm
                      ? "multiplicative seasons under the logarithm need values above 1"
                      : "multiplicative seasons need values above 0",
                  at);
  }
  return true;
}

std::size_t LeastCases(const KindTraits& traits, std::size_t seasonLength) {
  if (traits.season != Season::kNone) return 2 * seasonLength + 2;
  return traits.trend ? 4 : 3;
}

bool CheckLength(std::span<const double> series, const SmoothingOptions& options,
                 SmoothingFit& fit) {
  const KindTraits traits = TraitsOf(options.kind);
  std::size_t observed = 0;
  for (const double y : series) observed += y == MV::gMissingValue ? 0 : 1;
  const std::size_t least = LeastCases(traits, options.season_length);
  if (observed < least) {
    return Refuse(fit, FitStatus::kTooShort,
                  "the model needs " + std::to_string(least) +
                      " cases that are not missing, the series has " + std::to_string(observed));
  }
  if (traits.season == Season::kNone) return true;
  std::vector<bool> seen(options.season_length, false);
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (series[t] != MV::gMissingValue) seen[t % options.season_length] = true;
  }
  for (std::size_t j = 0; j < seen.size(); ++j) {
    if (!seen[j]) {
      return Refuse(fit, FitStatus::kTooShort, "a period of the season is missing in every season",
                    j);
    }
  }
  return true;
}

}  // namespace

bool CheckSeries(std::span<const double> series, const SmoothingOptions& options,
                 SmoothingFit& fit) {
  if (!CheckOptions(options, fit)) return false;
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (series[t] != MV::gMissingValue && !CheckValue(series[t], t, options, fit)) return false;
  }
  return CheckLength(series, options, fit);
}

}  // namespace tsffit
