#ifndef TSXPORT_TIMES_DATEAXIS_H_
#define TSXPORT_TIMES_DATEAXIS_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <tsxport/TSXDateSpec.h>

#include "times/CaseScale.h"
#include "times/TimeForm.h"

// The time axis of one series: which calendar its times follow, and which case each time is.
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
// January and February are both month 0, and with two-year steps 1871 is 1870.
namespace tsx::cli {

struct AxisPeriod {
  TSXDateSpec::PeriodType type = TSXDateSpec::SimpleSequence;
  unsigned cycle_length = 0;  // 0 for the base
  unsigned start = 0;         // of the part of the cycle that occurs
  unsigned length = 0;        // of that part; 0 for the whole cycle
  unsigned first = 0;         // index of the first case
};

struct DateAxis {
  std::string name;                 // for people: "monthly", "every 2 weeks"
  std::vector<AxisPeriod> periods;  // coarsest first, at least one
  unsigned increment = 1;           // units of the finest period from case to case
  TimeForm form;
  CaseScale scale;
  std::int64_t first_position = 0;
  std::int64_t step = 1;               // in positions
  std::vector<std::size_t> row_cases;  // the case of each time given, rising; the first is 0

  // Cases from the first to the last time, both included, skipped ones too.
  std::size_t CaseCount() const { return row_cases.empty() ? 0 : row_cases.back() + 1; }
  // Cases that no time names, in rising order.
  std::vector<std::size_t> SkippedCases() const;
  // Cases in one cycle of the finest period; 1 where there is no cycle.
  unsigned SeasonLength() const;
  // The time of case `i`, in the form in which the times were given.
  std::string CaseText(std::size_t i) const;
  // The day of the first case. Only for axes with a Day period.
  CivilDay FirstDay() const;
  bool HasPeriod(TSXDateSpec::PeriodType type) const;
  // Why no series can be told on this axis, for people; empty when all is well. An axis is refused
  // on which fewer than a tenth of the cases would have a time.
  std::string Fault() const;
};

// The axis of strictly rising times, at least one.
DateAxis MakeDateAxis(const TimeForm& form, const std::vector<std::int64_t>& ticks);

}  // namespace tsx::cli

#endif  // TSXPORT_TIMES_DATEAXIS_H_
