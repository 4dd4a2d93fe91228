#include <tsxport/XMLAttribute.h>

#include "xml/NodeAccess.h"
#include "xml/NodeWriter.h"
#include "xml/NumberText.h"

namespace TIMESERIESXML {

XMLAttribute* XMLAttribute::Create(const std::string& name, const std::string& value) {
  return tsx::NodeAccess::NewAttribute(name, value);
}

XMLAttribute* XMLAttribute::Create(const std::string& name, double value) {
  return tsx::NodeAccess::NewAttribute(name, tsx::NumberText(value).view());
}

XMLAttribute::XMLAttribute(const std::string& name, const std::string& value)
    : XMLAttribute(tsx::MakeAttributeText(name, value)) {}

XMLAttribute::XMLAttribute(const std::string& name, double value)
    : XMLAttribute(tsx::MakeAttributeText(name, tsx::NumberText(value).view())) {}

XMLAttribute::~XMLAttribute() { tsx::NodeAccess::FreeText(*this); }

void XMLAttribute::ToString(std::string& out, ExportFormat& /*format*/) const {
  out.append(text_, size_);
}

void XMLAttribute::ToStream(std::ostream& os, ExportFormat& /*format*/, bool utf8) const {
  tsx::WithOutput(
      os, utf8, [&](tsx::Output& out) { tsx::WriteAttribute(out, tsx::NodeAccess::Text(*this)); });
}

}  // namespace TIMESERIESXML
