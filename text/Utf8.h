#ifndef TSXPORT_TEXT_UTF8_H_
#define TSXPORT_TEXT_UTF8_H_

#include <cstddef>
#include <string_view>

// UTF-8 text as characters.
namespace tsx::text {

// The character at the front of a text.
struct Character {
  std::size_t length = 0;  // in bytes; 0: no well-formed character begins there
  bool clean = false;      // it may stand in a name
};

// As Unicode has it: no overlong forms, no surrogates, nothing above U+10FFFF. Clean are all but
// control characters (U+0000 to U+001F, U+007F to U+009F) and U+FFFE and U+FFFF, which XML forbids.
// `text` is not empty.
Character FirstCharacter(std::string_view text);

// Position of the first byte that is not part of well-formed UTF-8; npos when all is well.
std::size_t FindInvalidUtf8(std::string_view text);

// Whether a name may stand in a document: valid UTF-8, and every character is clean.
bool IsCleanName(std::string_view text);

// True for the first byte of each character of valid UTF-8.
constexpr bool StartsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

std::size_t CharacterCount(std::string_view text);

}  // namespace tsx::text

#endif  // TSXPORT_TEXT_UTF8_H_
