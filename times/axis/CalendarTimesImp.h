#ifndef TSXPORT_TIMES_AXIS_CALENDARTIMESIMP_H_
#define TSXPORT_TIMES_AXIS_CALENDARTIMESIMP_H_

#include <cstdint>
#include <optional>

#include <tsxtimes/CalendarTimes.h>

#include "times/axis/Periods.h"

namespace tsxtimes {

// What CalendarTimes shares. The way from an instant to a case and back:
//
//   tick  <->  count                  Counts.h: months, seconds or numbers, by the anchor
//   count <->  indexes                Periods.h: what each index is worth, from the anchor's shift
//   on indexes <-> offset <-> case       TSXDateSpec
class CalendarTimesImp {
 public:
  // `weights` are those of the calendar.
  CalendarTimesImp(const TSXDateSpec& spec, const TimeAnchor& anchor, const Weights& weights);

  // Before the object is shared. False: no case can be at that time, see CalendarTimes::StartingAt.
  bool SetFirstCase(std::int64_t tick);
  // Where a document tells the day of its first case, which its calendar may have rounded down.
  void CountDaysFromFirstCaseDay();

  const TSXDateSpec& DateSpec() const { return spec_; }
  const TimeAnchor& Anchor() const { return anchor_; }
  std::int64_t TickOfOffset(std::int64_t offset) const;
  std::optional<std::int64_t> OffsetOfTick(std::int64_t tick) const;

 private:
  bool IsOnePeriod() const { return weights_.count == 1; }
  bool SetFirstIndexes(const IndexValues& indexes);
  std::int64_t StartOfOffset(std::int64_t offset) const;
  std::optional<std::int64_t> OffsetAt(std::int64_t distance) const;

  TSXDateSpec spec_;
  TimeAnchor anchor_;
  Weights weights_;
};

}  // namespace tsxtimes

#endif  // TSXPORT_TIMES_AXIS_CALENDARTIMESIMP_H_
