#include "times/axis/AxisPlan.h"

#include <algorithm>
#include <numeric>

#include "times/axis/WorkingTime.h"

namespace tsxtimes {
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

// `step` in ticks. Increments have 32 bits.
bool IsTooWide(std::int64_t step) {
  constexpr std::int64_t kLongestStep = 4'000'000'000;
  return step > kLongestStep;
}

void PlanSequence(AxisPlan& plan, const Ticks& ticks) {
  const std::int64_t step = StepOf(ticks);
  plan.name = step == 1 ? "numbered" : "numbered in steps of " + std::to_string(step);
  plan.periods = {{TSXDateSpec::SimpleSequence}};
  plan.anchor.stride = step;
}

// A period of which so many make a year.
struct YearPart {
  TSXDateSpec::PeriodType type;
  unsigned per_year;
  const char* single;  // "monthly"
  const char* plural;  // "months"
};

constexpr YearPart kYears = {TSXDateSpec::Year, 1, "yearly", "years"};
constexpr YearPart kQuarters = {TSXDateSpec::Quarter, 4, "quarterly", "quarters"};
constexpr YearPart kMonths = {TSXDateSpec::Month, 12, "monthly", "months"};

// `positions` count parts of years.
void PlanYearParts(AxisPlan& plan, const Ticks& positions, const YearPart& part) {
  const std::int64_t step = StepOf(positions);
  plan.name = Rhythm(step, part.single, part.plural);
  plan.increment = step;
  if (step % part.per_year == 0) {
    plan.increment = step / part.per_year;
    plan.name = Rhythm(plan.increment, kYears.single, kYears.plural);
    plan.periods = {{TSXDateSpec::Year}};
  } else if (part.per_year % step == 0) {
    plan.periods = {{TSXDateSpec::Year}, {part.type, part.per_year}};
  } else {
    plan.periods = {{part.type}};
  }
}

void PlanMonthsOfDates(AxisPlan& plan, const Ticks& ticks, std::int64_t ticksPerDay,
                       unsigned monthDay) {
  Ticks months;
  months.reserve(ticks.size());
  for (const std::int64_t tick : ticks) {
    const CivilDay date = DayFromTick(tick / ticksPerDay);
    months.push_back(12 * date.year + date.month - 1);
  }
  plan.anchor.month_day = monthDay;
  plan.anchor.time_of_day = ticks.front() % ticksPerDay;
  PlanYearParts(plan, months, kMonths);
}

Period WeekdayPeriod(const WorkingTime& working) {
  return {TSXDateSpec::Day, 7, working.first_weekday, working.weekdays < 7 ? working.weekdays : 0};
}

Period HourPeriod(const WorkingTime& working) {
  return {TSXDateSpec::Hour, 24, working.first_hour, working.hours < 24 ? working.hours : 0};
}

void PlanDays(AxisPlan& plan, const Ticks& ticks, std::int64_t ticksPerDay) {
  const std::int64_t step = std::max<std::int64_t>(StepOf(ticks) / ticksPerDay, 1);
  if (step == 1) {
    const WorkingTime working = FindWorkingDays(ticks, ticksPerDay);
    plan.name = WorkingName("daily", working);
    plan.periods = {{TSXDateSpec::Week}, WeekdayPeriod(working)};
    return;
  }
  const bool weeks = step % 7 == 0;
  plan.name = weeks ? Rhythm(step / 7, "weekly", "weeks") : Rhythm(step, "daily", "days");
  plan.increment = weeks ? step / 7 : step;
  plan.periods = {{weeks ? TSXDateSpec::Week : TSXDateSpec::Day}};
  plan.is_too_wide = IsTooWide(step * ticksPerDay);
}

void PlanHours(AxisPlan& plan, const Ticks& ticks, std::int64_t step) {
  const WorkingTime working = FindWorkingHours(ticks, step);
  plan.name = WorkingName(Rhythm(step, "hourly", "hours"), working);
  plan.increment = step;
  if (working.weekdays < 7) {
    plan.periods = {{TSXDateSpec::Week}, WeekdayPeriod(working)};
  } else {
    plan.periods = {{TSXDateSpec::Day}};
  }
  plan.periods.push_back(HourPeriod(working));
}

// A part of an hour, or the hour itself.
struct ClockPart {
  TSXDateSpec::PeriodType type;
  std::int64_t seconds;
  unsigned per_cycle;
  const char* single;
  const char* plural;
};

constexpr ClockPart kHours = {TSXDateSpec::Hour, kSecondsPerHour, 24, "hourly", "hours"};
constexpr ClockPart kMinutes = {TSXDateSpec::Minute, kSecondsPerMinute, 60, "every minute",
                                "minutes"};
constexpr ClockPart kSeconds = {TSXDateSpec::Second, 1, 60, "every second", "seconds"};

// Steps of minutes or seconds, and steps that do not divide their cycle.
void PlanClock(AxisPlan& plan, const ClockPart& part, std::int64_t step) {
  plan.name = Rhythm(step, part.single, part.plural);
  plan.increment = step;
  plan.is_too_wide = IsTooWide(step * part.seconds);
  if (part.per_cycle % step != 0) {
    plan.periods = {{part.type}};
    return;
  }
  plan.periods = {{TSXDateSpec::Day}, {TSXDateSpec::Hour, 24}, {TSXDateSpec::Minute, 60}};
  if (part.type == TSXDateSpec::Second) plan.periods.push_back({TSXDateSpec::Second, 60});
}

void PlanTimesOfDay(AxisPlan& plan, const Ticks& ticks) {
  const std::int64_t step = StepOf(ticks);
  if (step % kSecondsPerHour == 0 && 24 % (step / kSecondsPerHour) == 0) {
    return PlanHours(plan, ticks, step / kSecondsPerHour);
  }
  const ClockPart& part = step % kSecondsPerHour == 0     ? kHours
                          : step % kSecondsPerMinute == 0 ? kMinutes
                                                          : kSeconds;
  PlanClock(plan, part, step / part.seconds);
}

void PlanDates(AxisPlan& plan, const Ticks& ticks, std::int64_t ticksPerDay) {
  const std::int64_t timeOfDay = ticks.front() % ticksPerDay;
  const bool sameTimeOfDay = std::all_of(ticks.begin(), ticks.end(), [&](std::int64_t tick) {
    return tick % ticksPerDay == timeOfDay;
  });
  if (!sameTimeOfDay) return PlanTimesOfDay(plan, ticks);
  if (const auto monthDay = FindMonthDay(ticks, ticksPerDay)) {
    return PlanMonthsOfDates(plan, ticks, ticksPerDay, *monthDay);
  }
  PlanDays(plan, ticks, ticksPerDay);
}

}  // namespace

AxisPlan PlanAxis(const TimeForm& form, const std::vector<std::int64_t>& ticks) {
  AxisPlan plan;
  plan.anchor.form = form;
  switch (form.unit) {
    case TimeUnit::kNumber:
      PlanSequence(plan, ticks);
      break;
    case TimeUnit::kYear:
      PlanYearParts(plan, ticks, kYears);
      break;
    case TimeUnit::kQuarter:
      PlanYearParts(plan, ticks, kQuarters);
      break;
    case TimeUnit::kMonth:
      PlanYearParts(plan, ticks, kMonths);
      break;
    case TimeUnit::kDay:
      PlanDates(plan, ticks, 1);
      break;
    case TimeUnit::kSecond:
      PlanDates(plan, ticks, kSecondsPerDay);
      break;
  }
  return plan;
}

}  // namespace tsxtimes
