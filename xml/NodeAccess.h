#ifndef TSXPORT_XML_NODEACCESS_H_
#define TSXPORT_XML_NODEACCESS_H_

#include <string_view>

#include <tsxport/ExportFormat.h>
#include <tsxport/XMLAttribute.h>
#include <tsxport/XMLElement.h>
#include <tsxport/XMLString.h>

#include "xml/ElementStorage.h"

namespace tsx {

// The way into the nodes' private parts, for this folder alone.
struct NodeAccess {
  using XMLAttribute = TIMESERIESXML::XMLAttribute;
  using XMLElement = TIMESERIESXML::XMLElement;
  using XMLString = TIMESERIESXML::XMLString;
  using ExportFormat = TIMESERIESXML::ExportFormat;

  // New nodes, owned by the caller, each one block of memory.
  static XMLElement* NewElement(std::string_view name);
  static XMLString* NewString(std::string_view text);
  static XMLAttribute* NewAttribute(std::string_view name, std::string_view value);

  static void AddAttribute(XMLElement& element, std::string_view name, std::string_view value);
  static void AddAttribute(XMLElement& element, std::string_view name, double value);

  static const ElementStorage& Storage(const XMLElement& element) { return *element.storage_; }
  // Escaped and ready to go out.
  static std::string_view Text(const XMLString& string) { return {string.text_, string.size_}; }
  static std::string_view Text(const XMLAttribute& attribute) {
    return {attribute.text_, attribute.size_};
  }

  static int& TabLevel(ExportFormat& format) { return format.tab_level_; }

  // A node that is not `new`ed has its text in a block of its own.
  template <typename Node>
  static void FreeText(const Node& node) noexcept;
};

// Escaped texts in fresh blocks, for nodes that callers construct themselves.
struct OwnedText {
  const char* text;
  std::size_t size;
};
OwnedText MakeText(std::string_view text);
OwnedText MakeAttributeText(std::string_view name, std::string_view value);

template <typename Node>
void NodeAccess::FreeText(const Node& node) noexcept {
  const void* inside = &node + 1;
  if (node.text_ != inside) ::operator delete(const_cast<char*>(node.text_));
}

}  // namespace tsx

#endif  // TSXPORT_XML_NODEACCESS_H_
