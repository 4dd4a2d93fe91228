#ifndef TSXPORT_XML_ELEMENTSTORAGE_H_
#define TSXPORT_XML_ELEMENTSTORAGE_H_

#include <cstddef>
#include <cstring>
#include <string_view>

namespace TIMESERIESXML {
class XMLAttribute;
class XMLInterface;
}  // namespace TIMESERIESXML

namespace tsx {

// What an element holds, in one block of memory that doubles when it is full:
//
//   this object | name | attribute | attribute ...  free  ... child 1 | child 0
//
// An attribute is a word and then either its finished text (name="value", escaped), whose length
// the word tells, or a pointer to an attribute node that the caller made. Children are pointers.
// The first block may stand inside the element's own allocation, and is then not freed by itself.
class ElementStorage {
 public:
  using Attribute = TIMESERIESXML::XMLAttribute;
  using Node = TIMESERIESXML::XMLInterface;

  // Bytes for a block that holds `name` and leaves some room for more.
  static std::size_t BlockSize(std::string_view name);

  // A block of its own, or one in `size` bytes at `place` inside an element.
  static ElementStorage* Make(std::string_view name);
  static ElementStorage* MakeInside(void* place, std::size_t size, std::string_view name) noexcept;

  // Deletes attribute nodes, then children, each first to last, and the block if it is its own.
  static void Destroy(ElementStorage* storage) noexcept;

  // These may move the storage to a larger block and then set `storage`; when that throws nothing
  // has changed. The first returns where the attribute's text of `size` bytes is to be put.
  static char* AddAttributeText(ElementStorage*& storage, std::size_t size);
  static void AddAttributeNode(ElementStorage*& storage, Attribute* attribute);
  static void AddChild(ElementStorage*& storage, Node* child);

  std::string_view name() const { return {bytes(), name_size_}; }
  bool HasAttributes() const { return text_end_ != name_size_; }
  std::size_t child_count() const { return child_count_; }
  Node* child(std::size_t i) const {
    Node* node = nullptr;
    std::memcpy(&node, bytes() + size_ - (i + 1) * sizeof node, sizeof node);
    return node;
  }

  // Calls onText(string_view) or onNode(Attribute*) for each attribute in order.
  template <typename OnText, typename OnNode>
  void ForEachAttribute(OnText onText, OnNode onNode) const;

  ElementStorage(const ElementStorage&) = delete;
  ElementStorage& operator=(const ElementStorage&) = delete;

 private:
  static constexpr std::size_t kIsNode = ~std::size_t{0};  // the word of an attribute node

  ElementStorage(std::size_t size, bool inside, std::string_view name) noexcept;
  ~ElementStorage() = default;

  static void Reserve(ElementStorage*& storage, std::size_t more);
  static void FreeBlock(ElementStorage* storage) noexcept;

  char* bytes() { return reinterpret_cast<char*>(this + 1); }
  const char* bytes() const { return reinterpret_cast<const char*>(this + 1); }
  std::size_t Free() const { return size_ - text_end_ - child_count_ * sizeof(Node*); }
  void PutWord(std::size_t word) {
    std::memcpy(bytes() + text_end_, &word, sizeof word);
    text_end_ += sizeof word;
  }

  std::size_t size_;  // bytes behind this object, a multiple of a pointer's size
  std::size_t name_size_;
  std::size_t text_end_;  // where name and attributes end
  std::size_t child_count_ = 0;
  bool inside_;  // the block is part of the element's allocation
};

template <typename OnText, typename OnNode>
void ElementStorage::ForEachAttribute(OnText onText, OnNode onNode) const {
  for (std::size_t at = name_size_; at != text_end_;) {
    std::size_t word = 0;
    std::memcpy(&word, bytes() + at, sizeof word);
    at += sizeof word;
    if (word == kIsNode) {
      Attribute* attribute = nullptr;
      std::memcpy(&attribute, bytes() + at, sizeof attribute);
      at += sizeof attribute;
      onNode(attribute);
    } else {
      onText(std::string_view(bytes() + at, word));
      at += word;
    }
  }
}

}  // namespace tsx

#endif  // TSXPORT_XML_ELEMENTSTORAGE_H_
