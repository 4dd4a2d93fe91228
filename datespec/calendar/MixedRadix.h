#ifndef TSXPORT_DATESPEC_CALENDAR_MIXEDRADIX_H_
#define TSXPORT_DATESPEC_CALENDAR_MIXEDRADIX_H_

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

// Wide enough for the number of any position in any calendar that is worth telling exactly.
__extension__ using WideNumber = __int128;

// (((d0 * r1) + d1) * r2 + d2 ...) / increment, rounded toward zero. The coarsest digit comes first
// and `digits` is not empty; `increment` is at least 1 and divides the last radix.
constexpr StepCount StepsFromDigits(std::span<const Digit> digits, std::int64_t increment) {
  using Limits = std::numeric_limits<std::int64_t>;
  // From here on no later digits, of 2^32 at the most, and no increment below 2^32 bring a number
  // back into range: 2^95 - 2^36 > (2^63 + 1) * (2^32 - 1). One more digit still fits before that:
  // (2^95 - 1) * (2^32 - 1) + 2^32 < 2^127.
  constexpr WideNumber kFar = WideNumber{1} << 95;
  WideNumber number = digits.front().value;
  for (std::size_t i = 1; i < digits.size(); ++i) {
    number = number * digits[i].radix + digits[i].value;
    if (number >= kFar || number <= -kFar) return BeyondRange(number < 0);
  }
  number /= increment;
  if (number > Limits::max() || number < Limits::min()) return BeyondRange(number < 0);
  return {static_cast<std::int64_t>(number), true};
}

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_CALENDAR_MIXEDRADIX_H_
