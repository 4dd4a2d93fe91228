#ifndef TSXPORT_XMLUREADER_H_
#define TSXPORT_XMLUREADER_H_

#include <iosfwd>
#include <string>

#include <tsxport/Export.h>

// The smaller reader of object streams, for numbers alone. All that ObjStreamReader.h says about
// results, failures and threads holds here too; the differences are:
//
// - A carriage return is no delimiter but part of a token. Numbers of a file with CR LF are still
//   read, as they end at a quote; ParseStartXML() is not content with it.
// - ">" is a delimiter everywhere, and an object's name ends at a blank, "<", ">" or "=".
// - "Missing" is no special value, and there are neither bools nor strings.
namespace xmlu {

// The XML declaration, the document type declaration, and a third line that must have no token: it
// is empty, or holds delimiters only. The root's start tag does not come third here; a stream for
// this reader has it on the line of the document type declaration.
TSX_EXPORT bool ParseStartXML(std::ifstream& in);

// An object's start tag, with exactly this name. One empty line in front of it is skipped.
TSX_EXPORT bool ParseStartObj(std::ifstream& in, const std::string& name);

// An object's end tag.
TSX_EXPORT bool ParseEndObj(std::ifstream& in);

// A value line: "Int" for int and unsigned int, "Long" for long, "Double" for double. Numbers are
// read as in ObjStreamReader.h; of "Missing" an extraction makes 0, and the answer is true.
TSX_EXPORT bool ParseValue(std::ifstream& in, int& value);
TSX_EXPORT bool ParseValue(std::ifstream& in, unsigned int& value);
TSX_EXPORT bool ParseValue(std::ifstream& in, long& value);
TSX_EXPORT bool ParseValue(std::ifstream& in, double& value);

}  // namespace xmlu

#endif  // TSXPORT_XMLUREADER_H_
