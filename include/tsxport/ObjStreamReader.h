#ifndef TSXPORT_OBJSTREAMREADER_H_
#define TSXPORT_OBJSTREAMREADER_H_

#include <iosfwd>
#include <string>

#include <tsxport/Export.h>

// Reads back what XMLObj.h writes, line by line, by a caller who knows names, types and order:
//
//   std::ifstream in("weights.xml");
//   int count = 0;
//   double weight = 0;
//   bool ok = ParseStartXML(in) && ParseStartObj(in, "weights") && ParseValue(in, count) &&
//             ParseValue(in, weight) && ParseEndObj(in);
//
// It is no XML parser. Each call reads one line and compares the tokens between fixed delimiters
// with what it expects; it relies on the writer's layout, one tag on each line. Entities and
// character references are not decoded: "a<b" comes back as "a&lt;b". Lines may end in CR LF. (The
// reader in XmluReader.h is smaller and splits lines in another way.)
//
// True: the line was there, and the value, if one was asked for, is set. False: another line, none,
// or one of more than 255 bytes; the value is as before. Either way the line has been read, and a
// caller who gets false gives up. Nothing is thrown but what the standard library throws itself:
// when memory runs out, or when the stream's exceptions() are on.
//
// Nothing is kept between calls: any number of threads may read, each its own stream. The C and C++
// locales must not be changed meanwhile.
namespace TIMESERIESXML {

// Three lines, up to the root's start tag: the XML declaration, the document type declaration, the
// root. Only the first token of each counts. The rest is not read when one is another.
TSX_EXPORT bool ParseStartXML(std::ifstream& in);

// An object's start tag, with exactly this name. One empty line in front of it is skipped. Names
// may hold blanks, "<" and "=".
TSX_EXPORT bool ParseStartObj(std::ifstream& in, const std::string& name);

// An object's end tag.
TSX_EXPORT bool ParseEndObj(std::ifstream& in);

// A value line: "Int" for bool, int and unsigned int, "Long" for long.
//
// The number is read as far as its digits go, as strtol() does. So of "1e+15" 1 is read, and 0
// where there are no digits. What is beyond a long ends at the long's end; int and unsigned int
// take the low 32 bits of the long. A bool is 0 or 1; with any other number the answer is false.
TSX_EXPORT bool ParseValue(std::ifstream& in, bool& value);
TSX_EXPORT bool ParseValue(std::ifstream& in, int& value);
TSX_EXPORT bool ParseValue(std::ifstream& in, unsigned int& value);
TSX_EXPORT bool ParseValue(std::ifstream& in, long& value);

// "Missing" gives the most negative finite double. Any other text is extracted as by a string
// stream in the global C++ locale, and the answer is true even when the extraction fails: that
// leaves 0, or the largest finite value with the number's sign when it is beyond the range (see
// docs/object-streams.md). Where the text is white space alone the value stays as it was.
TSX_EXPORT bool ParseValue(std::ifstream& in, double& value);

// The text up to the next double quote or the line's end.
TSX_EXPORT bool ParseValue(std::ifstream& in, std::string& value);

}  // namespace TIMESERIESXML

#endif  // TSXPORT_OBJSTREAMREADER_H_
