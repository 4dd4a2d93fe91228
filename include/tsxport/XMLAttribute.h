#ifndef TSXPORT_XMLATTRIBUTE_H_
#define TSXPORT_XMLATTRIBUTE_H_

#include <cstddef>
#include <string>

#include <tsxport/XMLInterface.h>

namespace tsx {
struct NodeText;
}

namespace TIMESERIESXML {

// An attribute: a name and a value. Written as name="value": the name as it stands, the value with
// "&", "<", ">" and the double quote as entities, tab, line feed and carriage return as character
// references, and blanks that a reader might strip (the first, the last, every second of several)
// as "&#32;". An empty value leaves two adjacent quotes.
//
//   std::unique_ptr<XMLAttribute> unit(XMLAttribute::Create("unit", "m/s"));
//   element->AddAttribute(unit.get());
//   unit.release();  // the element has it now
class TSX_EXPORT XMLAttribute : public XMLInterface {
 public:
  // A new attribute, owned by the caller. Names are not checked.
  static XMLAttribute* Create(const std::string& name, const std::string& value);

  // The value's text has up to 15 significant digits and "." as decimal character, whatever the
  // locale: Format(value, false, nullptr) of NumberFormat.h. 0.1 gives 0.1, 1e21 gives 1e+21.
  static XMLAttribute* Create(const std::string& name, double value);

  XMLAttribute(const std::string& name, const std::string& value);
  XMLAttribute(const std::string& name, double value);
  ~XMLAttribute() override;

  void ToString(std::string& out, ExportFormat& format) const override;
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override;

 private:
  friend struct tsx::NodeAccess;
  inline explicit XMLAttribute(const tsx::NodeText& text) noexcept;

  const char* text_;
  std::size_t size_;
};

}  // namespace TIMESERIESXML

#endif  // TSXPORT_XMLATTRIBUTE_H_
