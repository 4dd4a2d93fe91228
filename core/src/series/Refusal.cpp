#include "series/Refusal.h"

#include <cmath>

#include "series/Transform.h"

namespace tsffit {

std::optional<Fault> NoSuchTransformation(int functionType) {
  if (IsTransformation(functionType)) return std::nullopt;
  return Fault{FitStatus::kBadOptions, "no such transformation"};
}

std::optional<Fault> NotFinite(double value) {
  if (std::isfinite(value)) return std::nullopt;
  return Fault{FitStatus::kNotFinite, "a value is not finite"};
}

std::optional<Fault> TooLarge(double value, double largest) {
  if (!(std::abs(value) > largest)) return std::nullopt;
  return Fault{FitStatus::kNotFinite, "a value is too large to calculate with"};
}

std::optional<Fault> OutsideDomain(int functionType, double value) {
  if (functionType == TSTransformation::kLogarithm && value <= 0) {
    return Fault{FitStatus::kNotPositive, "the logarithm needs values above 0"};
  }
  if (functionType == TSTransformation::kSquareRoot && value < 0) {
    return Fault{FitStatus::kNegative, "the square root needs values of at least 0"};
  }
  return std::nullopt;
}

Fault TooShort(std::size_t needed, std::size_t observed) {
  return {FitStatus::kTooShort, "the model needs " + std::to_string(needed) +
                                    " cases that are not missing, the series has " +
                                    std::to_string(observed)};
}

Fault NothingObserved() {
  return {FitStatus::kTooShort, "the series has no case that is not missing"};
}

}  // namespace tsffit
