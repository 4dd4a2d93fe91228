#ifndef TSXPORT_DATESPEC_MIXEDRADIX_H_
#define TSXPORT_DATESPEC_MIXEDRADIX_H_

#include <cstdint>
#include <limits>
#include <span>

// Counting in mixed radix: years of twelve months, weeks of five days, in steps of several units.
// Every function is defined for every input; what does not fit saturates.
namespace tsx {

// A count of lowest increments. Where the true count does not fit, `exact` is false and `count` is
// the end of the range that it lies beyond.
struct StepCount {
  std::int64_t count = 0;
  bool exact = true;
};

// One index of a position, seen from a start.
struct Digit {
  std::int64_t value = 0;  // [-(2^32 - 1), 2^32 - 1]: index minus start
  std::int64_t radix = 0;  // [1, 2^32 - 1]: indexes in use; the coarsest digit has none
};

// a * b, or the greatest value when that does not fit.
constexpr std::uint64_t SaturatingProduct(std::uint64_t a, std::uint64_t b) {
  std::uint64_t product = 0;
  return __builtin_mul_overflow(a, b, &product) ? std::numeric_limits<std::uint64_t>::max()
                                                : product;
}

// high * radix + low; false, with `result` unspecified, when that does not fit.
constexpr bool MultiplyAdd(std::int64_t high, std::int64_t radix, std::int64_t low,
                           std::int64_t& result) {
  return !__builtin_mul_overflow(high, radix, &result) &&
         !__builtin_add_overflow(result, low, &result);
}

constexpr StepCount BeyondRange(bool negative) {
  using Limits = std::numeric_limits<std::int64_t>;
  return {negative ? Limits::min() : Limits::max(), false};
}

// (((d0 * r1) + d1) * r2 + d2 ...) / increment, rounded toward zero. The coarsest digit comes first
// and `digits` is not empty; `increment` is at least 1 and divides the last radix. It is divided
// out before the last multiplication, so that a quotient that fits is never lost on the way.
constexpr StepCount StepsFromDigits(std::span<const Digit> digits, std::int64_t increment) {
  std::int64_t coarse = 0;
  for (const Digit& digit : digits.first(digits.size() - 1)) {
    std::int64_t next = 0;
    if (!MultiplyAdd(coarse, digit.radix, digit.value, next)) return BeyondRange(coarse < 0);
    coarse = next;
  }
  const Digit& finest = digits.back();
  std::int64_t steps = 0;
  if (!MultiplyAdd(coarse, finest.radix / increment, finest.value / increment, steps)) {
    return BeyondRange(coarse < 0);
  }
  const std::int64_t rest = finest.value % increment;  // a part of a step, signed as the digit
  if (steps > 0 && rest < 0) --steps;
  if (steps < 0 && rest > 0) ++steps;
  return {steps, true};
}

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_MIXEDRADIX_H_
