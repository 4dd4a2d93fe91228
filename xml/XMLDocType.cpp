#include <tsxport/XMLDocType.h>
#include <tsxport/XMLUtil.h>

#include "xml/NodeWriter.h"

namespace TIMESERIESXML {

XMLDocType* XMLDocType::Create(const std::string& rootName, const std::string& systemId, long n) {
  return new XMLDocType(rootName, systemId, n);
}

XMLDocType::XMLDocType(const std::string& rootName, const std::string& systemId, long n)
    : root_name_(rootName), system_id_(systemId), n_(n) {}

XMLDocType::~XMLDocType() = default;

int XMLDocType::AddExtension(const std::string& text) {
  std::string extended;
  extended.reserve(internal_subset_.size() + 1 + text.size());
  extended.append(internal_subset_).append(1, '\n').append(text);
  internal_subset_.swap(extended);
  return static_cast<int>(internal_subset_.size());
}

void XMLDocType::ToString(std::string& out, ExportFormat& /*format*/) const {
  out += XMLUtil::FIRST_LINE;
  out += "\n<!DOCTYPE ";
  out += root_name_;
  out += " SYSTEM \"";
  out += system_id_;
  out += '"';
  if (!internal_subset_.empty()) {
    out += "\n[";
    out += internal_subset_;
    out += "\n]";
  }
  out += ">\n";
}

void XMLDocType::ToStream(std::ostream& os, ExportFormat& format, bool utf8) const {
  std::string text;
  ToString(text, format);
  tsx::WithOutput(os, utf8, [&](tsx::Output& out) { out.Append(text); });
}

}  // namespace TIMESERIESXML
