#include "xml/NumberList.h"

#include <iterator>

#include "xml/ElementPtr.h"
#include "xml/NumberText.h"

namespace tsx {

using TIMESERIESXML::XMLElement;

namespace {

std::span<const double> SpanOf(const std::valarray<double>& values) {
  if (values.size() == 0) return {};
  return {std::begin(values), values.size()};
}

}  // namespace

std::string_view ListText(std::string_view formatted) {
  for (const char* plus : {"1.#INF", "inf", "Inf"}) {
    if (formatted == plus) return "INF";
  }
  for (const char* minus : {"-1.#INF", "-inf", "-Inf"}) {
    if (formatted == minus) return "-INF";
  }
  return formatted;
}

std::string NumberListText(std::span<const double> values, double missing) {
  std::string text;
  for (const double value : values) {
    if (!text.empty()) text += ' ';
    if (value == missing) {
      text += "NaN";
    } else {
      text += ListText(NumberText(value).view());
    }
  }
  return text;
}

void FillNumberList(XMLElement& target, std::span<const double> values, double missing) {
  if (!values.empty()) AppendText(target, NumberListText(values, missing));
}

void FillNumberList(XMLElement& target, const double* values, std::size_t count, double missing) {
  if (values != nullptr) FillNumberList(target, std::span(values, count), missing);
}

bool AppendVector(XMLElement& parent, std::string_view name, std::span<const double> values,
                  bool force, double missing) {
  if (values.empty() && !force) return false;
  ElementPtr vector = MakeElement(name);
  FillNumberList(*vector, values, missing);
  Append(parent, std::move(vector));
  return true;
}

bool AppendVector(XMLElement& parent, std::string_view name, const std::valarray<double>& values,
                  bool force, double missing) {
  return AppendVector(parent, name, SpanOf(values), force, missing);
}

}  // namespace tsx
