#include <tsxport/XMLUtil.h>

namespace TIMESERIESXML {

// Earlier than initialisers without a priority, those of hosts that link statically among them.
#define TSX_EARLY __attribute__((init_priority(150)))

const std::string XMLUtil::FIRST_LINE TSX_EARLY = R"(<?xml version="1.0" encoding="UTF-8" ?>)";

const std::string XMLUtil::ROWSEP TSX_EARLY = "\n";
const std::string XMLUtil::ITEMINDENT TSX_EARLY = "\t";
const std::string XMLUtil::QUOTE TSX_EARLY = "\"";
const std::string XMLUtil::EQUAL TSX_EARLY = "=";
const std::string XMLUtil::BEGIN_ELEMENT TSX_EARLY = "<";
const std::string XMLUtil::BEGIN_PREPROCESSOR TSX_EARLY = "!";
const std::string XMLUtil::END_ELEMENT TSX_EARLY = ">";
const std::string XMLUtil::BEGIN_END_ELEMENT TSX_EARLY = "/";
const std::string XMLUtil::SPACE TSX_EARLY = " ";

const std::string XMLUtil::AMPERSAND TSX_EARLY = "&";
const std::string XMLUtil::LESS_THAN TSX_EARLY = "<";
const std::string XMLUtil::GREATER_THAN TSX_EARLY = ">";
const std::string XMLUtil::XML_AMPERSAND TSX_EARLY = "&amp;";
const std::string XMLUtil::XML_LESS_THAN TSX_EARLY = "&lt;";
const std::string XMLUtil::XML_GREATER_THAN TSX_EARLY = "&gt;";
const std::string XMLUtil::XML_QUOTE TSX_EARLY = "&quot;";
const std::string XMLUtil::XML_CHARREF_TAB TSX_EARLY = "&#9;";
const std::string XMLUtil::XML_CHARREF_NL TSX_EARLY = "&#10;";
const std::string XMLUtil::XML_CHARREF_CR TSX_EARLY = "&#13;";
const std::string XMLUtil::XML_CHARREF_SP TSX_EARLY = "&#32;";
const std::string XMLUtil::XML_SP_CHARREF_SP TSX_EARLY = " &#32;";

#undef TSX_EARLY

const int XMLUtil::TAB_LENGTH;

std::string XMLUtil::GetTabs(int n) {
  return n < 1 ? std::string() : std::string(static_cast<std::size_t>(n), '\t');
}

std::string XMLUtil::toString(int n) { return std::to_string(n); }

int XMLUtil::ReplaceAtPos(std::string& s, const char* find, const std::string& with, int& pos) {
  if (pos < 0 || static_cast<std::size_t>(pos) > s.size()) return -1;
  const std::size_t found = s.find(find, static_cast<std::size_t>(pos));
  pos = found == std::string::npos ? -1 : static_cast<int>(found);
  if (pos >= 0) s.replace(found, std::char_traits<char>::length(find), with);
  return pos;
}

int XMLUtil::ReplaceAll(std::string& s, const char* find, const std::string& with) {
  int pos = 0;
  while (ReplaceAtPos(s, find, with, pos) >= 0) pos += static_cast<int>(with.size());
  return pos;
}

int XMLUtil::ReplaceString(std::string& s, const char* find, const std::string& with) {
  int pos = 0;
  return ReplaceAtPos(s, find, with, pos);
}

}  // namespace TIMESERIESXML
