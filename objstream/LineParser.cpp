#include "objstream/LineParser.h"

namespace tsx::objstream {

bool ParseFirstToken(std::istream& in, DelimiterSet delimiters, std::string_view token) {
  LineTokens line;
  return line.Read(in) && line.Next(delimiters) == token;
}

bool ParseStartObj(std::istream& in, const Dialect& dialect, const std::string& name) {
  LineTokens line;
  if (!line.Read(in)) return false;
  if (line.IsEmpty() && !line.Read(in)) return false;
  if (line.Next(dialect.object) != kObject || line.Next(dialect.object) != kName) return false;
  const std::string_view found = line.Next(dialect.object_name);
  return !found.empty() && found == name;
}

bool ParseEndObj(std::istream& in, const Dialect& dialect) {
  return ParseFirstToken(in, dialect.object_end, kObjectEnd);
}

}  // namespace tsx::objstream
