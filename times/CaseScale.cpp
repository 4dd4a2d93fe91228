#include "times/CaseScale.h"

#include <algorithm>

#include "times/TimeForm.h"

namespace tsx::cli {
namespace {

constexpr std::int64_t kSecondsPerHour = 3600;

std::int64_t Position(const LinearScale& /*scale*/, std::int64_t tick) { return tick; }
std::int64_t Tick(const LinearScale& /*scale*/, std::int64_t position) { return position; }

std::int64_t Position(const MonthScale& scale, std::int64_t tick) {
  const CivilDay day = DayFromTick(tick / scale.ticks_per_day);
  return 12 * day.year + day.month - 1;
}

std::int64_t Tick(const MonthScale& scale, std::int64_t position) {
  const std::int64_t year = position / 12;
  const auto month = static_cast<unsigned>(position % 12 + 1);
  const unsigned day = std::min(scale.day, DaysInMonth(year, month));
  return TickFromDay({year, month, day}) * scale.ticks_per_day + scale.remainder;
}

std::int64_t Position(const WorkingScale& scale, std::int64_t tick) {
  const std::int64_t day = tick / scale.ticks_per_day;
  const std::int64_t workingDay =
      WeekOfDay(day) * scale.weekdays + WeekdayOfDay(day) - scale.first_weekday;
  if (scale.hours == 1) return workingDay;
  const std::int64_t hour = tick % scale.ticks_per_day / kSecondsPerHour;
  return workingDay * scale.hours + hour - scale.first_hour;
}

std::int64_t Tick(const WorkingScale& scale, std::int64_t position) {
  const std::int64_t workingDay = position / scale.hours;
  const auto weekday = static_cast<unsigned>(workingDay % scale.weekdays) + scale.first_weekday;
  const std::int64_t day = DayOfWeek(workingDay / scale.weekdays, weekday);
  const std::int64_t hour = scale.hours == 1 ? 0 : position % scale.hours + scale.first_hour;
  return day * scale.ticks_per_day + hour * kSecondsPerHour + scale.remainder;
}

}  // namespace

std::int64_t PositionOfTick(const CaseScale& scale, std::int64_t tick) {
  return std::visit([tick](const auto& s) { return Position(s, tick); }, scale);
}

std::int64_t TickOfPosition(const CaseScale& scale, std::int64_t position) {
  return std::visit([position](const auto& s) { return Tick(s, position); }, scale);
}

}  // namespace tsx::cli
