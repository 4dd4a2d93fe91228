#include "text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tsx::text {
namespace {

// Length of the well-formed UTF-8 character at the front of `text` (not empty), 0 when there is
// none. The ranges of the second byte are those of the Unicode Standard's table 3-7.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [text](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const auto within = [](unsigned value, unsigned low, unsigned high) {
    return low <= value && value <= high;
  };
  const auto continues = [&](std::size_t i) { return within(byte(i), 0x80, 0xBF); };

  const unsigned first = byte(0);
  if (first < 0x80) return 1;
  if (within(first, 0xC2, 0xDF)) return continues(1) ? 2 : 0;
  if (within(first, 0xE0, 0xEF)) {
    const unsigned low = first == 0xE0 ? 0xA0 : 0x80;
    const unsigned high = first == 0xED ? 0x9F : 0xBF;
    return within(byte(1), low, high) && continues(2) ? 3 : 0;
  }
  if (within(first, 0xF0, 0xF4)) {
    const unsigned low = first == 0xF0 ? 0x90 : 0x80;
    const unsigned high = first == 0xF4 ? 0x8F : 0xBF;
    return within(byte(1), low, high) && continues(2) && continues(3) ? 4 : 0;
  }
  return 0;
}

// Whether a well-formed character must not appear in a name.
bool IsForbidden(std::string_view character) {
  const auto first = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return first < 0x20 || first == 0x7F;
  const auto second = static_cast<unsigned char>(character[1]);
  if (character.size() == 2) return first == 0xC2 && second < 0xA0;
  const auto third = static_cast<unsigned char>(character[2]);
  return character.size() == 3 && first == 0xEF && second == 0xBF && third >= 0xBE;
}

constexpr std::size_t kLongestQuote = 40;

}  // namespace

std::size_t FindInvalidUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = CharacterLength(text.substr(i));
    if (length == 0) return i;
    i += length;
  }
  return std::string_view::npos;
}

bool IsCleanName(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = CharacterLength(text.substr(i));
    if (length == 0 || IsForbidden(text.substr(i, length))) return false;
    i += length;
  }
  return true;
}

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string AsciiLowercase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string Printable(std::string_view text) {
  std::string printable;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = CharacterLength(text.substr(i));
    const bool good = length != 0 && !IsForbidden(text.substr(i, length));
    printable += good ? text.substr(i, length) : std::string_view("?");
    i += std::max<std::size_t>(length, 1);
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

std::string NumberText(double value, int digits) {
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::general, digits);
  return {buffer.data(), result.ptr};
}

std::string FixedText(double value, int decimals) {
  std::array<char, 512> buffer{};  // the largest double has 309 digits before the point
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::fixed, decimals);
  return {buffer.data(), result.ptr};
}

std::string Joined(const std::vector<std::string>& parts, std::string_view separator) {
  std::string joined;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) joined += separator;
    joined += parts[i];
  }
  return joined;
}

}  // namespace tsx::text
