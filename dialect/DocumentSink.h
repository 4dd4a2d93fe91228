#ifndef TSXPORT_DIALECT_DOCUMENTSINK_H_
#define TSXPORT_DIALECT_DOCUMENTSINK_H_

#include "xml/ElementPtr.h"

namespace tsx {

// Takes finished elements, one after the other: to keep them, or to write them at once.
class ElementSink {
 public:
  ElementSink() = default;
  virtual ~ElementSink() = default;
  ElementSink(const ElementSink&) = delete;
  ElementSink& operator=(const ElementSink&) = delete;

  // `element` is not null. What is kept is as it was when this throws.
  virtual void Take(ElementPtr element) = 0;
};

// Takes a whole document: Open(), Take() for each element behind those that the root came with, and
// Close().
class DocumentSink : public ElementSink {
 public:
  virtual void Open(ElementPtr root) = 0;
  virtual void Close() = 0;
};

}  // namespace tsx

#endif  // TSXPORT_DIALECT_DOCUMENTSINK_H_
