#include "tsxml/write/Transformation.h"

#include <tsfcore/TSTransformation.h>

#include "tsxml/Tags.h"
#include "xml/ElementPtr.h"

namespace tsx {

namespace {

using TIMESERIESXML::XMLElement;

void AddUnlessZero(XMLElement& element, const char* name, unsigned number) {
  if (number != 0) element.AddAttribute(name, static_cast<double>(number));
}

// Any function that is not the logarithm goes by the name of the square root.
const char* FunctionName(int functionType) {
  return functionType == TSTransformation::kLogarithm ? val::kLogarithm : val::kSquareRoot;
}

}  // namespace

bool AppendTransformation(XMLElement& parent, const SeriesTransformation& t) {
  if (t.function_type == 0 && t.non_seasonal_diff == 0 && t.seasonal_diff == 0 && t.delay == 0) {
    return false;
  }
  ElementPtr e = MakeElement(tag::kTransformation);
  if (t.function_type != 0) e->AddAttribute(attr::kFunction, FunctionName(t.function_type));
  AddUnlessZero(*e, attr::kNonSeasonalDiff, t.non_seasonal_diff);
  AddUnlessZero(*e, attr::kSeasonalDiff, t.seasonal_diff);
  AddUnlessZero(*e, attr::kDelay, t.delay);
  Append(parent, std::move(e));
  return true;
}

}  // namespace tsx
