#ifndef TSXPORT_TESTS_OBJSTREAM_VALUES_H_
#define TSXPORT_TESTS_OBJSTREAM_VALUES_H_

#include <gtest/gtest.h>
#include <optional>
#include <string>

#include <tsxport/ObjStreamReader.h>
#include <tsxport/XmluReader.h>

#include "objstream/Files.h"

namespace test {

// What a file with one value line gives, or nothing when it is refused. A refusal must leave the
// output as it was.

template <typename T, typename Parse>
std::optional<T> ValueBy(Parse parse, const std::string& line, T before) {
  std::ifstream in = FileOf(line);
  T value = before;
  if (parse(in, value)) return value;
  EXPECT_EQ(value, before) << "changed by " << line;
  return std::nullopt;
}

template <typename T>
std::optional<T> ValueOf(const std::string& line, T before = T()) {
  return ValueBy([](auto& in, T& value) { return TIMESERIESXML::ParseValue(in, value); }, line,
                 before);
}

template <typename T>
std::optional<T> XmluValueOf(const std::string& line, T before = T()) {
  return ValueBy([](auto& in, T& value) { return xmlu::ParseValue(in, value); }, line, before);
}

inline std::string IntLine(const std::string& text) { return "\t<Int value=\"" + text + "\"/>\n"; }
inline std::string LongLine(const std::string& text) {
  return "\t<Long value=\"" + text + "\"/>\n";
}
inline std::string DoubleLine(const std::string& text) {
  return "\t<Double value=\"" + text + "\"/>\n";
}
inline std::string StringLine(const std::string& text) {
  return "\t<String value=\"" + text + "\"/>\n";
}

}  // namespace test

#endif  // TSXPORT_TESTS_OBJSTREAM_VALUES_H_
