#include "xml/NumberList.h"

#include <cmath>
#include <iterator>

#include "xml/ElementPtr.h"
#include "xml/NodeAccess.h"
#include "xml/NumberText.h"
#include "xml/PutBytes.h"

namespace tsx {

using TIMESERIESXML::XMLElement;

namespace {

constexpr std::size_t kMaxItemSize = 1 + kMaxNumberSize;  // with the blank
constexpr std::size_t kShortList = 32;

char* PutItem(double value, double missing, Infinities infinities, char* out) {
  if (value == missing) return PutBytes("NaN", out);
  if (std::isfinite(value) || infinities == Infinities::kAsFormatted) return PutNumber(value, out);
  return PutBytes(ListText(NumberText(value).view()), out);
}

// At most kMaxItemSize bytes for each value.
char* PutList(std::span<const double> values, double missing, Infinities infinities, char* out) {
  for (const double& value : values) {
    if (&value != values.data()) *out++ = ' ';
    out = PutItem(value, missing, infinities, out);
  }
  return out;
}

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

std::string NumberListText(std::span<const double> values, double missing, Infinities infinities) {
  std::string text(values.size() * kMaxItemSize, '\0');
  text.resize(
      static_cast<std::size_t>(PutList(values, missing, infinities, text.data()) - text.data()));
  return text;
}

void FillNumberList(XMLElement& target, std::span<const double> values, double missing,
                    Infinities infinities) {
  if (values.empty()) return;
  if (values.size() > kShortList) {
    NodeAccess::AddPlainText(target, NumberListText(values, missing, infinities));
    return;
  }
  char text[kShortList * kMaxItemSize];
  const auto size = static_cast<std::size_t>(PutList(values, missing, infinities, text) - text);
  NodeAccess::AddPlainText(target, {text, size});
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
