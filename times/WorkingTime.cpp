#include "times/WorkingTime.h"

#include <algorithm>
#include <array>

#include "times/TimeForm.h"

namespace tsx::cli {
namespace {

constexpr std::int64_t kSecondsPerHour = 3600;

// Whether the dates are those that the scale gives their months.
bool Follows(const MonthScale& scale, const std::vector<std::int64_t>& ticks) {
  return std::all_of(ticks.begin(), ticks.end(), [&](std::int64_t tick) {
    return TickOfPosition(scale, PositionOfTick(scale, tick)) == tick;
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

std::optional<MonthScale> FindMonths(const std::vector<std::int64_t>& ticks,
                                     std::int64_t ticksPerDay) {
  if (ticks.size() < 2) return std::nullopt;
  unsigned day = 1;
  for (const std::int64_t tick : ticks) day = std::max(day, DayFromTick(tick / ticksPerDay).day);

  const std::int64_t remainder = ticks.front() % ticksPerDay;
  // The 30th and 28th of months that end there are last days, and so the 31st elsewhere.
  for (const unsigned candidate : {31U, day}) {
    const MonthScale scale{candidate, ticksPerDay, remainder};
    if (Follows(scale, ticks)) return scale;
  }
  return std::nullopt;
}

WorkingScale FindWorkingDays(const std::vector<std::int64_t>& ticks, std::int64_t ticksPerDay) {
  WorkingScale scale;
  scale.ticks_per_day = ticksPerDay;
  scale.remainder = ticks.front() % ticksPerDay;
  const Range range =
      RangeOf(ticks, [&](std::int64_t tick) { return WeekdayOfDay(tick / ticksPerDay); });
  const bool severalWeeks = ticks.back() - ticks.front() >= 7 * ticksPerDay;
  if (severalWeeks && (range.Length() == 5 || range.Length() == 6)) {
    scale.first_weekday = range.low;
    scale.weekdays = range.Length();
  }
  return scale;
}

WorkingScale FindWorkingHours(const std::vector<std::int64_t>& ticks, std::int64_t step) {
  WorkingScale scale = FindWorkingDays(ticks, kSecondsPerDay);
  scale.remainder = ticks.front() % kSecondsPerHour;
  scale.hours = 24;
  const Range range = RangeOf(ticks, [](std::int64_t tick) {
    return static_cast<unsigned>(tick % kSecondsPerDay / kSecondsPerHour);
  });
  const unsigned hours = range.high - range.low + static_cast<unsigned>(step);
  const bool severalDays = ticks.back() / kSecondsPerDay - ticks.front() / kSecondsPerDay >= 2;
  if (severalDays && hours < 24 && range.low + hours <= 24) {
    scale.first_hour = range.low;
    scale.hours = hours;
  }
  return scale;
}

AxisPeriod WeekdayPeriod(const WorkingScale& scale, std::int64_t firstDay) {
  const unsigned length = scale.weekdays < 7 ? scale.weekdays : 0;
  return {TSXDateSpec::Day, 7, scale.first_weekday, length, WeekdayOfDay(firstDay)};
}

AxisPeriod HourPeriod(const WorkingScale& scale, std::int64_t firstHour, std::int64_t step) {
  const unsigned length = scale.hours < 24 ? scale.hours : 0;
  const std::int64_t index =
      scale.first_hour + (firstHour - scale.first_hour) / step * step;  // [0, 24)
  return {TSXDateSpec::Hour, 24, scale.first_hour, length, static_cast<unsigned>(index)};
}

std::string WorkingName(const std::string& rhythm, const WorkingScale& scale) {
  constexpr std::array<const char*, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                    "Thursday", "Friday", "Saturday"};
  std::string name = rhythm;
  if (scale.weekdays < 7) {
    name += std::string(", ") + kWeekdays[scale.first_weekday] + " to " +
            kWeekdays[scale.first_weekday + scale.weekdays - 1];
  }
  if (scale.hours > 1 && scale.hours < 24) {
    name += ", " + std::to_string(scale.first_hour) + " to " +
            std::to_string(scale.first_hour + scale.hours) + " h";
  }
  return name;
}

}  // namespace tsx::cli
