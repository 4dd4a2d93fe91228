#ifndef TSXPORT_WRITETREE_H_
#define TSXPORT_WRITETREE_H_

#include <iosfwd>
#include <string>

#include <tsxport/Export.h>

namespace TIMESERIESXML {

class XMLDocType;
class XMLElement;

// Writes a whole document: the XML declaration and a line feed, or `docType` (which brings its own
// declaration) when it is not null, and then `root`, which must not be null. Nothing follows the
// root's end tag, no line feed either. `format` false puts the tree on one line.
//
// Bytes go out as they are, whatever the declaration says about the encoding: this is for trees
// whose texts are UTF-8 (or ASCII) already. Errors of the stream are not told: look at its state.
TSX_EXPORT void WriteTree(std::ostream& os, const XMLDocType* docType, const XMLElement* root,
                          bool format);

// The same, every piece converted to UTF-8 by the rules of WriteUTF().
TSX_EXPORT void WriteTreeUTF8(std::ostream& os, const XMLDocType* docType, const XMLElement* root,
                              bool format);

// Puts the bytes of `s` into the stream, as unformatted output does: a stream that is not good
// takes nothing, and one whose buffer refuses a byte goes bad and takes nothing more.
TSX_EXPORT void Write(std::ostream& os, const std::string& s);

// Writes `s` converted to UTF-8 from the code set of the process's locale (LC_CTYPE; ASCII in the
// "C" locale). Conversion starts in the initial shift state and stops in silence at the first byte
// that cannot be converted; when the code set is unknown to the system nothing is written. The
// locale must not be changed meanwhile.
TSX_EXPORT void WriteUTF(std::ostream& os, const std::string& s);

}  // namespace TIMESERIESXML

#endif  // TSXPORT_WRITETREE_H_
