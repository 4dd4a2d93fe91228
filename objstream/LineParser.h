#ifndef TSXPORT_OBJSTREAM_LINEPARSER_H_
#define TSXPORT_OBJSTREAM_LINEPARSER_H_

#include <istream>
#include <string>
#include <string_view>

#include "objstream/LineTokens.h"
#include "objstream/Names.h"
#include "objstream/TokenNumber.h"

// What the two readers have in common. They differ in what delimits a token.
namespace tsx::objstream {

struct Dialect {
  DelimiterSet prolog;           // the lines in front of the objects
  DelimiterSet object;           // "Obj" and "name"
  DelimiterSet object_name;      // the object's name
  DelimiterSet object_end;       // "/Obj"
  DelimiterSet value_tag;        // "Int", "Long", ...
  DelimiterSet value_attribute;  // "value"
  DelimiterSet number;           // the value, unless it is a string
};

// Each reads one line (ParseStartObj two when the first is empty) and tells whether it is the one
// wanted. Results are set only then.

// Whether the next line's first token is `token`.
bool ParseFirstToken(std::istream& in, DelimiterSet delimiters, std::string_view token);

bool ParseStartObj(std::istream& in, const Dialect& dialect, const std::string& name);
bool ParseEndObj(std::istream& in, const Dialect& dialect);

// Up to the attribute's name; the value is the next token of `line`. The tag is a constant of the
// code, so that comparing with it takes no call.
template <const ValueTag& kTag>
bool ParseValueStart(std::istream& in, const Dialect& dialect, LineTokens& line) {
  if (!line.Read(in)) return false;
  // The writer's own lines, whose tokens are the same to both readers.
  if (line.SkipTabsAnd(kTag.start)) return true;
  return line.Next(dialect.value_tag) == kTag.name && line.Next(dialect.value_attribute) == kValue;
}

// `value` is what strtol() makes of the value, of which an int takes the low bits.
template <const ValueTag& kTag, typename Integer>
bool ParseInteger(std::istream& in, const Dialect& dialect, Integer& value) {
  LineTokens line;
  long number = 0;
  if (!ParseValueStart<kTag>(in, dialect, line) || !NextLong(line, dialect.number, number)) {
    return false;
  }
  value = static_cast<Integer>(number);
  return true;
}

}  // namespace tsx::objstream

#endif  // TSXPORT_OBJSTREAM_LINEPARSER_H_
