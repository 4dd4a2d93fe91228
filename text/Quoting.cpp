#include "text/Quoting.h"

#include <algorithm>

#include "text/Utf8.h"
#include "text/Words.h"

namespace tsx::text {
namespace {

constexpr std::size_t kLongestQuote = 40;

}  // namespace

std::string Printable(std::string_view text) {
  std::string printable;
  while (!text.empty()) {
    const Character first = FirstCharacter(text);
    printable += first.clean ? text.substr(0, first.length) : std::string_view("?");
    text.remove_prefix(std::max<std::size_t>(first.length, 1));
  }
  return printable;
}

std::string Quoted(std::string_view text) {
  const std::string printable = Printable(text);
  if (CharacterCount(printable) <= kLongestQuote) return "'" + printable + "'";

  std::size_t end = 0;
  for (std::size_t count = 0; end < printable.size(); ++end) {
    if (StartsCharacter(printable[end]) && count++ == kLongestQuote) break;
  }
  return "'" + printable.substr(0, end) + "...'";
}

std::string CsvField(std::string_view text) {
  // At the start of a file it would pass for a mark of the encoding.
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  const bool plain = text.find_first_of("\",;\n\r") == std::string_view::npos &&
                     Trimmed(text).size() == text.size() && !text.starts_with(kByteOrderMark);
  if (plain) return std::string(text);

  std::string field = "\"";
  for (const char c : text) field.append(c == '"' ? 2 : 1, c);
  return field + '"';
}

}  // namespace tsx::text
