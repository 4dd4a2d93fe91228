#include "cli/options/ValueReader.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "cli/Errors.h"

namespace tsx::cli {

ValueReader::ValueReader(const char* option, std::string_view whole, std::string_view rest)
    : option_(option), whole_(whole), rest_(rest) {
  SkipBlanks();
}

void ValueReader::Fail(const std::string& cause) const {
  throw UsageError(std::string(option_) + ": " + text::Quoted(whole_) + ": " + cause);
}

void ValueReader::FailWithout(const std::string& wanted) const {
  Fail("there must be " + wanted + (AtEnd() ? " at the end" : " before " + text::Quoted(rest_)));
}

bool ValueReader::Take(char c) {
  if (!Next(c)) return false;
  rest_.remove_prefix(1);
  SkipBlanks();
  return true;
}

void ValueReader::Expect(char c) {
  if (!Take(c)) FailWithout(std::string("a '") + c + "'");
}

std::string_view ValueReader::Word() {
  const std::string_view word = rest_.substr(0, rest_.find_first_of(",=()[]"));
  rest_.remove_prefix(word.size());
  return text::Trimmed(word);
}

unsigned ValueReader::Count(unsigned least, unsigned most) {
  const std::string wanted =
      "a whole number from " + std::to_string(least) + " to " + std::to_string(most);
  const std::string_view word = Word();
  if (word.empty()) FailWithout(wanted);
  unsigned value = 0;
  const char* const end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, value);
  const bool whole = error == std::errc() && stop == end;
  if (whole && least <= value && value <= most) return value;
  Fail(text::Quoted(word) + " is not " + wanted);
}

void ValueReader::SkipBlanks() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
}

}  // namespace tsx::cli
