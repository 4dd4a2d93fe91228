#include "times/DateSpecMaker.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace tsx::cli {
namespace {

// An axis is made so that its calendar is accepted; if it is not, that is our mistake.
void Require(bool accepted, const char* what) {
  if (!accepted) throw std::logic_error(std::string("internal error: calendar refused: ") + what);
}

void AddPeriods(TSXDateSpec& spec, const DateAxis& axis) {
  for (std::size_t i = 1; i < axis.periods.size(); ++i) {
    const AxisPeriod& period = axis.periods[i];
    const MCTime::MCStatus status =
        spec.AddPeriod(period.type, period.cycle_length, period.start, period.length);
    Require(!status.IsError(), "period");
  }
  if (axis.increment == 1) return;
  Require(!spec.SetLowestIncrement(axis.increment).IsError(), "increment");
}

void SetFirstCase(TSXDateSpec& spec, const DateAxis& axis) {
  std::vector<unsigned> indexes;
  for (const AxisPeriod& period : axis.periods) indexes.push_back(period.first);
  TSXDateSpec::TSXIndexTuple first(spec);
  Require(first.SetIndexes(indexes), "first case");
  Require(!spec.SetFirstCaseIndex(first).IsError(), "first case");
}

}  // namespace

TSXDateSpec MakeDateSpec(const DateAxis& axis, const DateSpecOptions& options) {
  TSXDateSpec spec(axis.periods.front().type);
  AddPeriods(spec, axis);
  SetFirstCase(spec, axis);
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

}  // namespace tsx::cli
