#include "objstream/TokenNumber.h"

#include <cctype>
#include <charconv>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace tsx::objstream {
namespace {

bool IsSpace(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Sets `value` and returns true when the whole token is a plain number within the range: then the
// classic locale's extraction reads the same. Anything else is left to that.
bool ReadPlainDouble(std::string_view token, double& value) {
  const char* const end = token.data() + token.size();
  const char* digits = token.data();
  if (digits != end && *digits == '-') ++digits;
  // Keeps out "inf" and "nan", which an extraction does not take.
  if (digits == end || !(IsDigit(*digits) || *digits == '.')) return false;
  const auto [stop, error] = std::from_chars(token.data(), end, value);
  return stop == end && error == std::errc{};
}

}  // namespace

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

void ExtractDouble(std::string_view token, double& value) {
  if (std::locale() == std::locale::classic() && ReadPlainDouble(token, value)) return;
  std::istringstream text{std::string(token)};
  text >> value;
}

}  // namespace tsx::objstream
