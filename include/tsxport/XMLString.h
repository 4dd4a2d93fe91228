#ifndef TSXPORT_XMLSTRING_H_
#define TSXPORT_XMLSTRING_H_

#include <cstddef>
#include <string>

#include <tsxport/XMLInterface.h>

namespace tsx {
struct NodeText;
}

namespace TIMESERIESXML {

// Character data. Written with "&" as "&amp;" and "<" as "&lt;"; all else, ">" and line feeds too,
// stays as it is. What follows in the same parent goes on in the same line, without tabs, until an
// element has ended.
class TSX_EXPORT XMLString : public XMLInterface {
 public:
  // New character data, owned by the caller.
  static XMLString* Create(const std::string& text);

  explicit XMLString(const std::string& text);
  ~XMLString() override;

  void ToString(std::string& out, ExportFormat& format) const override;
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override;

 private:
  friend struct tsx::NodeAccess;
  inline explicit XMLString(const tsx::NodeText& text) noexcept;

  const char* text_;
  std::size_t size_;
};

}  // namespace TIMESERIESXML

#endif  // TSXPORT_XMLSTRING_H_
