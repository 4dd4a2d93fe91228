#include "support/FailingAllocation.h"

#include <cstddef>
#include <cstdlib>
#include <utility>

#if TSXPORT_ALLOCATIONS_FAIL

namespace {

thread_local long failFrom = 0;
thread_local long allocations = 0;
thread_local long failures = 0;
thread_local std::size_t allocatedBytes = 0;
thread_local long liveBlocks = 0;

void* Allocate(std::size_t size, std::size_t alignment) {
  ++allocations;
  allocatedBytes += size;
  if (failFrom > 0 && allocations >= failFrom) {
    ++failures;
    throw std::bad_alloc();
  }
  const std::size_t rounded = (size + alignment - 1) / alignment * alignment;
  void* block = alignment <= alignof(std::max_align_t)
                    ? std::malloc(size == 0 ? 1 : size)
                    : std::aligned_alloc(alignment, rounded == 0 ? alignment : rounded);
  if (block == nullptr) throw std::bad_alloc();
  ++liveBlocks;
  return block;
}

void Free(void* block) noexcept {
  if (block == nullptr) return;
  --liveBlocks;
  std::free(block);
}

}  // namespace

namespace test {

long FailAllocationsFrom(long n) {
  allocations = 0;
  failures = 0;
  allocatedBytes = 0;
  return std::exchange(failFrom, n);
}

long AllocationCount() { return allocations; }
long LiveBlocks() { return liveBlocks; }
long FailureCount() { return failures; }
std::size_t AllocatedBytes() { return allocatedBytes; }

}  // namespace test

void* operator new(std::size_t size) { return Allocate(size, alignof(std::max_align_t)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return Allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* block) noexcept { Free(block); }
void operator delete(void* block, std::size_t) noexcept { Free(block); }
void operator delete(void* block, std::align_val_t) noexcept { Free(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { Free(block); }

#else

namespace test {

long FailAllocationsFrom(long /*n*/) { return 0; }
long AllocationCount() { return 0; }
long LiveBlocks() { return 0; }
long FailureCount() { return 0; }
std::size_t AllocatedBytes() { return 0; }

}  // namespace test

#endif
