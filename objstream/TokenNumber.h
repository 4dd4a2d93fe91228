#ifndef TSXPORT_OBJSTREAM_TOKENNUMBER_H_
#define TSXPORT_OBJSTREAM_TOKENNUMBER_H_

#include <string_view>

namespace tsx::objstream {

// The number at the front of `token` as strtol() reads it in base 10: white space of the C locale
// in force, a sign, digits. The rest is ignored; no digits give 0, and too many the end of the
// range on their side. errno is left alone.
long LongFrom(std::string_view token);

// Puts into `value` what a string stream over `token` extracts: by the global C++ locale. When the
// extraction fails that is 0, or the largest finite value with its sign when the number is beyond
// it; a token of white space alone leaves `value` as it was.
void ExtractDouble(std::string_view token, double& value);

}  // namespace tsx::objstream

#endif  // TSXPORT_OBJSTREAM_TOKENNUMBER_H_
