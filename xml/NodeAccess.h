#ifndef TSXPORT_XML_NODEACCESS_H_
#define TSXPORT_XML_NODEACCESS_H_

#include <string_view>
#include <typeinfo>

#include <tsxport/ExportFormat.h>
#include <tsxport/XMLAttribute.h>
#include <tsxport/XMLElement.h>
#include <tsxport/XMLString.h>

#include "xml/ElementStorage.h"

namespace tsx {

// Whether a node is of this very class. One of a class that a host derived from it is not: it may
// add, write and destroy in its own way.
template <typename Node>
bool IsExactly(const TIMESERIESXML::XMLInterface& node) {
  return &typeid(node) == &typeid(Node);
}

// What an attribute or character data holds: its escaped text.
struct NodeText {
  const char* text;
  std::size_t size;
};

}  // namespace tsx

// Inline, so that the library exports neither: they are private, and hosts cannot call them.
namespace TIMESERIESXML {

inline XMLAttribute::XMLAttribute(const tsx::NodeText& text) noexcept
    : text_(text.text), size_(text.size) {}

inline XMLString::XMLString(const tsx::NodeText& text) noexcept
    : text_(text.text), size_(text.size) {}

}  // namespace TIMESERIESXML

namespace tsx {

// In a block of its own, for nodes that hosts construct themselves.
NodeText MakeText(std::string_view text);
NodeText MakeAttributeText(std::string_view name, std::string_view value);

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

  // For these the element is whole and unchanged when they throw.
  static void AddAttribute(XMLElement& element, std::string_view name, std::string_view value);
  static void AddAttribute(XMLElement& element, std::string_view name, double value);
  static void AddText(XMLElement& element, std::string_view text);
  // Without a look for what is to be escaped.
  static void AddPlainText(XMLElement& element, std::string_view text);

  static const ElementStorage& Storage(const XMLElement& element) { return *element.storage_; }
  // Escaped, as they go out.
  static std::string_view Text(const XMLString& string) { return {string.text_, string.size_}; }
  static std::string_view Text(const XMLAttribute& attribute) {
    return {attribute.text_, attribute.size_};
  }

  static int& TabLevel(ExportFormat& format) { return format.tab_level_; }

  // Texts stand behind a node in its block, but for nodes that hosts construct themselves.
  template <typename Node>
  static void FreeText(const Node& node) noexcept {
    const void* behind = &node + 1;
    if (node.text_ != behind) ::operator delete(const_cast<char*>(node.text_));
  }
};

}  // namespace tsx

#endif  // TSXPORT_XML_NODEACCESS_H_
