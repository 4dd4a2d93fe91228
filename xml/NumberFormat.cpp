#include <clocale>
#include <cstdio>

#include <tsxport/NumberFormat.h>

#include "xml/NumberText.h"

namespace TIMESERIESXML {
namespace {

constexpr char kDefaultFormat[] = "%.15g";

std::string Print(const char* format, double value) {
  char text[128];
  const int length = std::snprintf(text, sizeof text, format, value);
  if (length < 0) return {};
  if (static_cast<std::size_t>(length) < sizeof text) {
    return {text, static_cast<std::size_t>(length)};
  }
  std::string longText(static_cast<std::size_t>(length) + 1, '\0');
  std::snprintf(longText.data(), longText.size(), format, value);
  longText.pop_back();
  return longText;
}

}  // namespace

std::string GetDefaultNumericFormat() { return kDefaultFormat; }

std::string GetListSeparator() { return ";"; }

std::string GetDecimalCharacter() { return std::localeconv()->decimal_point; }

std::string ReplaceSep(double value, char* /*format*/) {
  return std::string(tsx::NumberText(value).view());
}

std::string Format(double value, bool usePrintf, char* format) {
  if (usePrintf) return Print(format != nullptr ? format : kDefaultFormat, value);
  return ReplaceSep(value, format);
}

std::string Format(long value) { return Format(static_cast<double>(value), true, nullptr); }

}  // namespace TIMESERIESXML
