#include "tsxml/write/Parameters.h"

#include <string>

#include <tsxport/NumberFormat.h>

#include "tsxml/Tags.h"
#include "tsxml/write/MissingValue.h"
#include "xml/ElementPtr.h"

namespace tsx {

using TIMESERIESXML::Format;
using TIMESERIESXML::XMLElement;

bool AppendEstimatedParameter(XMLElement& parent, double value, double stdError) {
  if (IsMissing(value)) return false;
  std::string text = Format(value, false, nullptr);
  if (!IsMissing(stdError)) text += " " + Format(stdError, false, nullptr);

  ElementPtr e = MakeElement(tag::kEstimatedParameter);
  AppendText(*e, text);
  Append(parent, std::move(e));
  return true;
}

bool AppendNamedParameter(XMLElement& parent, const ESModelSpec& spec, int weight, const char* name,
                          const std::valarray<double>& values,
                          const std::valarray<double>& stdErrors) {
  const int index = spec.GetParameterIndex(weight);
  if (index < 0) return true;
  const auto position = static_cast<std::size_t>(index);
  if (position >= values.size()) return false;

  const double stdError = position < stdErrors.size() ? stdErrors[position] : MV::gMissingValue;
  ElementPtr e = MakeElement(name);
  if (!AppendEstimatedParameter(*e, values[position], stdError)) return false;
  Append(parent, std::move(e));
  return true;
}

void AppendLagTerm(XMLElement& parent, std::uint32_t lag, double value, double stdError) {
  ElementPtr e = MakeElement(lag == 0 ? tag::kZeroLagTerm : tag::kLagTerm);
  if (lag != 0) e->AddAttribute(attr::kLag, static_cast<double>(lag));
  AppendEstimatedParameter(*e, value, stdError);
  Append(parent, std::move(e));
}

}  // namespace tsx
