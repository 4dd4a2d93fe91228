#ifndef TSXTIMES_CALENDARTIMES_H_
#define TSXTIMES_CALENDARTIMES_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <tsxport/TSXDateSpec.h>
#include <tsxtimes/Export.h>
#include <tsxtimes/TimeValue.h>

namespace tsxtimes {

class CalendarTimesImp;

// What a calendar cannot say about the times of its cases. A calendar tells positions, "February
// 2020"; that each case is written with its date, the last day of the month, is told by the anchor.
struct TimeAnchor {
  TimeForm form = {};       // in which the times are told
  std::int64_t stride = 1;  // calendars of one period: units of it in one index
  // From where the first case's position begins to its time: months on calendars of years, quarters
  // and months, seconds on those of weeks to seconds, else numbers.
  std::int64_t shift = 0;
  // Dates and dates with time on calendars of years, quarters and months:
  unsigned month_day = 1;        // day of the month; its last day where it has fewer
  std::int64_t time_of_day = 0;  // seconds after midnight
};

// The times of the cases of a calendar: a TSXDateSpec, and its anchor. The calendar does all the
// counting; this is where its positions stand in time:
//
//   Year 1949                  the year 1949 of our era
//   Quarter, Month 0           the first quarter, January; alone, those of the year 0
//   Week 0, Day 0 in a week    the week, the Sunday before 0001-01-01; weeks start on Sunday
//   Day 0 alone or as base     0001-01-01
//   Hour, Minute, Second 0     the start of the day, hour, minute; alone, of 0001-01-01
//   SimpleSequence 7           the number 7
//
// A document's calendar gives back the times of its cases:
//
//   TSXDateSpec spec(TSXDateSpec::Year);
//   spec.AddPeriod(TSXDateSpec::Month, 12, 0, 0);
//   TSXDateSpec::TSXIndexTuple first(spec);
//   first.SetIndexes({1949, 3});
//   spec.SetFirstCaseIndex(first);
//   CalendarTimes::Of(spec)->CaseText(12);          // "1950-04"
//
// With nothing but the document, what its calendar cannot say is lost, and a time is that at which
// its position begins: a last day of the month comes back as "2020-02", and a day's 17:00 as the
// day. Steps of several units begin at a multiple of the step (see DateAxis.h), save where the
// first case has a day of its own (TSXDateSpec::SetFirstCaseDay), from which the days are then
// counted. Numbers that lie several apart come back counted in steps. Hours, minutes or seconds
// alone, counted from the midnight of a day that documents do not hold, come back on 0001-01-01.
//
// Positions are told as TSXDateSpec tells them: a case is a case offset, the gaps of the calendar
// squeezed out; an offset is a virtual one, gaps counted.
//
// A value that never changes: copies share what is behind it, and may be used on any threads. One
// that has been moved from can only be destroyed or assigned to. Nothing is thrown but
// std::bad_alloc.
class TSXTIMES_EXPORT CalendarTimes {
 public:
  // The times of a calendar as a document holds it: the form is that of its finest period (dates
  // for weeks and days, dates with time for all that is finer).
  // Empty when the calendar's positions are no times: it has a Cycle, an Obs or a nameless period,
  // or a cycle length that is not ours (7 days a week, 24 hours a day ...).
  static std::optional<CalendarTimes> Of(const TSXDateSpec& spec);
  // The same with what is known beside the document. Empty, too, when the form does not suit the
  // calendar: numbers go with a SimpleSequence; years, quarters and months with periods of these;
  // dates and dates with time with any but a SimpleSequence; a stride below 1.
  static std::optional<CalendarTimes> Of(const TSXDateSpec& spec, const TimeAnchor& anchor);

  // The calendar of `spec`'s periods whose first case is at `tick`: sets the first case, rounded
  // down to a multiple of the increment, and the anchor's shift. Gaps are forgotten. Hours, minutes
  // or seconds alone are counted from the midnight before `tick`. Empty as above, and when no case
  // can be at that time: it is negative, on a weekday or hour that the calendar leaves out, not on
  // the day of the month or at the time of day that the anchor tells, or an index takes more than
  // 32 bits.
  static std::optional<CalendarTimes> StartingAt(std::int64_t tick, const TSXDateSpec& spec,
                                                 const TimeAnchor& anchor);

  // Both live as long as any copy of this.
  const TSXDateSpec& DateSpec() const;
  const TimeAnchor& Anchor() const;

  // The time of a case, `i` counted from 0 at the first one. Cases go on after the last one that
  // anybody has observed.
  std::int64_t TickOfCase(std::int64_t i) const;
  std::string CaseText(std::int64_t i) const;
  // The case at that very time; empty when there is none: a gap, a time between two cases, a time
  // before the first.
  std::optional<std::int64_t> CaseOfTick(std::int64_t tick) const;

  // The same for virtual offsets. Those before the first case are negative; where they would lie
  // before the calendar's beginning, the tick is 0.
  std::int64_t TickOfOffset(std::int64_t offset) const;
  std::optional<std::int64_t> OffsetOfTick(std::int64_t tick) const;

 private:
  explicit CalendarTimes(std::shared_ptr<const CalendarTimesImp> imp) : imp_(std::move(imp)) {}

  std::shared_ptr<const CalendarTimesImp> imp_;  // null once it has been moved from
};

}  // namespace tsxtimes

#endif  // TSXTIMES_CALENDARTIMES_H_
