#include <cstddef>
#include <string_view>
#include <utility>

#include <tsxport/XMLObj.h>

#include "objstream/Names.h"
#include "xml/Escape.h"
#include "xml/NumberText.h"
#include "xml/Output.h"

namespace TIMESERIESXML {
namespace {

using namespace tsx::objstream;

void AppendTabs(tsx::Output& out, std::size_t count) {
  constexpr std::string_view kTabs = "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
  for (; count > kTabs.size(); count -= kTabs.size()) out.Append(kTabs);
  out.Append(kTabs.substr(0, count));
}

// A line feed and `count` tabs.
void AppendLineStart(tsx::Output& out, std::size_t count) {
  out.Append("\n");
  AppendTabs(out, count);
}

std::size_t TabsOf(int depth) { return depth < 0 ? 0 : static_cast<std::size_t>(depth); }

void AppendAttribute(tsx::Output& out, std::string_view name, std::string_view escapedValue) {
  out.Append(name);
  out.Append("=\"");
  out.Append(escapedValue);
  out.Append("\"");
}

// Calls `write` with the text of an attribute whose value is `value`.
template <typename Write>
void WithEscaped(std::string_view value, Write write) {
  const std::size_t size = tsx::EscapedValueSize(value);
  if (size == value.size()) return write(value);
  std::string escaped(size, '\0');
  tsx::EscapeValue(value, escaped.data());
  write(escaped);
}

// Values stand one tab deeper than their object.
void WriteValue(std::ostream& os, int objectTabs, const ValueTag& tag,
                std::string_view escapedValue) {
  tsx::Output out(os);
  AppendLineStart(out, objectTabs < 0 ? 0 : TabsOf(objectTabs) + 1);
  out.Append(tag.start);
  out.Append("\"");
  out.Append(escapedValue);
  out.Append("\"/>");
  out.Flush();
}

void WriteNumber(std::ostream& os, int objectTabs, const ValueTag& tag, double value) {
  WriteValue(os, objectTabs, tag, tsx::NumberText(value).view());
}

}  // namespace

// NOLINTNEXTLINE(performance-unnecessary-value-param): hosts were promised this signature
void StartRoot(std::ostream& os, std::string notice) {
  WithEscaped(notice, [&os](std::string_view escaped) {
    tsx::Output out(os);
    out.Append("<");
    out.Append(kRoot);
    out.Append(" ");
    AppendAttribute(out, kCopyright, escaped);
    out.Append(">");
    out.Flush();
  });
}

void EndRoot(std::ostream& os) {
  tsx::Output out(os);
  out.Append("\n</");
  out.Append(kRoot);
  out.Append(">");
  out.Flush();
}

void WriteHeader(std::ostream& os, std::string notice) { StartRoot(os, std::move(notice)); }
void EndHeader(std::ostream& os) { EndRoot(os); }

XMLObj::XMLObj(std::string name, int nTabs) : name_(std::move(name)), n_tabs_(nTabs) {}
XMLObj::XMLObj(const XMLObj& other) = default;
XMLObj& XMLObj::operator=(const XMLObj& other) = default;
XMLObj::~XMLObj() = default;

const std::string& XMLObj::GetName() const { return name_; }
int XMLObj::GetNTabs() const { return n_tabs_; }

void XMLObj::StartObj(std::ostream& os) const {
  tsx::Output out(os);
  AppendLineStart(out, TabsOf(n_tabs_));
  out.Append("<");
  out.Append(kObject);
  out.Append(" ");
  AppendAttribute(out, kName, name_);  // as it stands: names are not escaped
  out.Append(">");
  out.Flush();
}

void XMLObj::EndObj(std::ostream& os) const {
  tsx::Output out(os);
  AppendLineStart(out, TabsOf(n_tabs_));
  out.Append("<");
  out.Append(kObjectEnd);
  out.Append(">");
  out.Flush();
}

void XMLObj::WriteSubElement(std::ostream& os, int value) const {
  WriteNumber(os, n_tabs_, kInt, value);
}

void XMLObj::WriteSubElement(std::ostream& os, unsigned int value) const {
  WriteNumber(os, n_tabs_, kInt, value);
}

void XMLObj::WriteSubElement(std::ostream& os, long value) const {
  WriteNumber(os, n_tabs_, kLong, static_cast<double>(value));
}

void XMLObj::WriteSubElement(std::ostream& os, bool value) const {
  WriteNumber(os, n_tabs_, kInt, value ? 1 : 0);
}

void XMLObj::WriteSubElement(std::ostream& os, double value) const {
  if (value == kMissingValue) return WriteValue(os, n_tabs_, kDouble, kMissingText);
  WriteNumber(os, n_tabs_, kDouble, value);
}

void XMLObj::WriteSubElement(std::ostream& os, const std::string& value) const {
  WithEscaped(value, [&](std::string_view escaped) { WriteValue(os, n_tabs_, kString, escaped); });
}

}  // namespace TIMESERIESXML
