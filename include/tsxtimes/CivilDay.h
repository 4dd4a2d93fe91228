#ifndef TSXTIMES_CIVILDAY_H_
#define TSXTIMES_CIVILDAY_H_

#include <array>
#include <cstdint>

// Days of the Gregorian calendar, counted and named. Day 0 is 0001-01-01, a Monday; what lies
// before the year 0 is not for these functions.
//
//   TickFromDay({1970, 1, 1})  // 719162
//   DayFromTick(719162)        // {1970, 1, 1}
namespace tsxtimes {

inline constexpr std::int64_t kSecondsPerDay = 86400;

struct CivilDay {
  std::int64_t year = 1;
  unsigned month = 1;  // 1 to 12
  unsigned day = 1;    // 1 to 31
};

constexpr bool IsLeapYear(std::int64_t year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

// `month` is 1 to 12.
constexpr unsigned DaysInMonth(std::int64_t year, unsigned month) {
  constexpr std::array<unsigned, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

// Both ways count years from March, so that the leap day comes last, in eras of 400 years or
// 146097 days. The 1st of March of the year 0 lies 306 days before 0001-01-01.
constexpr std::int64_t TickFromDay(const CivilDay& day) {
  const std::int64_t year = day.month <= 2 ? day.year - 1 : day.year;         // [0, ...)
  const std::int64_t month = day.month <= 2 ? day.month + 9 : day.month - 3;  // [0, 11]
  const std::int64_t dayOfYear = (153 * month + 2) / 5 + day.day - 1;         // [0, 365]
  return year * 365 + year / 4 - year / 100 + year / 400 + dayOfYear - 306;
}

constexpr CivilDay DayFromTick(std::int64_t tick) {
  const std::int64_t days = tick + 306;
  const std::int64_t era = days / 146097;
  const std::int64_t dayOfEra = days % 146097;  // [0, 146096]
  const std::int64_t yearOfEra =
      (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;  // [0, 399]
  const std::int64_t dayOfYear =
      dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);  // [0, 365]
  const std::int64_t month = (5 * dayOfYear + 2) / 153;                // [0, 11], 0 is March
  const auto day = static_cast<unsigned>(dayOfYear - (153 * month + 2) / 5 + 1);
  const auto civilMonth = static_cast<unsigned>(month < 10 ? month + 3 : month - 9);
  return {era * 400 + yearOfEra + (civilMonth <= 2 ? 1 : 0), civilMonth, day};
}

// Sunday is 0.
constexpr unsigned WeekdayOfDay(std::int64_t day) { return static_cast<unsigned>((day + 1) % 7); }

static_assert(TickFromDay({1, 1, 1}) == 0 && WeekdayOfDay(0) == 1);
static_assert(TickFromDay({2000, 2, 29}) + 1 == TickFromDay({2000, 3, 1}));
static_assert(DayFromTick(TickFromDay({1900, 2, 28}) + 1).month == 3);

}  // namespace tsxtimes

#endif  // TSXTIMES_CIVILDAY_H_
