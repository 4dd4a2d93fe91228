#include "text/Utf8.h"

#include <algorithm>

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

}  // namespace

Character FirstCharacter(std::string_view text) {
  const std::size_t length = CharacterLength(text);
  return {length, length != 0 && !IsForbidden(text.substr(0, length))};
}

std::size_t FindInvalidUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = CharacterLength(text.substr(i));
    if (length == 0) return i;
    i += length;
  }
  return std::string_view::npos;
}

bool IsCleanName(std::string_view text) {
  while (!text.empty()) {
    const Character first = FirstCharacter(text);
    if (!first.clean) return false;
    text.remove_prefix(first.length);
  }
  return true;
}

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

}  // namespace tsx::text
