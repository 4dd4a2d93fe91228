#ifndef TSXPORT_TIMES_WORKINGTIME_H_
#define TSXPORT_TIMES_WORKINGTIME_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "times/CaseScale.h"
#include "times/DateAxis.h"

// What dates and times of day have in common: months that they stand for, weekdays and hours that
// never occur. Ticks are strictly rising dates (1 a day) or dates with time (86400 a day).
namespace tsx::cli {

// The months that the dates stand for: all of them on the same day of the month, or on the month's
// last day where it has fewer. Empty where they do not, or where there is only one date.
std::optional<MonthScale> FindMonths(const std::vector<std::int64_t>& ticks,
                                     std::int64_t ticksPerDay);

// The working days: five or six days of the week when, over a week or more, no other occurs; else
// all seven.
WorkingScale FindWorkingDays(const std::vector<std::int64_t>& ticks, std::int64_t ticksPerDay);

// The working days and hours of times that lie whole multiples of `step` hours apart: part of the
// day when, on three days or more, no other hour occurs; else all 24.
WorkingScale FindWorkingHours(const std::vector<std::int64_t>& ticks, std::int64_t step);

// The Day period of a week and the Hour period of a day, with the index of the first case.
AxisPeriod WeekdayPeriod(const WorkingScale& scale, std::int64_t firstDay);
AxisPeriod HourPeriod(const WorkingScale& scale, std::int64_t firstHour, std::int64_t step);

// "daily, Monday to Friday": the rhythm, and what part of the week and the day it keeps to.
std::string WorkingName(const std::string& rhythm, const WorkingScale& scale);

}  // namespace tsx::cli

#endif  // TSXPORT_TIMES_WORKINGTIME_H_
