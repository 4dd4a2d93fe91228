// Memory that runs out: nothing leaks, nothing is half done.

#include <gtest/gtest.h>
#include <new>

#include "datespec/Calendars.h"
#include "datespec/write/DateSpecificationElement.h"
#include "support/FailingAllocation.h"

namespace {

using test::AddGaps;
using test::AreSame;
using test::Make;
using test::StartAt;
using test::WithEveryAllocationFailing;
using namespace test::periods;

TSXDateSpec Furnished() {
  TSXDateSpec spec = Make(Week, {{Day, 7}});
  StartAt(spec, {10, 3});
  AddGaps(spec, {2, 5, 9});
  EXPECT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  spec.SetForcedSeasonLength(9);
  return spec;
}

// Lets `change` fail at each of its allocations, each time on a fresh copy, which must then equal
// the original. The verdict is kept until memory is back: a failed EXPECT needs some itself.
template <typename Change>
void ExpectAllOrNothing(const TSXDateSpec& original, Change change) {
  bool unchanged = true;
  WithEveryAllocationFailing(
      [&] {
        TSXDateSpec spec(original);
        try {
          change(spec);
        } catch (const std::bad_alloc&) {
          unchanged = AreSame(spec, original) && spec.CaseOffset(100) == original.CaseOffset(100) &&
                      spec.VirtualCaseOffset(100) == original.VirtualCaseOffset(100);
          throw;
        }
      },
      [&] { EXPECT_TRUE(unchanged); });
}

TEST(OutOfMemory, WhileMakingOrCopying) {
  const TSXDateSpec original = Furnished();
  WithEveryAllocationFailing([&] {
    const TSXDateSpec made(Year);
    EXPECT_TRUE(AreSame(TSXDateSpec(original), original));
  });
}

TEST(OutOfMemory, WhileRefusingObs) {
  WithEveryAllocationFailing([] {
    try {
      const TSXDateSpec spec(Obs);
    } catch (const MCTime::MCStatus& status) {
      EXPECT_EQ(status.GetCode(), 40200U);
    }
  });
}

TEST(OutOfMemory, WhileAddingAPeriodBehind) {
  ExpectAllOrNothing(Furnished(), [](TSXDateSpec& spec) {
    EXPECT_EQ(spec.AddPeriod(Hour, 24, 0, 0).GetCode(), 0U);
  });
}

TEST(OutOfMemory, WhileAddingAPeriodInFront) {
  ExpectAllOrNothing(Make(SimpleSequence, {{Quarter, 4}, {Month, 12}}), [](TSXDateSpec& spec) {
    EXPECT_EQ(spec.AddPeriod(Year, 10, 0, 0).GetCode(), 0U);
  });
}

TEST(OutOfMemory, WhileAddingTheMonthsOfQuarters) {
  ExpectAllOrNothing(Make(Year, {{Quarter, 4}}), [](TSXDateSpec& spec) {
    EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 0).GetCode(), 0U);
  });
}

TEST(OutOfMemory, WhileAddingAGapInTheMiddle) {
  ExpectAllOrNothing(Furnished(),
                     [](TSXDateSpec& spec) { EXPECT_EQ(spec.AddGap(4).GetCode(), 0U); });
}

TEST(OutOfMemory, WhileAddingGapAfterGap) {
  bool together = true;  // both directions know exactly the gaps that were added
  WithEveryAllocationFailing(
      [&] {
        TSXDateSpec spec(Year);
        long added = 0;
        try {
          for (; added < 40; ++added) spec.AddGap(40 - added);
        } catch (const std::bad_alloc&) {
          together = spec.GapCount() == static_cast<unsigned long>(added) &&
                     spec.CaseOffset(100) == 100 - added &&
                     spec.VirtualCaseOffset(100 - added) == 100;
          throw;
        }
      },
      [&] { EXPECT_TRUE(together); });
}

TEST(OutOfMemory, WhileAssigning) {
  const TSXDateSpec source = Furnished();
  ExpectAllOrNothing(Make(Year, {{Month, 12}}), [&](TSXDateSpec& spec) {
    spec = source;
    EXPECT_TRUE(AreSame(spec, source));
  });
}

TEST(OutOfMemory, WhileReadingIndexes) {
  const TSXDateSpec spec = Furnished();
  WithEveryAllocationFailing([&] { EXPECT_EQ(spec.GapIndex(0).GetIndexes().size(), 2U); });
}

TEST(OutOfMemory, WhileMakingTheElement) {
  const TSXDateSpec spec = Furnished();
  const std::string descriptor(100, 'd');
  WithEveryAllocationFailing(
      [&] { EXPECT_NE(tsx::MakeDateSpecification(spec, descriptor, 7), nullptr); });
  EXPECT_TRUE(AreSame(spec, Furnished()));
}

// Counting, moving the first case, replacing a period and asking never need memory.
TEST(Memory, IsNotNeededForCounting) {
  TSXDateSpec spec = Furnished();
  TSXDateSpec::TSXIndexTuple tuple(spec);
  const std::vector<unsigned> indexes{11, 0};
  test::FailAllocationsFrom(0);  // counts from here
  EXPECT_TRUE(tuple.SetIndexes(indexes));
  EXPECT_EQ(tuple.VirtualCaseOffset(), 4);
  EXPECT_EQ(tuple.CaseOffset(), 3);
  EXPECT_EQ(spec.IndexTuple(4).Compare(tuple), 0);
  EXPECT_EQ(spec.SetFirstCaseIndex(tuple).GetCode(), 0U);
  EXPECT_EQ(spec.GapCount(), 2U);
  EXPECT_EQ(spec.AddPeriod(Day, 7, 0, 6).GetCode(), 0U);
  EXPECT_EQ(spec.SetLowestIncrement(3).GetCode(), 0U);
  EXPECT_TRUE(spec.IsEquivalent(spec, true));
  EXPECT_EQ(test::AllocationCount(), 0);
}

}  // namespace
