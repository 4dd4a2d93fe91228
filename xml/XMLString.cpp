#include <tsxport/XMLString.h>

#include "xml/NodeAccess.h"
#include "xml/NodeWriter.h"

namespace TIMESERIESXML {

XMLString* XMLString::Create(const std::string& text) { return tsx::NodeAccess::NewString(text); }

XMLString::XMLString(const std::string& text) : XMLString(tsx::MakeText(text)) {}

XMLString::~XMLString() { tsx::NodeAccess::FreeText(*this); }

void XMLString::ToString(std::string& out, ExportFormat& format) const {
  tsx::Output output(out);
  tsx::WriteText(output, tsx::NodeAccess::Text(*this), format);
  output.Flush();
}

void XMLString::ToStream(std::ostream& os, ExportFormat& format, bool utf8) const {
  tsx::WithOutput(os, utf8, [&](tsx::Output& out) {
    tsx::WriteText(out, tsx::NodeAccess::Text(*this), format);
  });
}

}  // namespace TIMESERIESXML
