#include "xml/ElementStorage.h"

#include <algorithm>
#include <limits>
#include <new>

#include <tsxport/XMLAttribute.h>

namespace tsx {
namespace {

// With a short name, the element and its storage make 128 bytes: enough for two short attributes,
// or one and a number, or ten children.
constexpr std::size_t kFirstBlock = 112;
constexpr std::size_t kLeastRoom = 48;

constexpr std::size_t kMaxBlock = std::numeric_limits<std::uint32_t>::max() / 2;

constexpr std::size_t RoundUp(std::size_t size) {
  return (size + sizeof(void*) - 1) / sizeof(void*) * sizeof(void*);
}

}  // namespace

ElementStorage::ElementStorage(std::size_t size, bool inside, std::string_view name) noexcept
    : size_(static_cast<std::uint32_t>(size)),
      items_end_(static_cast<std::uint32_t>(name.size())),
      name_size_(items_end_),
      inside_(inside ? 1 : 0) {
  if (!name.empty()) std::memcpy(bytes(), name.data(), name.size());
}

std::size_t ElementStorage::BlockSize(std::string_view name) {
  if (name.size() > kMaxBlock / 2) throw std::bad_alloc();
  return std::max(kFirstBlock, sizeof(ElementStorage) + RoundUp(name.size()) + kLeastRoom);
}

ElementStorage* ElementStorage::Make(std::string_view name) {
  const std::size_t size = BlockSize(name);
  return new (::operator new(size)) ElementStorage(size - sizeof(ElementStorage), false, name);
}

ElementStorage* ElementStorage::MakeInside(void* place, std::size_t size,
                                           std::string_view name) noexcept {
  return new (place) ElementStorage(size - sizeof(ElementStorage), true, name);
}

void ElementStorage::FreeBlock(ElementStorage* storage) noexcept {
  if (!storage->inside_) ::operator delete(storage);
}

void ElementStorage::Destroy(ElementStorage* storage) noexcept {
  const auto ignoreText = [](std::string_view) {};
  storage->ForEachAttribute(ignoreText, [](Attribute* attribute) { delete attribute; });
  storage->ForEachChild(ignoreText, [](Node* child) { delete child; });
  FreeBlock(storage);
}

void ElementStorage::Reserve(ElementStorage*& storage, std::size_t more) {
  ElementStorage& old = *storage;
  if (more <= old.Free()) return;
  const std::size_t oldSize = old.size_;
  const std::size_t size = RoundUp(std::max(2 * oldSize, oldSize + more));
  if (size > kMaxBlock) throw std::bad_alloc();
  auto* grown =
      new (::operator new(sizeof(ElementStorage) + size)) ElementStorage(size, false, old.name());
  const std::size_t childBytes = old.child_count_ * sizeof(Child);
  std::memcpy(grown->bytes(), old.bytes(), old.items_end_);
  std::memcpy(grown->bytes() + size - childBytes, old.bytes() + oldSize - childBytes, childBytes);
  grown->items_end_ = old.items_end_;
  grown->child_count_ = old.child_count_;
  grown->has_attributes_ = old.has_attributes_;
  FreeBlock(&old);
  storage = grown;
}

char* ElementStorage::PutItem(Kind kind, std::size_t size) {
  Store(items_end_, static_cast<Word>(4 * size + kind));
  char* place = bytes() + items_end_ + sizeof(Word);
  items_end_ += static_cast<std::uint32_t>(sizeof(Word) + size);
  return place;
}

void ElementStorage::PutChild(Child child) {
  ++child_count_;
  Store(size_ - child_count_ * sizeof(Child), child);
}

char* ElementStorage::AddAttributeText(ElementStorage*& storage, std::size_t size) {
  Reserve(storage, sizeof(Word) + size);
  storage->has_attributes_ = 1;
  return storage->PutItem(kAttributeText, size);
}

char* ElementStorage::AddChildText(ElementStorage*& storage, std::size_t size) {
  Reserve(storage, sizeof(Word) + size + sizeof(Child));
  storage->PutChild(Child{2} * storage->items_end_ + 1);
  return storage->PutItem(kChildText, size);
}

void ElementStorage::AddAttributeNode(ElementStorage*& storage, Attribute* attribute) {
  Reserve(storage, sizeof(Word) + kPointerSize);
  storage->has_attributes_ = 1;
  char* place = storage->PutItem(kAttributeNode, kPointerSize);
  std::memcpy(place, &attribute, kPointerSize);
}

void ElementStorage::AddChildNode(ElementStorage*& storage, Node* child) {
  Reserve(storage, kPointerSize);
  storage->PutChild(reinterpret_cast<Child>(child));
}

}  // namespace tsx
