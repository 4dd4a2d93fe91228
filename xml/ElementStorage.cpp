#include "xml/ElementStorage.h"

#include <algorithm>
#include <new>

#include <tsxport/XMLAttribute.h>

namespace tsx {
namespace {

// Room for two short attributes or a dozen children: most elements never need a second block.
constexpr std::size_t kRoom = 96;

constexpr std::size_t RoundUp(std::size_t size) {
  return (size + sizeof(void*) - 1) / sizeof(void*) * sizeof(void*);
}

}  // namespace

ElementStorage::ElementStorage(std::size_t size, bool inside, std::string_view name) noexcept
    : size_(size), name_size_(name.size()), text_end_(name.size()), inside_(inside) {
  if (!name.empty()) std::memcpy(bytes(), name.data(), name.size());
}

std::size_t ElementStorage::BlockSize(std::string_view name) {
  return sizeof(ElementStorage) + RoundUp(name.size()) + kRoom;
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
  storage->ForEachAttribute([](std::string_view) {},
                            [](Attribute* attribute) { delete attribute; });
  for (std::size_t i = 0; i < storage->child_count_; ++i) delete storage->child(i);
  FreeBlock(storage);
}

void ElementStorage::Reserve(ElementStorage*& storage, std::size_t more) {
  ElementStorage& old = *storage;
  if (more <= old.Free()) return;
  const std::size_t size = RoundUp(std::max(2 * old.size_, old.size_ + more));
  auto* grown =
      new (::operator new(sizeof(ElementStorage) + size)) ElementStorage(size, false, old.name());
  const std::size_t childBytes = old.child_count_ * sizeof(Node*);
  std::memcpy(grown->bytes(), old.bytes(), old.text_end_);
  std::memcpy(grown->bytes() + size - childBytes, old.bytes() + old.size_ - childBytes, childBytes);
  grown->text_end_ = old.text_end_;
  grown->child_count_ = old.child_count_;
  FreeBlock(&old);
  storage = grown;
}

char* ElementStorage::AddAttributeText(ElementStorage*& storage, std::size_t size) {
  Reserve(storage, sizeof size + size);
  storage->PutWord(size);
  char* place = storage->bytes() + storage->text_end_;
  storage->text_end_ += size;
  return place;
}

void ElementStorage::AddAttributeNode(ElementStorage*& storage, Attribute* attribute) {
  Reserve(storage, sizeof kIsNode + sizeof attribute);
  storage->PutWord(kIsNode);
  std::memcpy(storage->bytes() + storage->text_end_, &attribute, sizeof attribute);
  storage->text_end_ += sizeof attribute;
}

void ElementStorage::AddChild(ElementStorage*& storage, Node* child) {
  Reserve(storage, sizeof child);
  ++storage->child_count_;
  std::memcpy(storage->bytes() + storage->size_ - storage->child_count_ * sizeof child, &child,
              sizeof child);
}

}  // namespace tsx
