#include <tsxtimes/DateAxis.h>

#include "times/axis/Require.h"

namespace tsxtimes {

TSXDateSpec MakeDateSpec(const DateAxis& axis, const DateSpecOptions& options) {
  TSXDateSpec spec = axis.calendar.DateSpec();
  const unsigned season = options.season_length;
  if (season != 0 && season != spec.DefaultSeasonLength()) spec.SetForcedSeasonLength(season);
  if (options.skipped_as_gaps) {
    for (const std::size_t skipped : axis.SkippedCases()) {
      Require(!spec.AddGap(static_cast<long>(skipped)).IsError(), "gap");
    }
  }
  if (options.first_case_day) {
    const CivilDay day = axis.FirstDay();
    Require(spec.SetFirstCaseDay(day.day, day.month, static_cast<unsigned>(day.year)), "first day");
  }
  return spec;
}

}  // namespace tsxtimes
