#ifndef TSXPORT_TIMES_DATESPECMAKER_H_
#define TSXPORT_TIMES_DATESPECMAKER_H_

#include <tsxport/TSXDateSpec.h>

#include "times/DateAxis.h"

namespace tsx::cli {

struct DateSpecOptions {
  unsigned season_length = 0;    // 0: the calendar's own
  bool skipped_as_gaps = false;  // skipped cases become gaps rather than cases without a value
  bool first_case_day = false;   // only for an axis with a Day period
};

// The axis as a date specification: its periods, increment and first case. A season length that
// differs from the calendar's is forced.
TSXDateSpec MakeDateSpec(const DateAxis& axis, const DateSpecOptions& options);

}  // namespace tsx::cli

#endif  // TSXPORT_TIMES_DATESPECMAKER_H_
