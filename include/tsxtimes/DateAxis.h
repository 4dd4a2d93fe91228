#ifndef TSXTIMES_DATEAXIS_H_
#define TSXTIMES_DATEAXIS_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <tsxport/TSXDateSpec.h>
#include <tsxtimes/CalendarTimes.h>
#include <tsxtimes/Export.h>
#include <tsxtimes/TimeValue.h>

// The time axis of one series: which calendar its times follow, and which case each time is.
//
//   const TimeForm months{TimeUnit::kMonth};
//   const DateAxis axis = MakeDateAxis(months, {12 * 1949 + 10, 12 * 1949 + 11, 12 * 1950 + 1});
//   axis.name;                        // "monthly"
//   axis.row_cases;                   // {0, 1, 3}: 1949-11, 1949-12, and 1950-02
//   axis.CaseText(2);                 // "1950-01", which no time has named
//   tree.AddDateSpec(MakeDateSpec(axis, {}), "months");
//
// Cases lie a whole number of steps apart; the step is the largest one that meets every time. What
// the calendar becomes (m: the step, in the unit of the times):
//
//   running numbers      SimpleSequence, counted in steps
//   years                Year, increment m
//   quarters, months     Year + Quarter(4) or Month(12), increment m where it divides the year;
//                        Year alone for whole years; else the Quarter or Month alone
//   dates                months where they all stand on the same day of the month (or on its last);
//                        Week for steps of whole weeks; Week + Day(7) for steps of a day, of which
//                        weekends that never occur are left out; else Day alone
//   dates with time      as dates where the time of day is always the same; else Day + Hour(24)
//                        [+ Minute(60) [+ Second(60)]], of which hours (and weekends, for steps of
//                        hours) that never occur are left out; the unit alone where the step does
//                        not divide its cycle, counted from midnight of the first day
//
// Years are years of our era; quarters, months (January), weekdays (Sunday) and hours count from 0,
// weeks and days from the week of, and from, 0001-01-01. Calendars know only multiples of their
// increment, so a step of several units is told by the multiple it falls on: with two-month steps,
// January and February are both month 0, and with two-year steps 1871 is 1870. The axis keeps what
// is lost so in the anchor of its calendar's times.
//
// An axis is a value, and a cheap one to copy but for its rows. Const calls may run side by side.
// Nothing is thrown but std::bad_alloc, save where a function says so.
namespace tsxtimes {

struct TSXTIMES_EXPORT DateAxis {
  std::string name;                    // for people: "monthly", "every 2 weeks"
  CalendarTimes calendar;              // without gaps
  std::vector<std::size_t> row_cases;  // the case of each time given, rising; the first is 0
  // The times lie further apart than a calendar can say; its increments have 32 bits.
  bool is_too_wide = false;

  // The form in which the times were given.
  const TimeForm& Form() const { return calendar.Anchor().form; }
  // Cases from the first to the last time, both included, skipped ones too.
  std::size_t CaseCount() const { return row_cases.empty() ? 0 : row_cases.back() + 1; }
  // Cases that no time names, in rising order.
  std::vector<std::size_t> SkippedCases() const;
  // Cases in one cycle of the finest period; 1 where there is no cycle.
  unsigned SeasonLength() const { return calendar.DateSpec().DefaultSeasonLength(); }
  // The time of case `i`, in the form in which the times were given. Cases go on after the last.
  std::string CaseText(std::size_t i) const;
  // The case that a time names, which need not be one that a row has: in the form of the axis, or
  // by its number from 1. Numbers of four digits (see MayBeYear) are years where the times are;
  // where times are numbers, they are those. Empty when no case has that time.
  std::optional<std::size_t> CaseOf(const TimeValue& time) const;
  // The day of the first case. Only for axes with a Day period.
  CivilDay FirstDay() const;
  bool HasPeriod(TSXDateSpec::PeriodType type) const;
  TSXDateSpec::PeriodType FinestPeriod() const;
  // Why no series can be told on this axis, for people; empty when all is well. An axis is refused
  // on which fewer than a tenth of the cases would have a time.
  std::string Fault() const;
};

// The axis of strictly rising ticks, at least one, of the form's unit; none is negative, and none
// is beyond the year 9999 or the largest number that ParseTime() takes. Throws std::logic_error for
// a tick that lies before the first one, or is negative.
TSXTIMES_EXPORT DateAxis MakeDateAxis(const TimeForm& form, const std::vector<std::int64_t>& ticks);

struct DateSpecOptions {
  unsigned season_length = 0;    // 0: the calendar's own
  bool skipped_as_gaps = false;  // skipped cases become gaps rather than cases without a value
  bool first_case_day = false;   // only for an axis with a Day period
};

// The axis as a date specification: its periods, increment and first case. A season length that
// differs from the calendar's is forced. Only for an axis without a fault. Throws std::logic_error
// when the calendar has no place for what is asked: gaps in a SimpleSequence, a first case day
// without a Day period.
TSXTIMES_EXPORT TSXDateSpec MakeDateSpec(const DateAxis& axis, const DateSpecOptions& options);

}  // namespace tsxtimes

#endif  // TSXTIMES_DATEAXIS_H_
