#ifndef TSXPORT_DATESPEC_CALENDAR_PERIODRULES_H_
#define TSXPORT_DATESPEC_CALENDAR_PERIODRULES_H_

#include <cstdint>

#include "datespec/calendar/Calendar.h"

// Which periods make a calendar together.
namespace tsx {

constexpr unsigned QuarterOfMonth(unsigned month) { return month / 3; }

constexpr bool FitsItsCycle(const TimePeriod& period) {
  const std::uint64_t end = std::uint64_t{period.sub_cycle_start} + period.sub_cycle_length;
  return period.cycle_length >= 2 && end <= period.cycle_length;
}

// Years, quarters and months are of unequal length in weeks, days and finer, so the two families
// do not nest. Periods of neither family go with everything; a cycle finds none coarser than itself
// but a simple sequence.
constexpr bool AreCompatible(PeriodType reference, PeriodType type) {
  const auto inYearFamily = [](PeriodType t) {
    return t >= PeriodType::Year && t <= PeriodType::Month;
  };
  const auto inWeekFamily = [](PeriodType t) {
    return t >= PeriodType::Week && t <= PeriodType::Second;
  };
  if (inYearFamily(reference)) return !inWeekFamily(type);
  if (inWeekFamily(reference)) return type > PeriodType::Month;
  return true;
}

// Whether the months are exactly those of the quarters.
constexpr bool DoAgree(const TimePeriod& quarter, const TimePeriod& month) {
  return quarter.cycle_length >= 2 &&
         month.cycle_length == std::uint64_t{3} * quarter.cycle_length &&
         month.sub_cycle_length == std::uint64_t{3} * quarter.sub_cycle_length &&
         quarter.sub_cycle_start == QuarterOfMonth(month.sub_cycle_start);
}

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_CALENDAR_PERIODRULES_H_
