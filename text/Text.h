#ifndef TSXPORT_TEXT_TEXT_H_
#define TSXPORT_TEXT_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Small helpers on UTF-8 text. None of them looks at a locale.
namespace tsx::text {

// Position of the first byte that is not part of well-formed UTF-8; npos when all is well. As
// Unicode has it: no overlong forms, no surrogates, nothing above U+10FFFF.
std::size_t FindInvalidUtf8(std::string_view text);

// Whether a name may stand in a document: valid UTF-8 without control characters (U+0000 to U+001F,
// U+007F to U+009F) and without U+FFFE and U+FFFF, which XML forbids.
bool IsCleanName(std::string_view text);

// True for the first byte of each character of valid UTF-8.
constexpr bool StartsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

std::size_t CharacterCount(std::string_view text);

// Without blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

std::string AsciiLowercase(std::string_view text);

// `text` fit for one line of a terminal: control characters and bytes that are not UTF-8 become
// '?'.
std::string Printable(std::string_view text);

// Printable text in single quotes, cut after 40 characters.
std::string Quoted(std::string_view text);

// `text` as one cell of a CSV file, in double quotes where it needs them under either separator.
std::string CsvField(std::string_view text);

// `value` with up to `digits` significant digits, '.' as decimal character, no trailing zeros.
std::string NumberText(double value, int digits = 15);

// `value` with exactly `decimals` decimals.
std::string FixedText(double value, int decimals);

std::string Joined(const std::vector<std::string>& parts, std::string_view separator);

}  // namespace tsx::text

#endif  // TSXPORT_TEXT_TEXT_H_
