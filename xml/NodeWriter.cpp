#include "xml/NodeWriter.h"

#include <typeinfo>

#include "xml/NodeAccess.h"

namespace tsx {

using TIMESERIESXML::ExportFormat;
using TIMESERIESXML::XMLAttribute;
using TIMESERIESXML::XMLElement;
using TIMESERIESXML::XMLInterface;
using TIMESERIESXML::XMLString;

namespace {

// A class that derives from `Node` may write itself in its own way.
template <typename Node>
bool IsExactly(const XMLInterface& node) {
  return &typeid(node) == &typeid(Node);
}

void WriteAttributeNode(Output& out, const XMLAttribute& attribute, ExportFormat& format) {
  if (IsExactly<XMLAttribute>(attribute)) {
    WriteAttribute(out, NodeAccess::Text(attribute));
  } else {
    out.AppendNode(attribute, format);
  }
}

void WriteAttributes(Output& out, const ElementStorage& element, ExportFormat& format) {
  const int level = ++NodeAccess::TabLevel(format);
  const auto separate = [&] {
    out.Append(format.IsNewParagraph() ? '\n' : ' ');
    if (format.HasIndentation()) out.AppendTabs(level);
    out.EndPiece();
  };
  element.ForEachAttribute(
      [&](std::string_view text) {
        separate();
        WriteAttribute(out, text);
      },
      [&](const XMLAttribute* attribute) {
        separate();
        WriteAttributeNode(out, *attribute, format);
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
  for (std::size_t i = 0; i < element.child_count(); ++i)
    WriteChild(out, *element.child(i), format);
  --NodeAccess::TabLevel(format);
}

void BeginLine(Output& out, ExportFormat& format, int level) {
  if (format.IsNewParagraph()) out.Append('\n');
  if (format.HasIndentation()) out.AppendTabs(level);
}

}  // namespace

void WriteElement(Output& out, const XMLElement& node, ExportFormat& format) {
  const ElementStorage& element = NodeAccess::Storage(node);
  const int level = NodeAccess::TabLevel(format);
  BeginLine(out, format, level);
  out.Append('<');
  out.Append(element.name());
  out.EndPiece();
  if (element.HasAttributes()) WriteAttributes(out, element, format);
  if (element.child_count() == 0) {
    out.Append("/>");
  } else {
    out.Append('>');
    out.EndPiece();
    WriteChildren(out, element, format);
    BeginLine(out, format, level);
    out.Append("</");
    out.Append(element.name());
    out.Append('>');
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
