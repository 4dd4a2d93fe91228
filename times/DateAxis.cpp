#include "times/DateAxis.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "times/WorkingTime.h"

namespace tsx::cli {
namespace {

using Ticks = std::vector<std::int64_t>;

constexpr std::int64_t kSecondsPerHour = 3600;
constexpr std::int64_t kSecondsPerMinute = 60;

// The largest step that leads from the first position to every other; 1 where there is only one.
std::int64_t StepOf(const Ticks& positions) {
  std::int64_t step = 0;
  for (const std::int64_t position : positions) step = std::gcd(step, position - positions.front());
  return std::max<std::int64_t>(step, 1);
}

std::string Rhythm(std::int64_t step, const char* single, const char* plural) {
  return step == 1 ? single : "every " + std::to_string(step) + " " + plural;
}

// A base period. Calendars know only multiples of their increment.
AxisPeriod Base(TSXDateSpec::PeriodType type, std::int64_t first, std::int64_t increment = 1) {
  return {type, 0, 0, 0, static_cast<unsigned>(first / increment * increment)};
}

AxisPeriod Whole(TSXDateSpec::PeriodType type, unsigned cycle, std::int64_t first) {
  return {type, cycle, 0, 0, static_cast<unsigned>(first)};
}

// Puts each time into its place on a scale; the scale maps the times to `step` or multiples of it.
void PlaceCases(DateAxis& axis, const Ticks& ticks, const CaseScale& scale, std::int64_t step) {
  axis.scale = scale;
  axis.step = step;
  axis.first_position = PositionOfTick(scale, ticks.front());
  for (const std::int64_t tick : ticks) {
    const std::int64_t distance = PositionOfTick(scale, tick) - axis.first_position;
    axis.row_cases.push_back(static_cast<std::size_t>(distance / step));
  }
}

void MakeSequence(DateAxis& axis, const Ticks& ticks) {
  const std::int64_t step = StepOf(ticks);
  axis.name = step == 1 ? "numbered" : "numbered in steps of " + std::to_string(step);
  axis.periods = {Base(TSXDateSpec::SimpleSequence, ticks.front() / step)};
  PlaceCases(axis, ticks, LinearScale{}, step);
}

// A period of which so many make a year.
struct YearPart {
  TSXDateSpec::PeriodType type;
  unsigned per_year;
  const char* single;  // "monthly"
  const char* plural;  // "months"
};

// `first` and `step` count parts of years.
void SetYearPeriods(DateAxis& axis, const YearPart& part, std::int64_t first, std::int64_t step) {
  const std::int64_t perYear = part.per_year;
  axis.name = Rhythm(step, part.single, part.plural);
  axis.increment = static_cast<unsigned>(step);
  if (step % perYear == 0) {
    axis.name = Rhythm(step / perYear, "yearly", "years");
    axis.increment = static_cast<unsigned>(step / perYear);
    axis.periods = {Base(TSXDateSpec::Year, first / perYear, step / perYear)};
  } else if (perYear % step == 0) {
    const std::int64_t index = first % perYear / step * step;
    axis.periods = {Base(TSXDateSpec::Year, first / perYear),
                    Whole(part.type, part.per_year, index)};
  } else {
    axis.periods = {Base(part.type, first, step)};
  }
}

constexpr YearPart kYears = {TSXDateSpec::Year, 1, "yearly", "years"};
constexpr YearPart kQuarters = {TSXDateSpec::Quarter, 4, "quarterly", "quarters"};
constexpr YearPart kMonths = {TSXDateSpec::Month, 12, "monthly", "months"};

void MakeYearParts(DateAxis& axis, const Ticks& ticks, const YearPart& part) {
  const std::int64_t step = StepOf(ticks);
  SetYearPeriods(axis, part, ticks.front(), step);
  PlaceCases(axis, ticks, LinearScale{}, step);
}

void MakeMonthsOfDates(DateAxis& axis, const Ticks& ticks, const MonthScale& scale) {
  Ticks months;
  for (const std::int64_t tick : ticks) months.push_back(PositionOfTick(scale, tick));
  const std::int64_t step = StepOf(months);
  SetYearPeriods(axis, kMonths, months.front(), step);
  PlaceCases(axis, ticks, scale, step);
}

void MakeDays(DateAxis& axis, const Ticks& ticks, const WorkingScale& scale) {
  const std::int64_t step = std::max<std::int64_t>(StepOf(ticks) / scale.ticks_per_day, 1);
  const std::int64_t first = ticks.front() / scale.ticks_per_day;
  axis.increment = static_cast<unsigned>(step);
  if (step == 1) {
    axis.name = WorkingName("daily", scale);
    axis.periods = {Base(TSXDateSpec::Week, WeekOfDay(first)), WeekdayPeriod(scale, first)};
    PlaceCases(axis, ticks, scale, 1);
    return;
  }
  const bool weeks = step % 7 == 0;
  axis.name = weeks ? Rhythm(step / 7, "weekly", "weeks") : Rhythm(step, "daily", "days");
  axis.increment = static_cast<unsigned>(weeks ? step / 7 : step);
  axis.periods = {weeks ? Base(TSXDateSpec::Week, WeekOfDay(first), step / 7)
                        : Base(TSXDateSpec::Day, first, step)};
  PlaceCases(axis, ticks, LinearScale{}, step * scale.ticks_per_day);
}

void MakeHours(DateAxis& axis, const Ticks& ticks, const WorkingScale& scale, std::int64_t step) {
  const std::int64_t day = ticks.front() / kSecondsPerDay;
  const std::int64_t hour = ticks.front() % kSecondsPerDay / kSecondsPerHour;
  axis.name = WorkingName(Rhythm(step, "hourly", "hours"), scale);
  axis.increment = static_cast<unsigned>(step);
  if (scale.weekdays < 7) {
    axis.periods = {Base(TSXDateSpec::Week, WeekOfDay(day)), WeekdayPeriod(scale, day)};
  } else {
    axis.periods = {Base(TSXDateSpec::Day, day)};
  }
  axis.periods.push_back(HourPeriod(scale, hour, step));
  PlaceCases(axis, ticks, scale, step);
}

// A part of an hour, or the hour itself.
struct ClockPart {
  TSXDateSpec::PeriodType type;
  std::int64_t seconds;
  unsigned per_cycle;
  const char* single;
  const char* plural;
};

constexpr ClockPart kHours = {TSXDateSpec::Hour, 3600, 24, "hourly", "hours"};
constexpr ClockPart kMinutes = {TSXDateSpec::Minute, 60, 60, "every minute", "minutes"};
constexpr ClockPart kSeconds = {TSXDateSpec::Second, 1, 60, "every second", "seconds"};

// Steps of minutes or seconds, and steps that do not divide their cycle.
void MakeClock(DateAxis& axis, const Ticks& ticks, const ClockPart& part, std::int64_t step) {
  const std::int64_t secondOfDay = ticks.front() % kSecondsPerDay;
  axis.name = Rhythm(step, part.single, part.plural);
  axis.increment = static_cast<unsigned>(step);
  PlaceCases(axis, ticks, LinearScale{}, step * part.seconds);
  if (part.per_cycle % step != 0) {
    axis.periods = {Base(part.type, secondOfDay / part.seconds, step)};
    return;
  }
  const std::int64_t index = secondOfDay / part.seconds % part.per_cycle / step * step;
  axis.periods = {Base(TSXDateSpec::Day, ticks.front() / kSecondsPerDay),
                  Whole(TSXDateSpec::Hour, 24, secondOfDay / kSecondsPerHour)};
  if (part.type == TSXDateSpec::Second) {
    const std::int64_t minute = secondOfDay / kSecondsPerMinute % 60;
    axis.periods.push_back(Whole(TSXDateSpec::Minute, 60, minute));
  }
  axis.periods.push_back(Whole(part.type, part.per_cycle, index));
}

void MakeTimesOfDay(DateAxis& axis, const Ticks& ticks) {
  const std::int64_t step = StepOf(ticks);
  if (step % kSecondsPerHour == 0 && 24 % (step / kSecondsPerHour) == 0) {
    const std::int64_t hours = step / kSecondsPerHour;
    MakeHours(axis, ticks, FindWorkingHours(ticks, hours), hours);
    return;
  }
  const ClockPart& part = step % kSecondsPerHour == 0     ? kHours
                          : step % kSecondsPerMinute == 0 ? kMinutes
                                                          : kSeconds;
  MakeClock(axis, ticks, part, step / part.seconds);
}

void MakeDates(DateAxis& axis, const Ticks& ticks, std::int64_t ticksPerDay) {
  const std::int64_t remainder = ticks.front() % ticksPerDay;
  const bool sameTimeOfDay = std::all_of(ticks.begin(), ticks.end(), [&](std::int64_t tick) {
    return tick % ticksPerDay == remainder;
  });
  if (!sameTimeOfDay) return MakeTimesOfDay(axis, ticks);
  if (const auto months = FindMonths(ticks, ticksPerDay)) {
    return MakeMonthsOfDates(axis, ticks, *months);
  }
  MakeDays(axis, ticks, FindWorkingDays(ticks, ticksPerDay));
}

}  // namespace

std::vector<std::size_t> DateAxis::SkippedCases() const {
  std::vector<std::size_t> skipped;
  std::size_t next = 0;
  for (const std::size_t present : row_cases) {
    for (; next < present; ++next) skipped.push_back(next);
    next = present + 1;
  }
  return skipped;
}

unsigned DateAxis::SeasonLength() const {
  if (periods.size() == 1) return 1;
  const AxisPeriod& finest = periods.back();
  return (finest.length != 0 ? finest.length : finest.cycle_length) / increment;
}

std::string DateAxis::CaseText(std::size_t i) const {
  const std::int64_t position = first_position + static_cast<std::int64_t>(i) * step;
  return TimeText(form, TickOfPosition(scale, position));
}

CivilDay DateAxis::FirstDay() const {
  const std::int64_t tick = TickOfPosition(scale, first_position);
  return DayFromTick(form.unit == TimeUnit::kSecond ? tick / kSecondsPerDay : tick);
}

bool DateAxis::HasPeriod(TSXDateSpec::PeriodType type) const {
  return std::any_of(periods.begin(), periods.end(),
                     [type](const AxisPeriod& period) { return period.type == type; });
}

std::string DateAxis::Fault() const {
  constexpr std::int64_t kLongestStep = 4'000'000'000;  // increments have 32 bits
  if (step > kLongestStep) return "the times lie too far apart";
  if (CaseCount() / 10 <= row_cases.size()) return "";
  return "the times follow no regular step: the " + std::to_string(row_cases.size()) +
         " times there are would be spread over " + std::to_string(CaseCount()) + " cases (" +
         name + ")";
}

DateAxis MakeDateAxis(const TimeForm& form, const std::vector<std::int64_t>& ticks) {
  DateAxis axis;
  axis.form = form;
  switch (form.unit) {
    case TimeUnit::kNumber:
      MakeSequence(axis, ticks);
      break;
    case TimeUnit::kYear:
      MakeYearParts(axis, ticks, kYears);
      break;
    case TimeUnit::kQuarter:
      MakeYearParts(axis, ticks, kQuarters);
      break;
    case TimeUnit::kMonth:
      MakeYearParts(axis, ticks, kMonths);
      break;
    case TimeUnit::kDay:
      MakeDates(axis, ticks, 1);
      break;
    case TimeUnit::kSecond:
      MakeDates(axis, ticks, kSecondsPerDay);
      break;
  }
  return axis;
}

}  // namespace tsx::cli
