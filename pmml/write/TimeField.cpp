#include "pmml/write/TimeField.h"

#include "datespec/PeriodNames.h"
#include "pmml/Tags.h"

namespace tsx::pmml {

namespace {

const char* KindOf(TSXDateSpec::PeriodType type) {
  return type >= TSXDateSpec::Cycle && type <= TSXDateSpec::Day ? val::kDate : val::kTime;
}

}  // namespace

TimeField TimeFieldOf(const TSXDateSpec& spec, const TimeField& before) noexcept {
  TimeField field = before;
  for (unsigned i = 0; i < spec.PeriodCount(); ++i) {
    TSXDateSpec::PeriodType type{};
    unsigned cycleLength = 0;
    unsigned subCycleStart = 0;
    unsigned subCycleLength = 0;
    spec.GetPeriod(i, type, cycleLength, subCycleStart, subCycleLength);
    if (const char* name = FindName(kPeriodNames, type)) field = {name, KindOf(type)};
  }
  return field;
}

TimeField OrDefault(const TimeField& field) {
  if (!field.name.empty() && !field.kind.empty()) return field;
  return {val::kDefaultTimeName, val::kDate};
}

}  // namespace tsx::pmml
