#ifndef TSXPORT_TIMES_AXIS_AXISPLAN_H_
#define TSXPORT_TIMES_AXIS_AXISPLAN_H_

#include <cstdint>
#include <string>
#include <vector>

#include <tsxtimes/CalendarTimes.h>

#include "times/axis/Periods.h"

namespace tsxtimes {

// Which calendar times follow: all of an axis but where its cases lie.
struct AxisPlan {
  std::string name;
  std::vector<Period> periods;  // coarsest first, at least one
  std::int64_t increment = 1;   // units of the finest period from case to case
  TimeAnchor anchor;            // its shift is not known yet
  bool is_too_wide = false;     // see DateAxis; then there is one period
};

// Of strictly rising ticks, at least one. The rules stand in DateAxis.h.
AxisPlan PlanAxis(const TimeForm& form, const std::vector<std::int64_t>& ticks);

}  // namespace tsxtimes

#endif  // TSXPORT_TIMES_AXIS_AXISPLAN_H_
