#ifndef TSXPORT_TESTS_SUPPORT_CALENDARS_H_
#define TSXPORT_TESTS_SUPPORT_CALENDARS_H_

#include <tsxport/TSXDateSpec.h>

namespace test {

inline TSXDateSpec Yearly() { return TSXDateSpec(TSXDateSpec::Year); }

// Years of months; the first case is month `month` (0 is January) of year `year`.
inline TSXDateSpec Monthly(unsigned year = 0, unsigned month = 0) {
  TSXDateSpec spec(TSXDateSpec::Year);
  spec.AddPeriod(TSXDateSpec::Month, 12, 0, 0);
  TSXDateSpec::TSXIndexTuple first(spec);
  first.SetIndexes({year, month});
  spec.SetFirstCaseIndex(first);
  return spec;
}

inline TSXDateSpec Hourly() {
  TSXDateSpec spec(TSXDateSpec::Day);
  spec.AddPeriod(TSXDateSpec::Hour, 24, 0, 0);
  return spec;
}

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_CALENDARS_H_
