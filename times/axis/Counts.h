#ifndef TSXPORT_TIMES_AXIS_COUNTS_H_
#define TSXPORT_TIMES_AXIS_COUNTS_H_

#include <cstdint>
#include <optional>

#include <tsxport/TSXDateSpec.h>
#include <tsxtimes/CalendarTimes.h>

// What calendars count evenly: numbers, months, or seconds since 0001-01-01. From a count to the
// next is always the same, whatever the lengths of months do to ticks.
namespace tsxtimes {

enum class CountKind { kNone, kNumbers, kMonths, kSeconds };

// What a calendar with this base counts; kNone for a base that is no span of time.
CountKind CountKindOf(TSXDateSpec::PeriodType base);

// Months, or seconds, in one unit of a period; 1 for a SimpleSequence, 0 for what is no span of
// time.
std::int64_t SpanOf(TSXDateSpec::PeriodType type);

// Whether times of this unit can be told by such counts.
bool Suits(CountKind kind, TimeUnit unit);

// The count at a tick; empty for a date that stands for no month, as the anchor has it, and for a
// tick so far off that its count might not fit 64 bits.
std::optional<std::int64_t> CountOfTick(CountKind kind, const TimeAnchor& anchor,
                                        std::int64_t tick);
std::int64_t TickOfCount(CountKind kind, const TimeAnchor& anchor, std::int64_t count);

}  // namespace tsxtimes

#endif  // TSXPORT_TIMES_AXIS_COUNTS_H_
