#include <fstream>

#include <tsxport/XmluReader.h>

#include "objstream/LineParser.h"
#include "objstream/Names.h"
#include "objstream/TokenNumber.h"

namespace xmlu {
namespace {

using namespace tsx::objstream;

// One set nearly everywhere. A carriage return is part of a token.
constexpr DelimiterSet kAll(" \t\n<>=\"");
constexpr Dialect kDialect = {.prolog = kAll,
                              .object = kAll,
                              .object_name = kAll,
                              .object_end = DelimiterSet(" \t\n<>"),
                              .value_tag = kAll,
                              .value_attribute = kAll,
                              .number = kAll};

}  // namespace

bool ParseStartXML(std::ifstream& in) {
  // The third line separates, and has no token. The root's start tag is not asked for.
  return ParseFirstToken(in, kDialect.prolog, kDeclaration) &&
         ParseFirstToken(in, kDialect.prolog, kDocType) &&
         ParseFirstToken(in, kDialect.prolog, std::string_view());
}

bool ParseStartObj(std::ifstream& in, const std::string& name) {
  return tsx::objstream::ParseStartObj(in, kDialect, name);
}

bool ParseEndObj(std::ifstream& in) { return tsx::objstream::ParseEndObj(in, kDialect); }

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
  ExtractDouble(token, value);
  return true;
}

}  // namespace xmlu
