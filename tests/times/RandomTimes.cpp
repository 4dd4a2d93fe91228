#include "RandomTimes.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace test {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;
using tsxtimes::TimeUnit;

template <typename... Values>
std::string Printed(const char* format, Values... values) {
  char text[64];
  std::snprintf(text, sizeof text, format, static_cast<int>(values)...);
  return text;
}

std::string DateText(std::int64_t daysSince1970) {
  const year_month_day date{sys_days{std::chrono::days{daysSince1970}}};
  return Printed("%04d-%02d-%02d", int{date.year()}, unsigned{date.month()}, unsigned{date.day()});
}

std::string InstantText(std::int64_t secondsSince1970) {
  const std::int64_t second = secondsSince1970 % 86400;
  return DateText(secondsSince1970 / 86400) +
         Printed(" %02d:%02d:%02d", second / 3600, second / 60 % 60, second % 60);
}

// 0 is Sunday.
unsigned Weekday(std::int64_t daysSince1970) {
  return std::chrono::weekday{sys_days{std::chrono::days{daysSince1970}}}.c_encoding();
}

// The day of a month counted from 1970-01, or its last one.
std::string DateOfMonth(std::int64_t month, unsigned day) {
  const auto first = std::chrono::year{1970} / std::chrono::January / 1 +
                     std::chrono::months{static_cast<int>(month)};
  const year_month_day last{first.year() / first.month() / std::chrono::last};
  return DateText(sys_days{first}.time_since_epoch().count() + std::min(day, unsigned{last.day()}) -
                  1);
}

}  // namespace

RandomTimes::Column RandomTimes::Next() {
  switch (turn_++ % 9) {
    case 0:
      return Numbers();
    case 1:
      return Years();
    case 2:
      return Quarters();
    case 3:
      return Months();
    case 4:
      return Dates();
    case 5:
      return DatesOfMonths();
    case 6:
      return WorkingDays();
    case 7:
      return WorkingHours();
    default:
      return Clock();
  }
}

std::int64_t RandomTimes::Among(std::int64_t least, std::int64_t most) {
  return std::uniform_int_distribution<std::int64_t>(least, most)(random_);
}

std::vector<std::int64_t> RandomTimes::Steps(std::int64_t first, std::int64_t step) {
  const std::int64_t count = Among(2, 60);
  const bool holes = Among(0, 1) == 1;
  std::vector<std::int64_t> counts;
  for (std::int64_t i = 0; i < count; ++i) {
    if (i == 0 || !holes || Among(0, 3) != 0) counts.push_back(first + i * step);
  }
  return counts;
}

RandomTimes::Column RandomTimes::Numbers() {
  Column column{TimeUnit::kNumber, {}};
  for (const std::int64_t n : Steps(Among(0, 5000), Among(1, 20))) {
    column.texts.push_back(std::to_string(n));
  }
  return column;
}

RandomTimes::Column RandomTimes::Years() {
  Column column{TimeUnit::kYear, {}};
  for (const std::int64_t year : Steps(Among(1000, 2400), Among(1, 9))) {
    column.texts.push_back(std::to_string(year));
  }
  return column;
}

RandomTimes::Column RandomTimes::Quarters() {
  Column column{TimeUnit::kQuarter, {}};
  for (const std::int64_t quarter : Steps(Among(4, 9000), Among(1, 9))) {
    column.texts.push_back(Printed("%04d-Q%d", quarter / 4, quarter % 4 + 1));
  }
  return column;
}

RandomTimes::Column RandomTimes::Months() {
  Column column{TimeUnit::kMonth, {}};
  for (const std::int64_t month : Steps(Among(12, 30000), Among(1, 30))) {
    column.texts.push_back(Printed("%04d-%02d", month / 12, month % 12 + 1));
  }
  return column;
}

RandomTimes::Column RandomTimes::Dates() {
  Column column{TimeUnit::kDay, {}};
  const std::int64_t step = Among(0, 1) == 0 ? 7 * Among(1, 5) : Among(1, 40);
  for (const std::int64_t day : Steps(Among(0, 30000), step)) {
    column.texts.push_back(DateText(day));
  }
  return column;
}

RandomTimes::Column RandomTimes::DatesOfMonths() {
  const bool withTime = Among(0, 1) == 1;
  Column column{withTime ? TimeUnit::kSecond : TimeUnit::kDay, {}};
  const auto day = static_cast<unsigned>(Among(0, 1) == 0 ? 31 : Among(1, 31));
  const std::string time = InstantText(Among(0, 86399)).substr(10);
  for (const std::int64_t month : Steps(Among(0, 1200), Among(1, 13))) {
    column.texts.push_back(DateOfMonth(month, day) + (withTime ? time : ""));
  }
  return column;
}

RandomTimes::Column RandomTimes::WorkingDays() {
  const bool withTime = Among(0, 1) == 1;
  Column column{withTime ? TimeUnit::kSecond : TimeUnit::kDay, {}};
  const std::string time = InstantText(Among(0, 86399)).substr(10);
  const std::int64_t first = Among(0, 30000);
  for (std::int64_t day = first; day < first + 60; ++day) {
    if (Weekday(day) == 0 || Weekday(day) == 6 || Among(0, 9) == 0) continue;
    column.texts.push_back(DateText(day) + (withTime ? time : ""));
  }
  return column;
}

RandomTimes::Column RandomTimes::WorkingHours() {
  Column column{TimeUnit::kSecond, {}};
  const std::int64_t firstDay = Among(0, 30000);
  const std::int64_t firstHour = Among(0, 15);
  const std::int64_t second = Among(0, 3599);
  const std::int64_t step = Among(1, 2);
  const bool weekends = Among(0, 1) == 1;
  for (std::int64_t day = firstDay; day < firstDay + 20; ++day) {
    if (!weekends && (Weekday(day) == 0 || Weekday(day) == 6)) continue;
    for (std::int64_t hour = firstHour; hour < firstHour + 8; hour += step) {
      if (Among(0, 19) == 0) continue;
      column.texts.push_back(InstantText(day * 86400 + hour * 3600 + second));
    }
  }
  return column;
}

RandomTimes::Column RandomTimes::Clock() {
  constexpr std::int64_t kUsual[] = {1,    5,    10,   15,    30,    60,    300,   600,  900,
                                     1800, 3600, 7200, 10800, 14400, 21600, 28800, 43200};
  Column column{TimeUnit::kSecond, {}};
  const std::int64_t step = Among(0, 2) == 0 ? Among(1, 100000) : kUsual[Among(0, 16)];
  for (const std::int64_t second : Steps(Among(0, 2'000'000'000), step)) {
    column.texts.push_back(InstantText(second));
  }
  return column;
}

}  // namespace test
