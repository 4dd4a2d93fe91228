#include <tsxport/XMLInterface.h>

namespace TIMESERIESXML {

XMLInterface::~XMLInterface() = default;

void* XMLInterface::operator new(std::size_t size) { return ::operator new(size); }
void* XMLInterface::operator new(std::size_t size, std::align_val_t alignment) {
  return ::operator new(size, alignment);
}
void* XMLInterface::operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  try {
    return ::operator new(size);  // what operator delete below undoes
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
void* XMLInterface::operator new(std::size_t /*size*/, void* place) noexcept { return place; }

void XMLInterface::operator delete(void* node) noexcept { ::operator delete(node); }
void XMLInterface::operator delete(void* node, std::align_val_t alignment) noexcept {
  ::operator delete(node, alignment);
}
void XMLInterface::operator delete(void* node, const std::nothrow_t& /*tag*/) noexcept {
  ::operator delete(node);
}
void XMLInterface::operator delete(void* /*node*/, void* /*place*/) noexcept {}

}  // namespace TIMESERIESXML
