#ifndef TSXPORT_XML_UTF8CONVERTER_H_
#define TSXPORT_XML_UTF8CONVERTER_H_

#include <cstddef>
#include <iconv.h>
#include <string>
#include <string_view>

namespace tsx {

// Converts pieces of text to UTF-8, each as if by a conversion of its own: from the initial shift
// state on, up to the first byte that cannot be converted, in silence. Keeps its descriptor for the
// length of one write and opens it when the first piece needs it.
class Utf8Converter {
 public:
  // From the code set of the process's locale as it is now.
  Utf8Converter();
  // From a code set by name. The names of locales are a few; iconv knows many more.
  explicit Utf8Converter(std::string source);
  ~Utf8Converter();
  Utf8Converter(const Utf8Converter&) = delete;
  Utf8Converter& operator=(const Utf8Converter&) = delete;

  // True when the piece is its own conversion: plain ASCII, from a code set that contains ASCII and
  // keeps no state.
  bool LeavesAlone(std::string_view piece) const;

  // Bytes that Convert() may need for a piece of `size`.
  static std::size_t MaxSize(std::size_t size) { return 4 * size; }

  // Writes the conversion to `out` and returns its length.
  std::size_t Convert(std::string_view piece, char* out);

 private:
  std::string source_;
  bool contains_ascii_;
  bool opened_ = false;
  iconv_t descriptor_;
};

// Opens a conversion from `source` to UTF-8: under both names of UTF-8; failing that, for a name
// that begins with "ISO", from what follows those letters and any blanks; failing that, from
// "8859-1". `open` is iconv_open() or something that answers like it.
using OpenConversion = iconv_t (*)(const char* target, const char* source);
iconv_t OpenUtf8Conversion(const char* source, OpenConversion open);

// Code sets in which each ASCII byte is that ASCII character, always.
bool ContainsAscii(std::string_view codeSet);

// iconv's own word for failure.
inline iconv_t NotOpen() {
  return reinterpret_cast<iconv_t>(-1);  // NOLINT(performance-no-int-to-ptr): so it is defined
}
inline bool IsOpen(iconv_t descriptor) { return descriptor != NotOpen(); }

}  // namespace tsx

#endif  // TSXPORT_XML_UTF8CONVERTER_H_
