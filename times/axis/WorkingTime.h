#ifndef TSXPORT_TIMES_AXIS_WORKINGTIME_H_
#define TSXPORT_TIMES_AXIS_WORKINGTIME_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What dates and times of day have in common: months that they stand for, weekdays and hours that
// never occur. Ticks are strictly rising dates (1 a day) or dates with time (86400 a day).
namespace tsxtimes {

// The part of the week, and of its days, in which there are cases.
struct WorkingTime {
  unsigned first_weekday = 0;  // Sunday is 0
  unsigned weekdays = 7;       // of a week, from the first on
  unsigned first_hour = 0;
  unsigned hours = 24;  // of a day
};

// The day of the month on which all the dates stand, where they stand for their months: 31 for last
// days; in shorter months it is the last day. Empty where they do not, or where there is only one
// date.
std::optional<unsigned> FindMonthDay(const std::vector<std::int64_t>& ticks,
                                     std::int64_t ticksPerDay);

// The working days: five or six days of the week when, over a week or more, no other occurs; else
// all seven.
WorkingTime FindWorkingDays(const std::vector<std::int64_t>& ticks, std::int64_t ticksPerDay);

// The working days and hours of times that lie whole multiples of `step` hours apart: part of the
// day when, on three days or more, no other hour occurs; else all 24.
WorkingTime FindWorkingHours(const std::vector<std::int64_t>& ticks, std::int64_t step);

// "daily, Monday to Friday": the rhythm, and what part of the week and the day it keeps to.
std::string WorkingName(const std::string& rhythm, const WorkingTime& working);

}  // namespace tsxtimes

#endif  // TSXPORT_TIMES_AXIS_WORKINGTIME_H_
