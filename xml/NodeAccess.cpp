#include "xml/NodeAccess.h"

#include <memory>
#include <new>

#include "xml/Escape.h"
#include "xml/NumberText.h"
#include "xml/PutBytes.h"

namespace tsx {

using TIMESERIESXML::XMLAttribute;
using TIMESERIESXML::XMLElement;
using TIMESERIESXML::XMLString;

namespace {

// Character data on its way into a block.
class EscapedText {
 public:
  explicit EscapedText(std::string_view text) : text_(text), size_(EscapedTextSize(text)) {}
  std::size_t size() const { return size_; }
  char* PutAt(char* out) const {
    return size_ == text_.size() ? PutBytes(text_, out) : EscapeText(text_, out);
  }

 private:
  std::string_view text_;
  std::size_t size_;
};

// name="value" on its way into a block.
class AttributeText {
 public:
  AttributeText(std::string_view name, std::string_view value)
      : AttributeText(name, value, EscapedValueSize(value)) {}
  static AttributeText Plain(std::string_view name, std::string_view value) {
    return {name, value, value.size()};
  }

  std::size_t size() const { return name_.size() + value_size_ + 3; }

  void PutAt(char* out) const {
    out = PutBytes(name_, out);
    *out++ = '=';
    *out++ = '"';
    out = value_size_ == value_.size() ? PutBytes(value_, out) : EscapeValue(value_, out);
    *out = '"';
  }

 private:
  AttributeText(std::string_view name, std::string_view value, std::size_t valueSize)
      : name_(name), value_(value), value_size_(valueSize) {}

  std::string_view name_;
  std::string_view value_;
  std::size_t value_size_;  // escaped
};

// One block for a node and what stands behind it.
template <typename Node>
void* NewBlock(std::size_t sizeBehind) {
  return Node::operator new(sizeof(Node) + sizeBehind);
}

template <typename Node>
char* Behind(void* block) {
  return static_cast<char*>(block) + sizeof(Node);
}

template <typename Text>
NodeText MakeOwned(const Text& text) {
  auto* block = static_cast<char*>(::operator new(text.size()));
  text.PutAt(block);
  return {block, text.size()};
}

}  // namespace

XMLElement* NodeAccess::NewElement(std::string_view name) {
  const std::size_t size = ElementStorage::BlockSize(name);
  void* block = NewBlock<XMLElement>(size);
  return new (block) XMLElement(ElementStorage::MakeInside(Behind<XMLElement>(block), size, name));
}

XMLString* NodeAccess::NewString(std::string_view text) {
  const EscapedText escaped(text);
  void* block = NewBlock<XMLString>(escaped.size());
  escaped.PutAt(Behind<XMLString>(block));
  return new (block) XMLString(NodeText{Behind<XMLString>(block), escaped.size()});
}

XMLAttribute* NodeAccess::NewAttribute(std::string_view name, std::string_view value) {
  const AttributeText text(name, value);
  void* block = NewBlock<XMLAttribute>(text.size());
  text.PutAt(Behind<XMLAttribute>(block));
  return new (block) XMLAttribute(NodeText{Behind<XMLAttribute>(block), text.size()});
}

void NodeAccess::AddAttribute(XMLElement& element, std::string_view name, std::string_view value) {
  const AttributeText text(name, value);
  if (text.size() <= ElementStorage::kMaxText) {
    text.PutAt(ElementStorage::AddAttributeText(element.storage_, text.size()));
    return;
  }
  std::unique_ptr<XMLAttribute> attribute(NewAttribute(name, value));
  ElementStorage::AddAttributeNode(element.storage_, attribute.get());
  static_cast<void>(attribute.release());
}

void NodeAccess::AddAttribute(XMLElement& element, std::string_view name, double value) {
  const NumberText number(value);
  const AttributeText text = AttributeText::Plain(name, number.view());
  if (text.size() > ElementStorage::kMaxText) return AddAttribute(element, name, number.view());
  text.PutAt(ElementStorage::AddAttributeText(element.storage_, text.size()));
}

void NodeAccess::AddText(XMLElement& element, std::string_view text) {
  const EscapedText escaped(text);
  if (escaped.size() <= ElementStorage::kMaxText && IsExactly<XMLElement>(element)) {
    escaped.PutAt(ElementStorage::AddChildText(element.storage_, escaped.size()));
    return;
  }
  std::unique_ptr<XMLString> string(NewString(text));
  element.AddElement(string.get());
  static_cast<void>(string.release());
}

void NodeAccess::AddPlainText(XMLElement& element, std::string_view text) {
  if (text.size() > ElementStorage::kMaxText || !IsExactly<XMLElement>(element)) {
    return AddText(element, text);
  }
  PutBytes(text, ElementStorage::AddChildText(element.storage_, text.size()));
}

NodeText MakeText(std::string_view text) { return MakeOwned(EscapedText(text)); }

NodeText MakeAttributeText(std::string_view name, std::string_view value) {
  return MakeOwned(AttributeText(name, value));
}

}  // namespace tsx
