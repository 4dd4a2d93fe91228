#include "xml/NumberText.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace tsx {
namespace {

__extension__ using Uint128 = unsigned __int128;

constexpr int kDigits = 15;
constexpr std::uint64_t kTenTo14 = 100'000'000'000'000;
constexpr std::uint64_t kTenTo15 = 10 * kTenTo14;

constexpr std::array<std::uint64_t, 28> PowersOfFive() {
  std::array<std::uint64_t, 28> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = 5 * powers[i - 1];
  return powers;
}
constexpr auto kPowersOfFive = PowersOfFive();  // 5^27 is the last below 2^63

constexpr std::array<char, 200> DigitPairs() {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}
constexpr auto kDigitPairs = DigitPairs();  // "00" "01" ... "99"

void PutPair(std::uint32_t number, char* out) {  // number in [0, 100)
  std::memcpy(out, kDigitPairs.data() + std::size_t{2} * number, 2);
}

void PutEightDigits(std::uint32_t number, char* out) {  // number in [0, 10^8)
  const std::uint32_t high = number / 10'000;
  const std::uint32_t low = number % 10'000;
  PutPair(high / 100, out);
  PutPair(high % 100, out + 2);
  PutPair(low / 100, out + 4);
  PutPair(low % 100, out + 6);
}

// A positive number as digits * 10^(exponent - 14), digits in [10^14, 10^15).
struct Decimal {
  std::uint64_t digits;
  int exponent;
};

// The nearest such decimal to mantissa * 2^binaryExponent, ties to even. Exact: with ten to the
// power of k split into two and five, the number of digits wanted is a product of 116 bits at most,
// shifted to the right. For numbers in [1e-12, 1e15) with 53 bits of mantissa, if they do not round
// to 1e15.
Decimal RoundToDigits(std::uint64_t mantissa, int binaryExponent) {
  // floor(log10(2^b)) for the b of the leading bit: the decimal exponent or one less.
  int exponent = ((binaryExponent + 52) * 315'653) >> 20;
  Uint128 product = 0;
  int shift = 0;
  const auto scale = [&] {
    const int k = kDigits - 1 - exponent;  // [0, 27]
    product = Uint128{mantissa} * kPowersOfFive[static_cast<std::size_t>(k)];
    shift = -(binaryExponent + k);  // [2, 70]
  };
  scale();
  if (product >> shift >= kTenTo15) {
    ++exponent;
    scale();
  }
  auto digits = static_cast<std::uint64_t>(product >> shift);
  const Uint128 rest = product & ((Uint128{1} << shift) - 1);
  const Uint128 half = Uint128{1} << (shift - 1);
  if (rest > half || (rest == half && (digits & 1U) != 0)) ++digits;
  if (digits == kTenTo15) return {kTenTo14, exponent + 1};
  return {digits, exponent};
}

// Below 1e15 and not negative, without leading zeros.
char* PutInteger(std::uint64_t number, char* out) {
  return std::to_chars(out, out + kDigits, number).ptr;
}

// 0.00012345, 1.2345, 12345 or 1.2345e-05: without exponent from 1e-4 on.
char* PutDecimal(const Decimal& decimal, char* out) {
  char digits[16];
  PutEightDigits(static_cast<std::uint32_t>(decimal.digits / 100'000'000), digits);
  PutEightDigits(static_cast<std::uint32_t>(decimal.digits % 100'000'000), digits + 8);
  const char* first = digits + 1;  // of sixteen the first is 0
  std::size_t count = kDigits;
  while (first[count - 1] == '0') --count;

  if (decimal.exponent < -4) {
    *out++ = *first;
    if (count > 1) *out++ = '.';
    std::memcpy(out, first + 1, count - 1);
    out += count - 1;
    *out++ = 'e';
    *out++ = '-';
    PutPair(static_cast<std::uint32_t>(-decimal.exponent), out);
    return out + 2;
  }
  if (decimal.exponent < 0) {
    const auto zeros = static_cast<std::size_t>(-decimal.exponent);
    std::memset(out, '0', zeros + 1);
    out[1] = '.';
    out += zeros + 1;
    std::memcpy(out, first, count);
    return out + count;
  }
  const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
  if (count <= whole) {
    std::memcpy(out, first, whole);  // zeros behind the last digit included
    return out + whole;
  }
  std::memcpy(out, first, whole);
  out[whole] = '.';
  std::memcpy(out + whole + 1, first + whole, count - whole);
  return out + count + 1;
}

}  // namespace

char* PutNumber(double value, char* out) noexcept {
  const double size = std::fabs(value);
  // False for not-a-numbers too.
  const bool ordinary = size >= 1e-12 && size <= static_cast<double>(kTenTo15 - 1);
  if (!ordinary) {
    return std::to_chars(out, out + kMaxNumberSize, value, std::chars_format::general, kDigits).ptr;
  }
  if (value < 0) *out++ = '-';
  const auto whole = static_cast<std::uint64_t>(size);
  if (static_cast<double>(whole) == size) return PutInteger(whole, out);
  const auto bits = std::bit_cast<std::uint64_t>(size);
  const std::uint64_t hiddenBit = std::uint64_t{1} << 52U;
  const std::uint64_t mantissa = (bits & (hiddenBit - 1)) | hiddenBit;
  return PutDecimal(RoundToDigits(mantissa, static_cast<int>(bits >> 52U) - 1075), out);
}

}  // namespace tsx
