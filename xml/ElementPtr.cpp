#include "xml/ElementPtr.h"

#include "xml/NodeAccess.h"

namespace tsx {

using TIMESERIESXML::XMLElement;

ElementPtr MakeElement(std::string_view name) { return ElementPtr(NodeAccess::NewElement(name)); }

void Append(XMLElement& parent, ElementPtr child) {
  parent.AddElement(child.get());      // may throw: child still owns it
  static_cast<void>(child.release());  // the parent has it now
}

void AppendText(XMLElement& parent, std::string_view text) { NodeAccess::AddText(parent, text); }

}  // namespace tsx
