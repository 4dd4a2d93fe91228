#include "objstream/TokenNumber.h"

#include <cctype>
#include <charconv>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

// The usual numbers are read without looking for their token's end: no delimiter is part of one.

namespace tsx::objstream {
namespace {

bool IsSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Sets `value` and returns true when `text` begins with a number of at most 18 digits. A NUL
// follows it.
bool ReadPlainLong(const char* text, long& value) {
  constexpr int kMaxDigits = 18;
  const bool negative = *text == '-';
  const char* const digits = negative ? text + 1 : text;
  const char* next = digits;
  long number = 0;
  for (; IsDigit(*next); ++next) {
    if (next - digits == kMaxDigits) return false;
    number = 10 * number + (*next - '0');
  }
  if (next == digits) return false;
  value = negative ? -number : number;
  return true;
}

long LongFrom(std::string_view token) {
  const char* first = token.data();
  const char* const end = first + token.size();
  while (first != end && IsSpace(*first)) ++first;
  const bool negative = first != end && *first == '-';
  const char* digits = first;
  if (first != end && (negative || *first == '+')) ++digits;
  if (digits == end || !IsDigit(*digits)) return 0;

  using Range = std::numeric_limits<long>;
  long number = 0;
  const auto result = std::from_chars(negative ? first : digits, end, number);
  if (result.ec == std::errc{}) return number;
  return negative ? Range::min() : Range::max();
}

// Sets `value` and returns true when a plain number within the range begins `text` and ends with
// its token: then the classic locale's extraction reads the same. `text` is followed by a NUL.
bool ReadPlainDouble(std::string_view text, DelimiterSet delimiters, double& value) {
  const char* const first = text.data();
  const char* const digits = *first == '-' ? first + 1 : first;
  // Keeps out "inf" and "nan", which an extraction does not take.
  if (!IsDigit(*digits) && *digits != '.') return false;
  double number = 0;
  const auto [stop, error] = std::from_chars(first, first + text.size(), number);
  if (error != std::errc{} || !delimiters.EndsToken(*stop)) return false;
  value = number;
  return true;
}

}  // namespace

bool NextLong(LineTokens& line, DelimiterSet delimiters, long& value) {
  if (ReadPlainLong(line.Rest(delimiters).data(), value)) return true;
  const std::string_view token = line.Next(delimiters);
  if (token.empty()) return false;
  value = LongFrom(token);
  return true;
}

bool NextPlainDouble(LineTokens& line, DelimiterSet delimiters, double& value) {
  return std::locale() == std::locale::classic() &&
         ReadPlainDouble(line.Rest(delimiters), delimiters, value);
}

void ExtractDouble(std::string_view token, double& value) {
  std::istringstream text{std::string(token)};
  text >> value;
}

}  // namespace tsx::objstream
