#include "dialect/Dialect.h"

namespace tsx {

Admission Dialect::Admits(const OfferedModel& offer) const {
  const std::optional<DialectContent> method = MethodOf(offer);
  if (!method) return {"for it has no forecast state"};
  return {facts_.Lack(*method)};
}

}  // namespace tsx
