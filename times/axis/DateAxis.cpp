#include <tsxtimes/DateAxis.h>

#include "times/axis/AxisPlan.h"
#include "times/axis/Periods.h"
#include "times/axis/Require.h"

namespace tsxtimes {
namespace {

TSXDateSpec SpecOf(const AxisPlan& plan) {
  TSXDateSpec spec(plan.periods.front().type);
  for (std::size_t i = 1; i < plan.periods.size(); ++i) {
    const Period& period = plan.periods[i];
    const MCTime::MCStatus status =
        spec.AddPeriod(period.type, period.cycle_length, period.start, period.length);
    Require(!status.IsError(), "period");
  }
  if (plan.increment == 1 || plan.is_too_wide) return spec;
  Require(!spec.SetLowestIncrement(static_cast<unsigned>(plan.increment)).IsError(), "increment");
  return spec;
}

// The calendar of the plan, from the first tick on. Where the step does not fit an increment, each
// index stands for a whole one.
CalendarTimes CalendarOf(AxisPlan& plan, std::int64_t firstTick) {
  if (plan.is_too_wide) plan.anchor.stride = plan.increment;
  const auto calendar = CalendarTimes::StartingAt(firstTick, SpecOf(plan), plan.anchor);
  Require(calendar.has_value(), "first case");
  return *calendar;
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

std::string DateAxis::CaseText(std::size_t i) const {
  return calendar.CaseText(static_cast<std::int64_t>(i));
}

std::optional<std::size_t> DateAxis::CaseOf(const TimeValue& time) const {
  const TimeUnit unit = Form().unit;
  const bool isNumber = time.form.unit == TimeUnit::kNumber;
  const bool isYear = isNumber && unit == TimeUnit::kYear && MayBeYear(time.tick);
  if (time.form.unit == unit || isYear) {
    const std::optional<std::int64_t> found = calendar.CaseOfTick(time.tick);
    return found ? std::optional(static_cast<std::size_t>(*found)) : std::nullopt;
  }
  if (!isNumber || time.tick == 0) return std::nullopt;
  return static_cast<std::size_t>(time.tick - 1);
}

CivilDay DateAxis::FirstDay() const {
  const std::int64_t tick = calendar.TickOfCase(0);
  return DayFromTick(Form().unit == TimeUnit::kSecond ? tick / kSecondsPerDay : tick);
}

bool DateAxis::HasPeriod(TSXDateSpec::PeriodType type) const {
  const TSXDateSpec& spec = calendar.DateSpec();
  for (unsigned i = 0; i < spec.PeriodCount(); ++i) {
    if (PeriodOf(spec, i).type == type) return true;
  }
  return false;
}

TSXDateSpec::PeriodType DateAxis::FinestPeriod() const {
  return FinestPeriodOf(calendar.DateSpec()).type;
}

std::string DateAxis::Fault() const {
  if (is_too_wide) return "the times lie too far apart";
  if (CaseCount() / 10 <= row_cases.size()) return "";
  return "the times follow no regular step: the " + std::to_string(row_cases.size()) +
         " times there are would be spread over " + std::to_string(CaseCount()) + " cases (" +
         name + ")";
}

DateAxis MakeDateAxis(const TimeForm& form, const std::vector<std::int64_t>& ticks) {
  AxisPlan plan = PlanAxis(form, ticks);
  const CalendarTimes calendar = CalendarOf(plan, ticks.front());
  DateAxis axis{plan.name, calendar, {}, plan.is_too_wide};
  axis.row_cases.reserve(ticks.size());
  for (const std::int64_t tick : ticks) {
    const std::optional<std::int64_t> at = calendar.OffsetOfTick(tick);
    Require(at && *at >= 0, "time");
    axis.row_cases.push_back(static_cast<std::size_t>(*at));
  }
  return axis;
}

}  // namespace tsxtimes
