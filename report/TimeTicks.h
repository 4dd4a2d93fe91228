#ifndef TSXPORT_REPORT_TIMETICKS_H_
#define TSXPORT_REPORT_TIMETICKS_H_

#include <cstddef>
#include <string>
#include <vector>

#include <tsxtimes/DateAxis.h>

namespace tsx::report {

// A mark on the time axis of a plot, at a case counted from the first.
struct TimeTick {
  std::size_t at = 0;
  std::string label;
};

// Where the first `count` cases of an axis (those after its last one continue it) begin a round
// period: a year, every second year, ..., a month, ... whichever gives the most marks whose labels
// take up no more than `room` characters, with some space between them.
std::vector<TimeTick> MakeTimeTicks(const tsxtimes::DateAxis& axis, std::size_t count,
                                    std::size_t room);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_TIMETICKS_H_
