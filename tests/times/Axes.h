#ifndef TSXPORT_TESTS_TIMES_AXES_H_
#define TSXPORT_TESTS_TIMES_AXES_H_

#include <cstdint>
#include <string>
#include <vector>

#include <tsxtimes/DateAxis.h>
#include <tsxtimes/TimeValue.h>

namespace test {

// The axis of times written as in a file; numbers of four digits are years.
inline tsxtimes::DateAxis AxisOf(const std::vector<std::string>& texts) {
  tsxtimes::TimeForm form = tsxtimes::ParseTime(texts.front()).value->form;
  const bool year = form.unit == tsxtimes::TimeUnit::kNumber && texts.front().size() == 4;
  if (year) form.unit = tsxtimes::TimeUnit::kYear;
  std::vector<std::int64_t> ticks;
  for (const std::string& text : texts) ticks.push_back(tsxtimes::ParseTime(text).value->tick);
  return tsxtimes::MakeDateAxis(form, ticks);
}

// `count` times from the first on, `step` ticks apart, in the first one's form.
inline std::vector<std::string> Times(const std::string& first, std::int64_t step, int count) {
  const tsxtimes::TimeValue start = *tsxtimes::ParseTime(first).value;
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) {
    texts.push_back(tsxtimes::TimeText(start.form, start.tick + i * step));
  }
  return texts;
}

// The times that are not in the given list.
inline std::vector<std::string> Without(std::vector<std::string> texts,
                                        const std::vector<std::string>& left) {
  for (const std::string& text : left) std::erase(texts, text);
  return texts;
}

}  // namespace test

#endif  // TSXPORT_TESTS_TIMES_AXES_H_
