#ifndef TSXPORT_TESTS_DATESPEC_CALENDARS_H_
#define TSXPORT_TESTS_DATESPEC_CALENDARS_H_

#include <gtest/gtest.h>
#include <ostream>
#include <vector>

#include <tsxport/TSXDateSpec.h>

#include "datespec/Laws.h"
#include "support/Calendars.h"

// Calendars to test with, and short ways to look at them.
namespace test {

// The period types by their bare names.
namespace periods {
inline constexpr auto SimpleSequence = TSXDateSpec::SimpleSequence;
inline constexpr auto Cycle = TSXDateSpec::Cycle;
inline constexpr auto Year = TSXDateSpec::Year;
inline constexpr auto Quarter = TSXDateSpec::Quarter;
inline constexpr auto Month = TSXDateSpec::Month;
inline constexpr auto Week = TSXDateSpec::Week;
inline constexpr auto Day = TSXDateSpec::Day;
inline constexpr auto Hour = TSXDateSpec::Hour;
inline constexpr auto Minute = TSXDateSpec::Minute;
inline constexpr auto Second = TSXDateSpec::Second;
inline constexpr auto Obs = TSXDateSpec::Obs;
}  // namespace periods

using Tuple = TSXDateSpec::TSXIndexTuple;
using Indexes = std::vector<unsigned>;

struct Added {
  TSXDateSpec::PeriodType type;
  unsigned cycle_length;
  unsigned start = 0;
  unsigned length = 0;
};

inline TSXDateSpec Make(TSXDateSpec::PeriodType base, const std::vector<Added>& periods = {}) {
  TSXDateSpec spec(base);
  for (const Added& p : periods) {
    EXPECT_EQ(spec.AddPeriod(p.type, p.cycle_length, p.start, p.length).GetCode(), 0U);
  }
  return spec;
}

inline TSXDateSpec MonthsInQuarters() {
  return Make(TSXDateSpec::Year, {{TSXDateSpec::Quarter, 4}, {TSXDateSpec::Month, 12}});
}
inline TSXDateSpec Workdays() {
  return Make(TSXDateSpec::Week, {{TSXDateSpec::Day, 7, 1, 5}});  // Monday is 1
}

// A tuple of `spec` at `indexes`, which must be valid there.
inline Tuple At(const TSXDateSpec& spec, const Indexes& indexes) {
  Tuple tuple(spec);
  EXPECT_TRUE(tuple.SetIndexes(indexes));
  return tuple;
}

inline void StartAt(TSXDateSpec& spec, const Indexes& indexes) {
  EXPECT_EQ(spec.SetFirstCaseIndex(At(spec, indexes)).GetCode(), 0U);
}

inline void AddGaps(TSXDateSpec& spec, const std::vector<long>& offsets) {
  for (const long offset : offsets) EXPECT_EQ(spec.AddGap(offset).GetCode(), 0U);
}

// A period as GetPeriod tells it.
struct Told {
  TSXDateSpec::PeriodType type = TSXDateSpec::SimpleSequence;
  unsigned cycle_length = 0;
  unsigned start = 0;
  unsigned length = 0;
  bool operator==(const Told&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Told& p) {
  return out << "{" << p.type << ", " << p.cycle_length << ", " << p.start << ", " << p.length
             << "}";
}

inline Told PeriodOf(const TSXDateSpec& spec, unsigned index) {
  Told told;
  EXPECT_EQ(spec.GetPeriod(index, told.type, told.cycle_length, told.start, told.length), 0U);
  return told;
}

inline std::vector<TSXDateSpec::PeriodType> TypesOf(const TSXDateSpec& spec) {
  std::vector<TSXDateSpec::PeriodType> types;
  for (unsigned i = 0; i < spec.PeriodCount(); ++i) types.push_back(PeriodOf(spec, i).type);
  return types;
}

inline std::vector<unsigned> FirstCaseDayOf(const TSXDateSpec& spec) {
  std::vector<unsigned> date(3);
  spec.GetFirstCaseDay(date[0], date[1], date[2]);
  return date;
}

inline long FirstCaseNumberOf(const TSXDateSpec& spec) { return -spec.OffsetFromNumber(0); }

inline std::vector<long> GapsOf(const TSXDateSpec& spec) {
  std::vector<long> offsets;
  for (unsigned long i = 0; i < spec.GapCount(); ++i) {
    offsets.push_back(spec.GapIndex(i).VirtualCaseOffset());
  }
  return offsets;
}

}  // namespace test

#endif  // TSXPORT_TESTS_DATESPEC_CALENDARS_H_
