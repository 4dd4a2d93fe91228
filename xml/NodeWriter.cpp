#include "xml/NodeWriter.h"

#include <cstring>

#include "xml/NodeAccess.h"
#include "xml/PutBytes.h"

namespace tsx {

using TIMESERIESXML::ExportFormat;
using TIMESERIESXML::XMLAttribute;
using TIMESERIESXML::XMLElement;
using TIMESERIESXML::XMLInterface;
using TIMESERIESXML::XMLString;

namespace {

char* PutTabs(std::size_t count, char* out) {
  std::memset(out, '\t', count);
  return out + count;
}

// Nesting depth as the tabs that go before a tag or an attribute at that depth.
std::size_t Tabs(ExportFormat& format) {
  const int level = NodeAccess::TabLevel(format);
  return format.HasIndentation() && level > 0 ? static_cast<std::size_t>(level) : 0;
}

void BeginTag(Output& out, std::string_view name, ExportFormat& format) {
  const std::size_t tabs = Tabs(format);
  const bool newLine = format.IsNewParagraph();
  out.AppendWith(tabs + name.size() + 2, [&](char* to) {
    if (newLine) *to++ = '\n';
    to = PutTabs(tabs, to);
    *to++ = '<';
    return PutBytes(name, to);
  });
  out.EndPiece();
}

void EndTag(Output& out, std::string_view name, ExportFormat& format) {
  const std::size_t tabs = Tabs(format);
  const bool newLine = format.IsNewParagraph();
  out.AppendWith(tabs + name.size() + 4, [&](char* to) {
    if (newLine) *to++ = '\n';
    to = PutTabs(tabs, to);
    *to++ = '<';
    *to++ = '/';
    to = PutBytes(name, to);
    *to++ = '>';
    return to;
  });
}

void WriteAttributes(Output& out, const ElementStorage& element, ExportFormat& format) {
  ++NodeAccess::TabLevel(format);
  const auto separate = [&] {
    const std::size_t tabs = Tabs(format);
    const char separator = format.IsNewParagraph() ? '\n' : ' ';
    out.AppendWith(tabs + 1, [&](char* to) {
      *to++ = separator;
      return PutTabs(tabs, to);
    });
    out.EndPiece();
  };
  element.ForEachAttribute(
      [&](std::string_view text) {
        separate();
        WriteAttribute(out, text);
      },
      [&](const XMLAttribute* attribute) {
        separate();
        if (IsExactly<XMLAttribute>(*attribute)) {
          WriteAttribute(out, NodeAccess::Text(*attribute));
        } else {
          out.AppendNode(*attribute, format);
        }
      });
  --NodeAccess::TabLevel(format);
}

void WriteChild(Output& out, const XMLInterface& child, ExportFormat& format) {
  if (IsExactly<XMLElement>(child)) {
    WriteElement(out, static_cast<const XMLElement&>(child), format);
  } else if (IsExactly<XMLString>(child)) {
    WriteText(out, NodeAccess::Text(static_cast<const XMLString&>(child)), format);
  } else {
    out.AppendNode(child, format);
  }
}

void WriteChildren(Output& out, const ElementStorage& element, ExportFormat& format) {
  ++NodeAccess::TabLevel(format);
  element.ForEachChild([&](std::string_view text) { WriteText(out, text, format); },
                       [&](const XMLInterface* child) { WriteChild(out, *child, format); });
  --NodeAccess::TabLevel(format);
}

}  // namespace

void WriteElement(Output& out, const XMLElement& node, ExportFormat& format) {
  const ElementStorage& element = NodeAccess::Storage(node);
  BeginTag(out, element.name(), format);
  if (element.has_attributes()) WriteAttributes(out, element, format);
  if (element.child_count() == 0) {
    out.Append("/>");
  } else {
    out.Append(">");
    out.EndPiece();
    WriteChildren(out, element, format);
    EndTag(out, element.name(), format);
  }
  out.EndPiece();
  format.SetIsNewParagraph(true);
  format.SetIndentation(true);
}

void WriteText(Output& out, std::string_view escaped, ExportFormat& format) {
  format.SetIsNewParagraph(false);
  format.SetIndentation(false);
  out.Append(escaped);
  out.EndPiece();
}

void WriteAttribute(Output& out, std::string_view escaped) {
  out.Append(escaped);
  out.EndPiece();
}

}  // namespace tsx
