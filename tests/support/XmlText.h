#ifndef TSXPORT_TESTS_SUPPORT_XMLTEXT_H_
#define TSXPORT_TESTS_SUPPORT_XMLTEXT_H_

#include <string>

#include <tsxport/ExportFormat.h>
#include <tsxport/XMLElement.h>

namespace test {

// The element on one line, attributes separated by a blank.
inline std::string Compact(const TIMESERIESXML::XMLElement& element) {
  TIMESERIESXML::ExportFormat format;
  format.SetFormat(false);
  std::string text;
  element.ToString(text, format);
  return text;
}

// The element as it stands in a document of its own: indented, behind a line feed.
inline std::string Indented(const TIMESERIESXML::XMLElement& element) {
  TIMESERIESXML::ExportFormat format;
  std::string text;
  element.ToString(text, format);
  return text;
}

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_XMLTEXT_H_
