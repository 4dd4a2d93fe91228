#ifndef TSXPORT_EXPORT_COLLECTEDMODELS_H_
#define TSXPORT_EXPORT_COLLECTEDMODELS_H_

#include <cstddef>
#include <ostream>
#include <vector>

#include "dialect/DocumentSink.h"

namespace tsx {

// The finished elements of a tree's models, in order of admission.
class CollectedModels final : public ElementSink {
 public:
  void Take(ElementPtr element) override;

  std::size_t size() const { return elements_.size(); }
  void Clear() noexcept { elements_.clear(); }

  // Lends the elements to `out`, which must be done with them before this changes.
  void LendTo(ElementSink& out) const;
  // Writes one element after the other, each as if it stood alone.
  void WriteBare(std::ostream& out) const;

 private:
  std::vector<ElementPtr> elements_;
};

}  // namespace tsx

#endif  // TSXPORT_EXPORT_COLLECTEDMODELS_H_
