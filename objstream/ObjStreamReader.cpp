#include <fstream>

#include <tsxport/ObjStreamReader.h>

#include "objstream/LineParser.h"
#include "objstream/Names.h"
#include "objstream/TokenNumber.h"

namespace TIMESERIESXML {
namespace {

using namespace tsx::objstream;

// Carriage returns delimit, so lines may end in CR LF. Names and strings run to the quote, and may
// hold anything else.
constexpr Dialect kDialect = {.prolog = DelimiterSet(" \t\r\n<>=\""),
                              .object = DelimiterSet(" \t\r\n<=\""),
                              .object_name = DelimiterSet("\""),
                              .object_end = DelimiterSet(" \t\r\n<>"),
                              .value_tag = DelimiterSet(" \t\r\n=<\""),
                              .value_attribute = DelimiterSet("=\""),
                              .number = DelimiterSet(" \t\r\n=<\"")};
constexpr DelimiterSet kStringDelimiters("\r\n\"");

}  // namespace

bool ParseStartXML(std::ifstream& in) {
  return ParseFirstToken(in, kDialect.prolog, kDeclaration) &&
         ParseFirstToken(in, kDialect.prolog, kDocType) &&
         ParseFirstToken(in, kDialect.prolog, kRoot);
}

bool ParseStartObj(std::ifstream& in, const std::string& name) {
  return tsx::objstream::ParseStartObj(in, kDialect, name);
}

bool ParseEndObj(std::ifstream& in) { return tsx::objstream::ParseEndObj(in, kDialect); }

bool ParseValue(std::ifstream& in, bool& value) {
  long number = 0;
  if (!ParseInteger<kInt>(in, kDialect, number) || (number != 0 && number != 1)) return false;
  value = number == 1;
  return true;
}

bool ParseValue(std::ifstream& in, int& value) { return ParseInteger<kInt>(in, kDialect, value); }

bool ParseValue(std::ifstream& in, unsigned int& value) {
  return ParseInteger<kInt>(in, kDialect, value);
}

bool ParseValue(std::ifstream& in, long& value) { return ParseInteger<kLong>(in, kDialect, value); }

bool ParseValue(std::ifstream& in, double& value) {
  LineTokens line;
  if (!ParseValueStart<kDouble>(in, kDialect, line)) return false;
  if (NextPlainDouble(line, kDialect.number, value)) return true;
  const std::string_view token = line.Next(kDialect.number);
  if (token.empty()) return false;
  if (token == kMissingText) {
    value = kMissingValue;
  } else {
    ExtractDouble(token, value);
  }
  return true;
}

bool ParseValue(std::ifstream& in, std::string& value) {
  LineTokens line;
  if (!ParseValueStart<kString>(in, kDialect, line)) return false;
  const char* const behindAttribute = line.place();
  const std::string_view token = line.Next(kStringDelimiters);
  // Of an empty value both quotes are skipped, and the tag's end looks like its text.
  const std::string_view skipped(behindAttribute,
                                 static_cast<std::size_t>(token.data() - behindAttribute));
  const bool emptyValue = token == "/>" && skipped.ends_with("\"\"");
  value = emptyValue ? std::string_view() : token;
  return true;
}

}  // namespace TIMESERIESXML
