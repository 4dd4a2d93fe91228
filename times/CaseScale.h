#ifndef TSXPORT_TIMES_CASESCALE_H_
#define TSXPORT_TIMES_CASESCALE_H_

#include <cstdint>
#include <variant>

// How the ticks of a time column (see TimeForm.h) map to positions that lie evenly: from a position
// to the next is one unit of the calendar, whatever weekends or the lengths of months do to ticks.
// The two mappings are inverse for every tick that the scale was made for.
namespace tsx::cli {

// Positions are the ticks themselves.
struct LinearScale {};

// Positions are months: dates that stand for their month.
struct MonthScale {
  unsigned day = 1;                // of the month; its last day where it has fewer
  std::int64_t ticks_per_day = 1;  // 1 for dates, 86400 for dates with time
  std::int64_t remainder = 0;      // ticks after the start of the day
};

// Positions are working days, or hours of working days.
struct WorkingScale {
  unsigned first_weekday = 0;  // Sunday is 0
  unsigned weekdays = 7;       // of a week, from the first on
  unsigned first_hour = 0;
  unsigned hours = 1;              // of a day; 1: positions are days
  std::int64_t ticks_per_day = 1;  // 1 for dates, 86400 for dates with time
  std::int64_t remainder = 0;      // ticks after the start of the day, or of the hour
};

using CaseScale = std::variant<LinearScale, MonthScale, WorkingScale>;

std::int64_t PositionOfTick(const CaseScale& scale, std::int64_t tick);
std::int64_t TickOfPosition(const CaseScale& scale, std::int64_t position);

// Weeks start on Sunday and are counted from the one that holds 0001-01-01.
constexpr std::int64_t WeekOfDay(std::int64_t day) { return (day + 1) / 7; }
constexpr unsigned WeekdayOfDay(std::int64_t day) { return static_cast<unsigned>((day + 1) % 7); }
constexpr std::int64_t DayOfWeek(std::int64_t week, unsigned weekday) {
  return 7 * week + weekday - 1;
}
static_assert(DayOfWeek(WeekOfDay(0), WeekdayOfDay(0)) == 0);
static_assert(WeekdayOfDay(0) == 1);  // 0001-01-01 was a Monday

}  // namespace tsx::cli

#endif  // TSXPORT_TIMES_CASESCALE_H_
