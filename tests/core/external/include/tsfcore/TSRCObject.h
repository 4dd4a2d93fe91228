#ifndef TSFCORE_TSRCOBJECT_H_
#define TSFCORE_TSRCOBJECT_H_

#include <atomic>

#include <tsfcore/Export.h>

// Base of objects with an intrusive reference count.
//
// A new object has no reference. Each holder calls addReference() once and removeReference() once;
// the call that drops the last reference deletes the object through its virtual destructor. The
// count is atomic, so holders may live on different threads; the object's own content is not
// protected by it. A copy of an object starts without references.
class TSF_EXPORT TSRCObject {
 public:
  TSRCObject() = default;
  TSRCObject(const TSRCObject&) {}
  TSRCObject& operator=(const TSRCObject&) { return *this; }
  virtual ~TSRCObject();

  void addReference() const;
  void removeReference() const;
  long referenceCount() const;

 private:
  mutable std::atomic<long> references_{0};
};

#endif  // TSFCORE_TSRCOBJECT_H_
