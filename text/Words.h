#ifndef TSXPORT_TEXT_WORDS_H_
#define TSXPORT_TEXT_WORDS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Taking texts apart and putting them together. Nothing here looks at a locale.
namespace tsx::text {

// Without blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

std::string AsciiLowercase(std::string_view text);

std::string Joined(const std::vector<std::string>& parts, std::string_view separator);

// "1 case", "2 cases"
std::string Counted(std::size_t count, std::string_view noun);

}  // namespace tsx::text

#endif  // TSXPORT_TEXT_WORDS_H_
