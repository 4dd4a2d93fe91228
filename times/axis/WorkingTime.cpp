#include "times/axis/WorkingTime.h"

#include <algorithm>
#include <array>

#include <tsxtimes/CivilDay.h>

namespace tsxtimes {
namespace {

constexpr std::int64_t kSecondsPerHour = 3600;

// Whether each date is that day of its month, or the month's last where it has fewer.
bool AreOnMonthDay(const std::vector<std::int64_t>& ticks, std::int64_t ticksPerDay,
                   unsigned monthDay) {
  return std::all_of(ticks.begin(), ticks.end(), [=](std::int64_t tick) {
    const CivilDay date = DayFromTick(tick / ticksPerDay);
    return date.day == std::min(monthDay, DaysInMonth(date.year, date.month));
  });
}

// Lowest and highest of the values that `valueOf` finds in the ticks.
struct Range {
  unsigned low = 0;
  unsigned high = 0;
  unsigned Length() const { return high - low + 1; }
};

template <typename ValueOf>
Range RangeOf(const std::vector<std::int64_t>& ticks, ValueOf valueOf) {
  Range range{valueOf(ticks.front()), valueOf(ticks.front())};
  for (const std::int64_t tick : ticks) {
    range.low = std::min(range.low, valueOf(tick));
    range.high = std::max(range.high, valueOf(tick));
  }
  return range;
}

}  // namespace

std::optional<unsigned> FindMonthDay(const std::vector<std::int64_t>& ticks,
                                     std::int64_t ticksPerDay) {
  if (ticks.size() < 2) return std::nullopt;
  unsigned day = 1;
  for (const std::int64_t tick : ticks) day = std::max(day, DayFromTick(tick / ticksPerDay).day);

  // The 30th and 28th of months that end there are last days, and so the 31st elsewhere.
  for (const unsigned candidate : {31U, day}) {
    if (AreOnMonthDay(ticks, ticksPerDay, candidate)) return candidate;
  }
  return std::nullopt;
}

WorkingTime FindWorkingDays(const std::vector<std::int64_t>& ticks, std::int64_t ticksPerDay) {
  WorkingTime working;
  const Range range =
      RangeOf(ticks, [&](std::int64_t tick) { return WeekdayOfDay(tick / ticksPerDay); });
  const bool severalWeeks = ticks.back() - ticks.front() >= 7 * ticksPerDay;
  if (severalWeeks && (range.Length() == 5 || range.Length() == 6)) {
    working.first_weekday = range.low;
    working.weekdays = range.Length();
  }
  return working;
}

WorkingTime FindWorkingHours(const std::vector<std::int64_t>& ticks, std::int64_t step) {
  WorkingTime working = FindWorkingDays(ticks, kSecondsPerDay);
  const Range range = RangeOf(ticks, [](std::int64_t tick) {
    return static_cast<unsigned>(tick % kSecondsPerDay / kSecondsPerHour);
  });
  const unsigned hours = range.high - range.low + static_cast<unsigned>(step);
  const bool severalDays = ticks.back() / kSecondsPerDay - ticks.front() / kSecondsPerDay >= 2;
  if (severalDays && hours < 24 && range.low + hours <= 24) {
    working.first_hour = range.low;
    working.hours = hours;
  }
  return working;
}

std::string WorkingName(const std::string& rhythm, const WorkingTime& working) {
  constexpr std::array<const char*, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                    "Thursday", "Friday", "Saturday"};
  std::string name = rhythm;
  if (working.weekdays < 7) {
    name += std::string(", ") + kWeekdays[working.first_weekday] + " to " +
            kWeekdays[working.first_weekday + working.weekdays - 1];
  }
  if (working.hours < 24) {
    name += ", " + std::to_string(working.first_hour) + " to " +
            std::to_string(working.first_hour + working.hours) + " h";
  }
  return name;
}

}  // namespace tsxtimes
