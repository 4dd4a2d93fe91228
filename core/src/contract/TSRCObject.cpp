#include <tsfcore/TSRCObject.h>

TSRCObject::~TSRCObject() = default;

void TSRCObject::addReference() const { references_.fetch_add(1, std::memory_order_relaxed); }

void TSRCObject::removeReference() const {
  // Release what this holder did, so that the deleting holder sees it (acquire).
  if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
}

long TSRCObject::referenceCount() const { return references_.load(std::memory_order_relaxed); }
