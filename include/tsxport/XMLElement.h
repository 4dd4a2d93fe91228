#ifndef TSXPORT_XMLELEMENT_H_
#define TSXPORT_XMLELEMENT_H_

#include <string>

#include <tsxport/XMLAttribute.h>
#include <tsxport/XMLInterface.h>
#include <tsxport/XMLString.h>

namespace tsx {
class ElementStorage;
}

namespace TIMESERIESXML {

// An element: a name, attributes, and children (elements and character data), all written in the
// order in which they were added. Names stand as given, prefixes such as "xsi:" included. Two
// attributes of one name are both kept.
//
//   std::unique_ptr<XMLElement> root(XMLElement::Create("Forecast"));
//   root->AddAttribute("horizon", 12);
//   std::unique_ptr<XMLElement> level(XMLElement::Create("Level"));
//   level->AddElement(XMLString::Create("0.25"));
//   root->AddElement(level.get());
//   level.release();  // the root has it now
//
//   ExportFormat format;
//   root->ToStream(std::cout, format, false);
//
//   <Forecast
//   	horizon="12">
//   	<Level>0.25</Level>
//   </Forecast>
//
// (before it a line feed, after it none). An element without children ends in "/>" behind its name
// or its last attribute.
//
// The add operations take ownership when they return. When memory runs out they throw
// std::bad_alloc, the element keeps what it had, and the given node stays with the caller. Do not
// add null.
class TSX_EXPORT XMLElement : public XMLInterface {
 public:
  // A new element without attributes and children, owned by the caller. Names are not checked.
  static XMLElement* Create(const std::string& name);

  explicit XMLElement(const std::string& name);

  // Deletes the attributes and then the children, each list from first to last.
  ~XMLElement() override;

  void ToString(std::string& out, ExportFormat& format) const override;
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override;

  // Takes `child` and returns the number of children now held, character data included.
  virtual int AddElement(XMLElement* child);
  virtual int AddElement(XMLString* text);

  // Appends an attribute, see XMLAttribute. Numbers are written with up to 15 significant digits,
  // so counts and indexes appear as plain integers.
  void AddAttribute(const std::string& name, const std::string& value);
  void AddAttribute(const std::string& name, double value);
  // Takes `attribute`.
  void AddAttribute(XMLAttribute* attribute);

 private:
  friend struct tsx::NodeAccess;
  explicit XMLElement(tsx::ElementStorage* storage) noexcept : storage_(storage) {}

  tsx::ElementStorage* storage_;
};

}  // namespace TIMESERIESXML

#endif  // TSXPORT_XMLELEMENT_H_
