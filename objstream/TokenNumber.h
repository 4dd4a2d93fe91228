#ifndef TSXPORT_OBJSTREAM_TOKENNUMBER_H_
#define TSXPORT_OBJSTREAM_TOKENNUMBER_H_

#include <string_view>

#include "objstream/LineTokens.h"

namespace tsx::objstream {

// The value of the line's next token as strtol() reads it in base 10: white space of the C locale
// in force, a sign, digits. What follows is ignored; no digits give 0, and too many the end of the
// range on their side. errno is left alone. False when there is no token.
bool NextLong(LineTokens& line, DelimiterSet delimiters, long& value);

// The same for a double, when the next token is a plain number within the range and the global C++
// locale is the classic one. Else nothing has happened, and ExtractDouble() takes the token.
bool NextPlainDouble(LineTokens& line, DelimiterSet delimiters, double& value);

// What a string stream extracts from `token`, by the global C++ locale. When the extraction fails
// that is 0, or the largest finite value with its sign when the number is beyond it; white space
// alone leaves `value` as it was.
void ExtractDouble(std::string_view token, double& value);

}  // namespace tsx::objstream

#endif  // TSXPORT_OBJSTREAM_TOKENNUMBER_H_
