#include "tsxml/write/OutlierEffect.h"

#include <algorithm>
#include <iterator>

#include "tsxml/Tags.h"
#include "tsxml/write/Parameters.h"
#include "xml/ElementPtr.h"

namespace tsx {

namespace {

struct NamedOutlierType {
  int code;
  const char* name;
};

constexpr NamedOutlierType kOutlierTypes[] = {
    {TSOutlierSpec::kAdditive, "additive"},
    {TSOutlierSpec::kLevel, "level"},
    {TSOutlierSpec::kTransient, "transient"},
    {TSOutlierSpec::kSeasonalAdditive, "seasonalAdditive"},
    {TSOutlierSpec::kTrend, "trend"},
    {TSOutlierSpec::kInnovational, "innovational"},
    {TSOutlierSpec::kVarianceChange, "varianceChange"},
};

// Null when the type has no name.
const char* NameOfType(int code) {
  const auto* const row =
      std::find_if(std::begin(kOutlierTypes), std::end(kOutlierTypes),
                   [code](const NamedOutlierType& type) { return type.code == code; });
  return row != std::end(kOutlierTypes) ? row->name : nullptr;
}

}  // namespace

void AppendOutlierEffect(TIMESERIESXML::XMLElement& parent, const TSOutlierSpec& outlier,
                         std::uint32_t first, const Estimates& estimates) {
  const char* type = NameOfType(outlier.GetType());
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
