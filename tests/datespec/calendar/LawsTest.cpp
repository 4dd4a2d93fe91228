// Small calendars, walked whole. Numbers are not asked of the library but counted: positions are
// made in order, finest index fastest, and the k-th that the calendar admits must have number k.

#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "datespec/Calendars.h"
#include "datespec/Laws.h"

namespace {

using test::AddGaps;
using test::Indexes;
using test::Make;
using test::Tuple;
using namespace test::periods;

constexpr unsigned kBaseUnits = 4;  // how many years, weeks ... are walked

struct Case {
  const char* name;
  std::function<TSXDateSpec()> make;
  unsigned per_base_unit;  // positions in one unit of the base, worked by hand
};

void PrintTo(const Case& calendar, std::ostream* os) { *os << calendar.name; }

TSXDateSpec InSteps(TSXDateSpec spec, unsigned increment) {
  EXPECT_EQ(spec.SetLowestIncrement(increment).GetCode(), 0U);
  return spec;
}

const Case kSequences[] = {
    {"Sequence", [] { return Make(SimpleSequence); }, 1},
    {"MonthsInQuartersInYears",
     [] {
       return Make(SimpleSequence, {{Quarter, 4}, {Month, 12}, {Year, 3}});
     },
     36},
};

const Case kCalendars[] = {
    {"Years", [] { return Make(Year); }, 1},
    {"Quarters",
     [] {
       return Make(Year, {{Quarter, 4}});
     },
     4},
    {"Months",
     [] {
       return Make(Year, {{Month, 12}});
     },
     12},
    {"EveryFourthMonth",
     [] {
       return InSteps(Make(Year, {{Month, 12}}), 4);
     },
     3},
    {"SummerMonths",
     [] {
       return Make(Year, {{Month, 12, 5, 4}});
     },
     4},
    {"EverySecondSummerMonth",
     [] {
       return InSteps(Make(Year, {{Month, 12, 5, 4}}), 2);
     },
     2},
    {"MonthsInQuarters",
     [] {
       return Make(Year, {{Quarter, 4}, {Month, 12}});
     },
     12},
    {"EverySixthMonthInQuarters",
     [] {
       return InSteps(Make(Year, {{Quarter, 4}, {Month, 12}}), 6);
     },
     2},
    {"HalfYearInQuarters",
     [] {
       return Make(Year, {{Quarter, 4, 1, 2}, {Month, 12, 3, 6}});
     },
     6},
    {"ObservationsInMonthsInQuarters",
     [] {
       return Make(Year, {{Quarter, 2}, {Month, 6}, {Obs, 5, 2, 3}});
     },
     18},
    {"Workdays",
     [] {
       return Make(Week, {{Day, 7, 1, 5}});
     },
     5},
    {"OfficeHours",
     [] {
       return Make(Week, {{Day, 7, 1, 5}, {Hour, 24, 8, 9}});
     },
     45},
    {"EveryThirdOfficeHour",
     [] {
       return InSteps(Make(Week, {{Day, 7, 1, 5}, {Hour, 24, 8, 9}}), 3);
     },
     15},
    {"OneIndexInUse",
     [] {
       return Make(Cycle, {{Week, 5, 3, 1}, {Day, 4}});
     },
     4},
};

// Calls `visit` with all indexes in order, whether the calendar admits them or not.
void ForAllIndexes(const TSXDateSpec& spec, const std::function<void(const Indexes&)>& visit) {
  Indexes indexes(spec.PeriodCount(), 0);
  Indexes ends{kBaseUnits};
  for (unsigned i = 1; i < spec.PeriodCount(); ++i) {
    ends.push_back(test::PeriodOf(spec, i).cycle_length + 1);
  }
  while (true) {
    visit(indexes);
    std::size_t i = indexes.size();
    while (i > 0 && ++indexes[i - 1] == ends[i - 1]) indexes[--i] = 0;
    if (i == 0) return;
  }
}

std::vector<Tuple> PositionsInOrder(const TSXDateSpec& spec) {
  std::vector<Tuple> positions;
  ForAllIndexes(spec, [&](const Indexes& indexes) {
    Tuple tuple(spec);
    if (tuple.SetIndexes(indexes)) positions.push_back(tuple);
  });
  return positions;
}

class WholeCalendar : public testing::TestWithParam<Case> {};
class WholeCalendarWithGaps : public WholeCalendar {};  // sequences have none

TEST_P(WholeCalendar, HasThePositionsItShould) {
  const TSXDateSpec spec = GetParam().make();
  EXPECT_EQ(PositionsInOrder(spec).size(), std::size_t{kBaseUnits} * GetParam().per_base_unit);
}

TEST_P(WholeCalendar, NumbersThemInOrderWithoutAHole) {
  const TSXDateSpec spec = GetParam().make();
  long number = 0;
  for (const Tuple& position : PositionsInOrder(spec)) {
    EXPECT_EQ(position.VirtualCaseOffset(), number);
    EXPECT_EQ(spec.IndexTuple(number).GetIndexes(), position.GetIndexes());
    ++number;
  }
}

TEST_P(WholeCalendar, CountsFromAnyFirstCase) {
  TSXDateSpec spec = GetParam().make();
  const std::vector<Tuple> positions = PositionsInOrder(spec);
  const auto count = static_cast<long>(positions.size());
  for (long first = 0; first < count; ++first) {
    const Tuple& start = positions[static_cast<std::size_t>(first)];
    ASSERT_EQ(spec.SetFirstCaseIndex(start).GetCode(), 0U);
    ASSERT_EQ(spec.FirstCaseIndex().GetIndexes(), start.GetIndexes());
    ASSERT_EQ(spec.NumberFromOffset(0), static_cast<unsigned long>(first));
    for (long number = 0; number < count; ++number) {
      const Tuple& position = positions[static_cast<std::size_t>(number)];
      ASSERT_EQ(position.VirtualCaseOffset(), number - first);
      ASSERT_EQ(spec.IndexTuple(number - first).Compare(position), 0);
      ASSERT_EQ(test::BrokenOrderLaw(start, position), nullptr);
    }
  }
}

TEST_P(WholeCalendarWithGaps, KeepsTheLaws) {
  // Every set of gaps among the offsets 1 to 7.
  for (unsigned set = 0; set < 128; ++set) {
    TSXDateSpec spec = GetParam().make();
    for (long gap = 1; gap <= 7; ++gap) {
      if ((set >> (gap - 1) & 1) != 0) AddGaps(spec, {gap});
    }
    for (long offset = -10; offset <= 20; ++offset) {
      ASSERT_STREQ(test::BrokenLaw(spec, offset), nullptr) << "offset " << offset << " set " << set;
    }
  }
}

TEST_P(WholeCalendarWithGaps, KeepsThemWhereTheyAreWhenTheFirstCaseMovesOn) {
  const TSXDateSpec original = GetParam().make();
  const long count = kBaseUnits * static_cast<long>(GetParam().per_base_unit);
  for (long first = 1; first < count; ++first) {
    TSXDateSpec spec = original;
    for (long gap = 1; gap < count; gap += 2) AddGaps(spec, {gap});
    const Tuple start = spec.IndexTuple(first);
    ASSERT_EQ(spec.SetFirstCaseIndex(start).GetCode(), 0U);
    std::vector<long> expected;
    for (long gap = 1; gap < count; gap += 2) {
      if (gap > first) expected.push_back(gap - first);
    }
    ASSERT_EQ(test::GapsOf(spec), expected);
    for (unsigned long i = 0; i < spec.GapCount(); ++i) {
      ASSERT_EQ(spec.GapIndex(i).GetIndexes(),
                original.IndexTuple(first + expected[i]).GetIndexes());
    }
  }
}

std::string NameOf(const testing::TestParamInfo<Case>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Sequence, WholeCalendar, testing::ValuesIn(kSequences), NameOf);
INSTANTIATE_TEST_SUITE_P(Calendar, WholeCalendar, testing::ValuesIn(kCalendars), NameOf);
INSTANTIATE_TEST_SUITE_P(Calendar, WholeCalendarWithGaps, testing::ValuesIn(kCalendars), NameOf);

TEST(Laws, HoldAtTheEndsOfLong) {
  constexpr long kMost = std::numeric_limits<long>::max();
  constexpr long kLeast = std::numeric_limits<long>::min();
  TSXDateSpec spec = Make(Week, {{Day, 4294967295U}, {Hour, 4294967295U}});
  test::StartAt(spec, {0, 2147483648U, 2147483647U});
  AddGaps(spec, {1, 2, kMost - 1, kMost});
  for (const long offset : {kLeast, kLeast + 1, -kMost + 2, -1L, 0L, 1L, 2L, 3L, kMost - 4,
                            kMost - 3, kMost - 2, kMost - 1, kMost}) {
    EXPECT_STREQ(test::BrokenLaw(spec, offset), nullptr) << offset;
  }
}

TEST(Laws, HoldWhereOnlyTheIncrementKeepsOffsetsInLong) {
  constexpr long kMost = std::numeric_limits<long>::max();
  TSXDateSpec spec = InSteps(Make(Week, {{Day, 4294967295U}, {Hour, 4294967295U}}), 4294967295U);
  test::StartAt(spec, {1, 4, 0});
  for (const long offset : {-1L, 0L, 1L, kMost - 4, kMost - 1, kMost}) {
    EXPECT_STREQ(test::BrokenLaw(spec, offset), nullptr) << offset;
  }
}

}  // namespace
