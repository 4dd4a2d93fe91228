#ifndef TSXPORT_XMLUTIL_H_
#define TSXPORT_XMLUTIL_H_

#include <string>

#include <tsxport/Export.h>

namespace TIMESERIESXML {

// The fixed pieces of XML text, and a few functions on strings. The strings come into being when
// the library is loaded, before the static objects of those who link to it, and are only read
// afterwards: any thread may use them.
class TSX_EXPORT XMLUtil {
 public:
  static const std::string FIRST_LINE;  // <?xml version="1.0" encoding="UTF-8" ?>

  static const std::string ROWSEP;              // a line feed
  static const std::string ITEMINDENT;          // a tab, one level of indentation
  static const std::string QUOTE;               // "
  static const std::string EQUAL;               // =
  static const std::string BEGIN_ELEMENT;       // <
  static const std::string BEGIN_PREPROCESSOR;  // !
  static const std::string END_ELEMENT;         // >
  static const std::string BEGIN_END_ELEMENT;   // /
  static const std::string SPACE;               // a blank

  static const std::string AMPERSAND;          // &
  static const std::string LESS_THAN;          // <
  static const std::string GREATER_THAN;       // >
  static const std::string XML_AMPERSAND;      // &amp;
  static const std::string XML_LESS_THAN;      // &lt;
  static const std::string XML_GREATER_THAN;   // &gt;
  static const std::string XML_QUOTE;          // &quot;
  static const std::string XML_CHARREF_TAB;    // &#9;
  static const std::string XML_CHARREF_NL;     // &#10;
  static const std::string XML_CHARREF_CR;     // &#13;
  static const std::string XML_CHARREF_SP;     // &#32;
  static const std::string XML_SP_CHARREF_SP;  // a blank and &#32;, for a pair of blanks

  static const int TAB_LENGTH = 8;  // columns; nothing in the output depends on it

  // `n` tabs; the empty string for n below 1.
  static std::string GetTabs(int n);

  // The decimal text of `n`.
  static std::string toString(int n);

  // Replaces the first `find` at or behind byte `pos` of `s` by `with`. Returns its position and
  // puts it into `pos`. Returns -1 and leaves `s` alone when `pos` is beyond the end, or when there
  // is none; `pos` is of no use then. `find` must not be empty, here and below.
  static int ReplaceAtPos(std::string& s, const char* find, const std::string& with, int& pos);

  // Replaces every `find` from left to right; what was put in is not searched again. Returns the
  // position after the search that found nothing, which is of no use to callers.
  static int ReplaceAll(std::string& s, const char* find, const std::string& with);

  // Replaces the first `find`. Returns its position, or -1 when there is none.
  static int ReplaceString(std::string& s, const char* find, const std::string& with);
};

}  // namespace TIMESERIESXML

#endif  // TSXPORT_XMLUTIL_H_
