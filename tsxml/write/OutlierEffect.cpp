#include "tsxml/write/OutlierEffect.h"

#include "tsxml/Names.h"
#include "tsxml/Tags.h"
#include "tsxml/write/Parameters.h"
#include "xml/ElementPtr.h"

namespace tsx {

void AppendOutlierEffect(TIMESERIESXML::XMLElement& parent, const TSOutlierSpec& outlier,
                         std::uint32_t first, const Estimates& estimates) {
  const char* type = NameOf(kOutlierTypes, outlier.GetType());
  if (type == nullptr) return;

  ElementPtr e = MakeElement(tag::kOutlierEffect);
  e->AddAttribute(attr::kType, type);
  e->AddAttribute(attr::kStartIndex, static_cast<double>(outlier.GetStartIndex()));
  const std::uint32_t count = outlier.GetParameterCount();
  CoefficientBlock block(estimates, first, first + count);
  for (std::uint32_t i = 0; i < count; ++i) {
    const Coefficient parameter = block.Next();
    AppendEstimatedParameter(*e, parameter.value, parameter.std_error);
  }
  Append(parent, std::move(e));
}

}  // namespace tsx
