#ifndef TSXPORT_TIMES_TIMEFORM_H_
#define TSXPORT_TIMES_TIMEFORM_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The forms in which a cell tells a time, and the whole number that each form counts.
namespace tsx::cli {

enum class TimeUnit { kNumber, kYear, kQuarter, kMonth, kDay, kSecond };

// How a column writes its times.
struct TimeForm {
  TimeUnit unit = TimeUnit::kNumber;
  char date_time_separator = ' ';  // or 'T'
  bool with_seconds = false;       // HH:MM:SS rather than HH:MM
};

// A time as a tick, a count of its unit:
//   kNumber   the number itself
//   kYear     years of our era
//   kQuarter  4 * year + quarter, the first quarter is 0
//   kMonth    12 * year + month, January is 0
//   kDay      days since 0001-01-01, a Monday, in the Gregorian calendar
//   kSecond   seconds since the start of that day
struct TimeValue {
  TimeForm form;
  std::int64_t tick = 0;
};

// What a text is as a time. `impossible` tells what is wrong with a text that has the form of a
// time but names none, such as 1999-13; both are empty when the text is no time at all.
struct ParsedTime {
  std::optional<TimeValue> value;
  std::string impossible;
};

// Reads 1949-01, 1960-Q1 (1960Q1), a whole number from 0 on, 2020-02-29, and
// 2020-02-29 13:45[:00] with a blank or a T between date and time. A lone 1871 comes out as a
// number; whether a column of such numbers means years is for its reader to say.
ParsedTime ParseTime(std::string_view text);

// The text of a tick in the given form; ParseTime() of it gives the tick back.
std::string TimeText(const TimeForm& form, std::int64_t tick);

// "YYYY-MM" and the like, for messages.
std::string FormName(TimeUnit unit);

inline constexpr std::int64_t kSecondsPerDay = 86400;

// A day of the Gregorian calendar, and its tick.
struct CivilDay {
  std::int64_t year = 1;
  unsigned month = 1;  // 1 to 12
  unsigned day = 1;    // 1 to 31
};
CivilDay DayFromTick(std::int64_t tick);
std::int64_t TickFromDay(const CivilDay& day);
unsigned DaysInMonth(std::int64_t year, unsigned month);

}  // namespace tsx::cli

#endif  // TSXPORT_TIMES_TIMEFORM_H_
