#include "xml/NodeAccess.h"

#include <new>

#include "xml/Escape.h"
#include "xml/NumberText.h"

namespace tsx {
namespace {

// name="value", the value escaped.
struct AttributeText {
  std::string_view name;
  std::string_view value;

  std::size_t Size() const { return name.size() + EscapedValueSize(value) + 3; }

  void PutAt(char* out) const {
    if (!name.empty()) std::memcpy(out, name.data(), name.size());
    out += name.size();
    *out++ = '=';
    *out++ = '"';
    out = EscapeValue(value, out);
    *out = '"';
  }
};

char* TextBehind(void* node, std::size_t nodeSize) { return static_cast<char*>(node) + nodeSize; }

}  // namespace

NodeAccess::XMLElement* NodeAccess::NewElement(std::string_view name) {
  const std::size_t size = ElementStorage::BlockSize(name);
  void* block = XMLElement::operator new(sizeof(XMLElement) + size);
  auto* storage = ElementStorage::MakeInside(TextBehind(block, sizeof(XMLElement)), size, name);
  return new (block) XMLElement(storage);
}

NodeAccess::XMLString* NodeAccess::NewString(std::string_view text) {
  const std::size_t size = EscapedTextSize(text);
  void* block = XMLString::operator new(sizeof(XMLString) + size);
  char* place = TextBehind(block, sizeof(XMLString));
  EscapeText(text, place);
  return new (block) XMLString(place, size);
}

NodeAccess::XMLAttribute* NodeAccess::NewAttribute(std::string_view name, std::string_view value) {
  const AttributeText attribute{name, value};
  const std::size_t size = attribute.Size();
  void* block = XMLAttribute::operator new(sizeof(XMLAttribute) + size);
  char* place = TextBehind(block, sizeof(XMLAttribute));
  attribute.PutAt(place);
  return new (block) XMLAttribute(place, size);
}

void NodeAccess::AddAttribute(XMLElement& element, std::string_view name, std::string_view value) {
  const AttributeText attribute{name, value};
  attribute.PutAt(ElementStorage::AddAttributeText(element.storage_, attribute.Size()));
}

void NodeAccess::AddAttribute(XMLElement& element, std::string_view name, double value) {
  AddAttribute(element, name, NumberText(value).view());
}

OwnedText MakeText(std::string_view text) {
  const std::size_t size = EscapedTextSize(text);
  auto* block = static_cast<char*>(::operator new(size));
  EscapeText(text, block);
  return {block, size};
}

OwnedText MakeAttributeText(std::string_view name, std::string_view value) {
  const AttributeText attribute{name, value};
  const std::size_t size = attribute.Size();
  auto* block = static_cast<char*>(::operator new(size));
  attribute.PutAt(block);
  return {block, size};
}

}  // namespace tsx
