#ifndef TSXPORT_XML_ELEMENTSTORAGE_H_
#define TSXPORT_XML_ELEMENTSTORAGE_H_

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace TIMESERIESXML {
class XMLAttribute;
class XMLInterface;
}  // namespace TIMESERIESXML

namespace tsx {

// What an element holds, in one block of memory that doubles when it is full:
//
//   this object | name | item | item ...  free  ... child 1 | child 0
//
// An item is a word that tells its kind and length, and then
//   - an attribute as it goes out (name="value", the value escaped), or
//   - a pointer to an attribute that the caller made, or
//   - the escaped text of a child that is character data.
// A child is a pointer to a node, or the offset of such a text. Both kinds of text are in here only
// up to kMaxText bytes: longer ones are nodes of their own. So lengths and offsets need 32 bits.
//
// The first block may stand inside the element's own allocation, and is then not freed by itself.
class ElementStorage {
 public:
  using Attribute = TIMESERIESXML::XMLAttribute;
  using Node = TIMESERIESXML::XMLInterface;

  static constexpr std::size_t kMaxText = std::size_t{1} << 20U;

  // Bytes for a block that holds `name` and leaves some room for more.
  static std::size_t BlockSize(std::string_view name);

  // A block of its own, or one in `size` bytes at `place` inside an element.
  static ElementStorage* Make(std::string_view name);
  static ElementStorage* MakeInside(void* place, std::size_t size, std::string_view name) noexcept;

  // Deletes attribute nodes, then children, each first to last, and the block if it is its own.
  static void Destroy(ElementStorage* storage) noexcept;

  // These may move the storage to a larger block and then set `storage`; when that throws nothing
  // has changed. The texts' functions return where the caller puts the `size` bytes.
  static char* AddAttributeText(ElementStorage*& storage, std::size_t size);
  static char* AddChildText(ElementStorage*& storage, std::size_t size);
  static void AddAttributeNode(ElementStorage*& storage, Attribute* attribute);
  static void AddChildNode(ElementStorage*& storage, Node* child);

  std::string_view name() const { return {bytes(), name_size_}; }
  bool has_attributes() const { return has_attributes_; }
  std::size_t child_count() const { return child_count_; }

  // Call onText(string_view) or onNode(pointer) for each attribute or child in order.
  template <typename OnText, typename OnNode>
  void ForEachAttribute(OnText onText, OnNode onNode) const;
  template <typename OnText, typename OnNode>
  void ForEachChild(OnText onText, OnNode onNode) const;

  ElementStorage(const ElementStorage&) = delete;
  ElementStorage& operator=(const ElementStorage&) = delete;

 private:
  enum Kind : std::uint32_t { kAttributeText, kAttributeNode, kChildText };
  using Word = std::uint32_t;    // 4 * length + kind
  using Child = std::uintptr_t;  // a pointer, or 2 * offset + 1
  static constexpr std::size_t kPointerSize = sizeof(Child);
  static_assert(alignof(Child) == kPointerSize);

  ElementStorage(std::size_t size, bool inside, std::string_view name) noexcept;
  ~ElementStorage() = default;

  static void Reserve(ElementStorage*& storage, std::size_t more);
  static void FreeBlock(ElementStorage* storage) noexcept;

  template <typename Value>
  Value Load(std::size_t offset) const {
    Value value;                                          // a pointer, too: its own size is meant
    std::memcpy(&value, bytes() + offset, sizeof value);  // NOLINT(bugprone-sizeof-expression)
    return value;
  }
  template <typename Value>
  void Store(std::size_t offset, Value value) {
    std::memcpy(bytes() + offset, &value, sizeof(Value));
  }

  char* bytes() { return reinterpret_cast<char*>(this + 1); }
  const char* bytes() const { return reinterpret_cast<const char*>(this + 1); }
  std::size_t Free() const { return size_ - items_end_ - child_count_ * sizeof(Child); }
  char* PutItem(Kind kind, std::size_t size);
  void PutChild(Child child);
  std::string_view TextAt(std::size_t offset) const {
    return {bytes() + offset + sizeof(Word), Load<Word>(offset) / 4};
  }

  std::uint32_t size_;       // bytes behind this object, a multiple of a child's size
  std::uint32_t items_end_;  // from bytes()
  std::uint32_t name_size_;
  std::uint32_t child_count_ : 30 = 0;
  std::uint32_t has_attributes_ : 1 = 0;
  std::uint32_t inside_ : 1;  // the block is part of the element's allocation
};

template <typename OnText, typename OnNode>
void ElementStorage::ForEachAttribute(OnText onText, OnNode onNode) const {
  if (!has_attributes_) return;
  for (std::size_t at = name_size_; at != items_end_;) {
    const std::string_view item = TextAt(at);
    const Word kind = Load<Word>(at) % 4;
    if (kind == kAttributeText) {
      onText(item);
    } else if (kind == kAttributeNode) {
      onNode(Load<Attribute*>(at + sizeof(Word)));
    }
    at += sizeof(Word) + item.size();
  }
}

template <typename OnText, typename OnNode>
void ElementStorage::ForEachChild(OnText onText, OnNode onNode) const {
  std::size_t at = size_;
  for (std::size_t i = 0; i < child_count_; ++i) {
    at -= sizeof(Child);
    const auto child = Load<Child>(at);
    if (child % 2 == 1) {
      onText(TextAt(child / 2));
    } else {
      onNode(Load<Node*>(at));
    }
  }
}

}  // namespace tsx

#endif  // TSXPORT_XML_ELEMENTSTORAGE_H_
