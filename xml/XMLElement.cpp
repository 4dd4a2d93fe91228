#include <tsxport/XMLElement.h>

#include "xml/ElementStorage.h"
#include "xml/NodeAccess.h"
#include "xml/NodeWriter.h"

namespace TIMESERIESXML {

using tsx::ElementStorage;

XMLElement* XMLElement::Create(const std::string& name) {
  return tsx::NodeAccess::NewElement(name);
}

XMLElement::XMLElement(const std::string& name) : storage_(ElementStorage::Make(name)) {}

XMLElement::~XMLElement() { ElementStorage::Destroy(storage_); }

int XMLElement::AddElement(XMLElement* child) {
  ElementStorage::AddChildNode(storage_, child);
  return static_cast<int>(storage_->child_count());
}

int XMLElement::AddElement(XMLString* text) {
  ElementStorage::AddChildNode(storage_, text);
  return static_cast<int>(storage_->child_count());
}

void XMLElement::AddAttribute(const std::string& name, const std::string& value) {
  tsx::NodeAccess::AddAttribute(*this, name, value);
}

void XMLElement::AddAttribute(const std::string& name, double value) {
  tsx::NodeAccess::AddAttribute(*this, name, value);
}

void XMLElement::AddAttribute(XMLAttribute* attribute) {
  ElementStorage::AddAttributeNode(storage_, attribute);
}

void XMLElement::ToString(std::string& out, ExportFormat& format) const {
  tsx::Output output(out);
  tsx::WriteElement(output, *this, format);
  output.Flush();
}

void XMLElement::ToStream(std::ostream& os, ExportFormat& format, bool utf8) const {
  tsx::WithOutput(os, utf8, [&](tsx::Output& out) { tsx::WriteElement(out, *this, format); });
}

}  // namespace TIMESERIESXML
