#include "export/CollectedModels.h"

#include <utility>

#include <tsxport/ExportFormat.h>

#include "xml/BorrowedElement.h"

namespace tsx {

void CollectedModels::Take(ElementPtr element) { elements_.push_back(std::move(element)); }

void CollectedModels::LendTo(ElementSink& out) const {
  for (const ElementPtr& element : elements_) out.Take(Borrow(*element));
}

void CollectedModels::WriteBare(std::ostream& out) const {
  for (const ElementPtr& element : elements_) {
    TIMESERIESXML::ExportFormat format;
    element->ToStream(out, format, false);
  }
}

}  // namespace tsx
