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

constexpr StepCount BeyondRange(bool negative) {
  using Limits = std::numeric_limits<std::int64_t>;
  return {negative ? Limits::min() : Limits::max(), false};
}

// Carries and borrows until high and low have one sign and |low| < radix: a year less a month is
// eleven months. Then a product that overflows means a sum that does. False when `high` overflows.
constexpr bool Align(std::int64_t& high, std::int64_t& low, std::int64_t radix) {
  if (__builtin_add_overflow(high, low / radix, &high)) return false;
  low %= radix;
  if (high > 0 && low < 0) {
    --high;
    low += radix;
  } else if (high < 0 && low > 0) {
    ++high;
    low -= radix;
  }
  return true;
}

// (((d0 * r1) + d1) * r2 + d2 ...) / increment, rounded toward zero. The coarsest digit comes first
// and `digits` is not empty; `increment` is at least 1 and divides the last radix. It is divided
// out before the last multiplication, so that a quotient that fits is never lost on the way.
constexpr StepCount StepsFromDigits(std::span<const Digit> digits, std::int64_t increment) {
  std::int64_t number = digits.front().value;
  if (digits.size() == 1) return {number / increment, true};
  for (std::size_t i = 1; i < digits.size(); ++i) {
    const std::int64_t step = i + 1 == digits.size() ? increment : 1;
    const std::int64_t radix = digits[i].radix;
    const bool negative = number < 0;
    std::int64_t low = digits[i].value;
    if (!Align(number, low, radix) || __builtin_mul_overflow(number, radix / step, &number) ||
        __builtin_add_overflow(number, low / step, &number)) {
      return BeyondRange(negative);
    }
  }
  return {number, true};
}

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_MIXEDRADIX_H_
