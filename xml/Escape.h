#ifndef TSXPORT_XML_ESCAPE_H_
#define TSXPORT_XML_ESCAPE_H_

#include <cstddef>
#include <string_view>

namespace tsx {

// Character data: "&" and "<" become entities, nothing else changes. The first function tells how
// many bytes the second will write to `out`, which returns their end.
std::size_t EscapedTextSize(std::string_view text);
char* EscapeText(std::string_view text, char* out);

// Attribute values: "&", "<", ">" and the double quote become entities; tab, line feed and carriage
// return become character references; so do the first blank, the last one, and every second one of
// a run, which a reader that normalises blanks would drop.
std::size_t EscapedValueSize(std::string_view value);
char* EscapeValue(std::string_view value, char* out);

}  // namespace tsx

#endif  // TSXPORT_XML_ESCAPE_H_
