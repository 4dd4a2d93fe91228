// Offsets, numbers, gaps and the first case.

#include <gtest/gtest.h>
#include <limits>

#include "datespec/Calendars.h"
#include "datespec/calendar/MixedRadix.h"

namespace {

using test::AddGaps;
using test::At;
using test::GapsOf;
using test::Indexes;
using test::Make;
using test::Monthly;
using test::MonthsInQuarters;
using test::StartAt;
using test::Tuple;
using test::Yearly;
using namespace test::periods;
using Offsets = std::vector<long>;

constexpr unsigned kMostUnsigned = std::numeric_limits<unsigned>::max();
constexpr long kMost = std::numeric_limits<long>::max();
constexpr long kLeast = std::numeric_limits<long>::min();

TEST(VirtualOffset, CountsStepsFromTheFirstCase) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  EXPECT_EQ(At(spec, {1999, 3}).VirtualCaseOffset(), 0);
  EXPECT_EQ(At(spec, {1999, 4}).VirtualCaseOffset(), 1);
  EXPECT_EQ(At(spec, {2000, 2}).VirtualCaseOffset(), 11);
  EXPECT_EQ(At(spec, {2001, 0}).VirtualCaseOffset(), 21);
}

TEST(VirtualOffset, IsNegativeBeforeTheFirstCase) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  EXPECT_EQ(At(spec, {1999, 2}).VirtualCaseOffset(), -1);
  EXPECT_EQ(At(spec, {1998, 3}).VirtualCaseOffset(), -12);
  EXPECT_EQ(At(spec, {0, 0}).VirtualCaseOffset(), -(1999 * 12 + 3));
}

TEST(VirtualOffset, SkipsTheQuarter) {
  TSXDateSpec spec = MonthsInQuarters();
  StartAt(spec, {1999, 1, 4});
  EXPECT_EQ(At(spec, {1999, 3, 11}).VirtualCaseOffset(), 7);
  EXPECT_EQ(At(spec, {2000, 1, 4}).VirtualCaseOffset(), 12);
}

TEST(VirtualOffset, CountsTheIndexesInUseOnly) {
  TSXDateSpec spec = test::Workdays();
  StartAt(spec, {10, 4});
  EXPECT_EQ(At(spec, {10, 5}).VirtualCaseOffset(), 1);
  EXPECT_EQ(At(spec, {11, 1}).VirtualCaseOffset(), 2) << "the weekend has no cases";
}

TEST(VirtualOffset, CountsInLowestIncrements) {
  TSXDateSpec spec = Monthly();
  ASSERT_EQ(spec.SetLowestIncrement(3).GetCode(), 0U);
  StartAt(spec, {1999, 3});
  EXPECT_EQ(At(spec, {2000, 9}).VirtualCaseOffset(), 6);
  EXPECT_EQ(At(spec, {1998, 0}).VirtualCaseOffset(), -5);
}

TEST(VirtualOffset, RoundsTowardZeroBetweenTwoSteps) {
  TSXDateSpec spec = Monthly();
  const Tuple february2 = At(spec, {2, 1});
  const Tuple january1 = At(spec, {1, 0});
  const Tuple june2 = At(spec, {2, 5});
  ASSERT_EQ(spec.SetLowestIncrement(4).GetCode(), 0U);
  StartAt(spec, {2, 0});
  EXPECT_EQ(february2.VirtualCaseOffset(), 0);  // 1 month
  EXPECT_EQ(june2.VirtualCaseOffset(), 1);      // 5 months
  StartAt(spec, {2, 4});
  EXPECT_EQ(february2.VirtualCaseOffset(), 0);  // -3 months
  EXPECT_EQ(january1.VirtualCaseOffset(), -4);  // -16 months
  EXPECT_EQ(june2.VirtualCaseOffset(), 0);      // 1 month
  StartAt(spec, {3, 0});
  EXPECT_EQ(february2.VirtualCaseOffset(), -2);  // -11 months
  StartAt(spec, {1, 8});
  EXPECT_EQ(february2.VirtualCaseOffset(), 1);  // 12 - 7 = 5 months
}

TEST(VirtualOffset, IsZeroForAWrongNumberOfIndexes) {
  TSXDateSpec spec = Monthly();
  const Tuple tuple = At(spec, {1999, 3});
  ASSERT_EQ(spec.AddPeriod(Obs, 2, 0, 0).GetCode(), 0U);
  EXPECT_EQ(tuple.VirtualCaseOffset(), 0);
}

TEST(VirtualOffset, SpansTheWholeBase) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {kMostUnsigned, 11});
  EXPECT_EQ(At(spec, {0, 0}).VirtualCaseOffset(), -(4294967296L * 12 - 1));
  StartAt(spec, {0, 0});
  EXPECT_EQ(At(spec, {kMostUnsigned, 11}).VirtualCaseOffset(), 4294967296L * 12 - 1);
}

TEST(VirtualOffset, BeyondLongIsTheEndOfItsRange) {
  TSXDateSpec spec = Make(Week, {{Day, kMostUnsigned}, {Hour, kMostUnsigned}});
  EXPECT_EQ(At(spec, {kMostUnsigned, 0, 0}).VirtualCaseOffset(), kMost);
  StartAt(spec, {0, 2147483647, 4});
  EXPECT_EQ(At(spec, {kMostUnsigned, 0, 0}).VirtualCaseOffset(), kMost);
  EXPECT_EQ(At(spec, {0, 0, 0}).VirtualCaseOffset(), -(2147483647L * 4294967295L + 4));
}

TEST(VirtualOffset, BeyondLongBeforeTheDivisionIsStillExact) {
  TSXDateSpec spec = Make(Year, {{Month, 4294967294U}});
  ASSERT_EQ(spec.SetLowestIncrement(2147483647).GetCode(), 0U);
  EXPECT_EQ(At(spec, {kMostUnsigned, 2147483647}).VirtualCaseOffset(), 2 * 4294967295L + 1);
}

TEST(StepsFromDigits, SaturatesAtBothEnds) {
  constexpr tsx::Digit kUp[] = {{4294967295, 0}, {0, 4294967295}, {0, 4294967295}};
  constexpr tsx::Digit kDown[] = {{-4294967295, 0}, {0, 4294967295}, {0, 4294967295}};
  EXPECT_EQ(tsx::StepsFromDigits(kUp, 1).count, kMost);
  EXPECT_FALSE(tsx::StepsFromDigits(kUp, 1).exact);
  EXPECT_EQ(tsx::StepsFromDigits(kDown, 1).count, kLeast);
  EXPECT_FALSE(tsx::StepsFromDigits(kDown, 1).exact);
}

TEST(StepsFromDigits, SaturatesBeforeTheLastDigit) {
  constexpr tsx::Digit kDown[] = {
      {-4294967295, 0}, {0, 4294967295}, {0, 4294967295}, {4294967294, 4294967295}};
  EXPECT_EQ(tsx::StepsFromDigits(kDown, 5).count, kLeast);
  EXPECT_FALSE(tsx::StepsFromDigits(kDown, 5).exact);
}

TEST(StepsFromDigits, RoundsTheWholeTowardZeroNotTheLastDigit) {
  constexpr tsx::Digit kBackFromOneYear[] = {{1, 0}, {-1, 12}};      // 11
  constexpr tsx::Digit kOnFromOneYearAgo[] = {{-1, 0}, {1, 12}};     // -11
  constexpr tsx::Digit kOnFromOneYear[] = {{1, 0}, {1, 12}};         // 13
  constexpr tsx::Digit kBackFromOneYearAgo[] = {{-1, 0}, {-1, 12}};  // -13
  static_assert(tsx::StepsFromDigits(kBackFromOneYear, 6).count == 1);
  static_assert(tsx::StepsFromDigits(kOnFromOneYearAgo, 6).count == -1);
  static_assert(tsx::StepsFromDigits(kOnFromOneYear, 6).count == 2);
  static_assert(tsx::StepsFromDigits(kBackFromOneYearAgo, 6).count == -2);
  // And every pair of digits against plain division.
  for (std::int64_t year = -2; year <= 2; ++year) {
    for (std::int64_t month = -30; month <= 30; ++month) {
      for (const std::int64_t step : {1, 2, 3, 4, 6, 12}) {
        const tsx::Digit digits[] = {{year, 0}, {month, 12}};
        EXPECT_EQ(tsx::StepsFromDigits(digits, step).count, (year * 12 + month) / step);
      }
    }
  }
}

// 2147483649 * 4294967295 is beyond the range, less 4294967294 it is not.
TEST(StepsFromDigits, FitsWhereOnlyTheProductDoesNot) {
  constexpr tsx::Digit kUp[] = {{2147483649, 0}, {-4294967294, 4294967295}};
  constexpr tsx::Digit kDown[] = {{-2147483649, 0}, {4294967294, 4294967295}};
  static_assert(tsx::StepsFromDigits(kUp, 1).count == 9223372034707292161);
  static_assert(tsx::StepsFromDigits(kUp, 1).exact);
  static_assert(tsx::StepsFromDigits(kDown, 1).count == -9223372034707292161);
  static_assert(tsx::StepsFromDigits(kDown, 1).exact);
}

// ((0 * 4 + 2147483650) * 4294967294 - 4294967292) * 44 - 3838964656 is beyond the range, a 44th of
// it is not.
TEST(StepsFromDigits, IsExactWhenOnlyTheIncrementBringsItIntoRange) {
  constexpr tsx::Digit kDigits[] = {
      {0, 0}, {2147483650, 4}, {-4294967292, 4294967294}, {-3838964656, 44}};
  static_assert(tsx::StepsFromDigits(kDigits, 44).count == 9223372036767526611);
  static_assert(tsx::StepsFromDigits(kDigits, 44).exact);
}

// The same ends of the range as below, counted in the 4294967295 units of one step.
TEST(StepsFromDigits, ReachesBothEndsInTheGreatestIncrement) {
  constexpr tsx::Digit kUp[] = {{2147483648, 0}, {2147483647, 4294967295}, {0, 4294967295}};
  constexpr tsx::Digit kDown[] = {{-2147483648, 0}, {-2147483648, 4294967295}, {0, 4294967295}};
  static_assert(tsx::StepsFromDigits(kUp, 4294967295).count == kMost);
  static_assert(tsx::StepsFromDigits(kUp, 4294967295).exact);
  static_assert(tsx::StepsFromDigits(kDown, 4294967295).count == kLeast);
  static_assert(tsx::StepsFromDigits(kDown, 4294967295).exact);
}

TEST(StepsFromDigits, ReachesBothEndsExactly) {
  // 2^63 = 2147483648 * 4294967295 + 2147483648.
  constexpr tsx::Digit kMostDigits[] = {{2147483648, 0}, {2147483647, 4294967295}};
  constexpr tsx::Digit kLeastDigits[] = {{-2147483648, 0}, {-2147483648, 4294967295}};
  static_assert(tsx::StepsFromDigits(kMostDigits, 1).count == kMost);
  static_assert(tsx::StepsFromDigits(kMostDigits, 1).exact);
  static_assert(tsx::StepsFromDigits(kLeastDigits, 1).count == kLeast);
  static_assert(tsx::StepsFromDigits(kLeastDigits, 1).exact);
}

TEST(Number, IsTheOffsetFromTheFirstCaseNumber) {
  TSXDateSpec spec = Yearly();
  StartAt(spec, {4});
  EXPECT_EQ(spec.NumberFromOffset(0), 4U);
  EXPECT_EQ(spec.NumberFromOffset(6), 10U);
  EXPECT_EQ(spec.NumberFromOffset(-4), 0U);
  EXPECT_EQ(spec.OffsetFromNumber(10), 6);
  EXPECT_EQ(spec.OffsetFromNumber(0), -4);
}

TEST(Number, OfAnOffsetBeforeTheBeginningIsZero) {
  TSXDateSpec spec = Yearly();
  StartAt(spec, {4});
  EXPECT_EQ(spec.NumberFromOffset(-5), 0U);
  EXPECT_EQ(spec.NumberFromOffset(-10), 0U);
  EXPECT_EQ(spec.NumberFromOffset(kLeast), 0U);
  EXPECT_EQ(Yearly().NumberFromOffset(kLeast), 0U);
}

// The last position whose number fits a long: 2^63 - 1 = 2147483648 * (2^32 - 1) + 2147483647.
TSXDateSpec AtTheEndOfLong() {
  TSXDateSpec spec = Make(Week, {{Day, kMostUnsigned}, {Hour, kMostUnsigned}});
  StartAt(spec, {0, 2147483648U, 2147483647U});
  return spec;
}

TEST(Number, ReachesFromTheGreatestFirstCaseToTwiceThat) {
  const TSXDateSpec spec = AtTheEndOfLong();
  EXPECT_EQ(spec.NumberFromOffset(0), 9223372036854775807UL);
  EXPECT_EQ(spec.NumberFromOffset(kMost), 18446744073709551614UL);
  EXPECT_EQ(spec.NumberFromOffset(-kMost), 0U);
  EXPECT_EQ(spec.NumberFromOffset(kLeast), 0U) << "one more than the first case number";
  EXPECT_EQ(spec.OffsetFromNumber(0), -kMost);
  EXPECT_EQ(spec.OffsetFromNumber(18446744073709551614UL), kMost);
}

TEST(Number, AnOffsetBeyondLongIsItsEnd) {
  EXPECT_EQ(Yearly().OffsetFromNumber(9223372036854775807UL), kMost);
  EXPECT_EQ(Yearly().OffsetFromNumber(9223372036854775808UL), kMost);
  EXPECT_EQ(Yearly().OffsetFromNumber(18446744073709551615UL), kMost);
}

TEST(IndexTuple, DecomposesTheNumber) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  EXPECT_EQ(spec.IndexTuple(0).GetIndexes(), (Indexes{1999, 3}));
  EXPECT_EQ(spec.IndexTuple(8).GetIndexes(), (Indexes{1999, 11}));
  EXPECT_EQ(spec.IndexTuple(9).GetIndexes(), (Indexes{2000, 0}));
  EXPECT_EQ(spec.IndexTuple(-4).GetIndexes(), (Indexes{1998, 11}));
}

TEST(IndexTuple, BelongsToTheSpecification) {
  const TSXDateSpec spec = Monthly();
  EXPECT_TRUE(spec.IndexTuple(5).IsValidFor(spec));
  EXPECT_EQ(spec.IndexTuple(5).VirtualCaseOffset(), 5);
}

TEST(IndexTuple, CountsFromTheSubCycleStarts) {
  const TSXDateSpec spec = test::Workdays();
  EXPECT_EQ(spec.IndexTuple(0).GetIndexes(), (Indexes{0, 1}));
  EXPECT_EQ(spec.IndexTuple(4).GetIndexes(), (Indexes{0, 5}));
  EXPECT_EQ(spec.IndexTuple(5).GetIndexes(), (Indexes{1, 1}));
}

TEST(IndexTuple, MultipliesTheFinestDigitByTheIncrement) {
  TSXDateSpec spec = Make(Year, {{Month, 12, 1, 9}});
  ASSERT_EQ(spec.SetLowestIncrement(3).GetCode(), 0U);
  EXPECT_EQ(spec.IndexTuple(2).GetIndexes(), (Indexes{0, 7}));
  EXPECT_EQ(spec.IndexTuple(3).GetIndexes(), (Indexes{1, 1}));
  EXPECT_EQ(spec.IndexTuple(7).GetIndexes(), (Indexes{2, 4}));
}

TEST(IndexTuple, MultipliesABaseAloneByTheIncrement) {
  TSXDateSpec spec = Yearly();
  ASSERT_EQ(spec.SetLowestIncrement(10).GetCode(), 0U);
  StartAt(spec, {1950});
  EXPECT_EQ(spec.NumberFromOffset(0), 195U);
  EXPECT_EQ(spec.IndexTuple(3).GetIndexes(), Indexes{1980});
  EXPECT_EQ(spec.IndexTuple(3).VirtualCaseOffset(), 3);
}

TEST(IndexTuple, DerivesTheQuarterFromTheMonth) {
  const TSXDateSpec spec = MonthsInQuarters();
  EXPECT_EQ(spec.IndexTuple(2).GetIndexes(), (Indexes{0, 0, 2}));
  EXPECT_EQ(spec.IndexTuple(3).GetIndexes(), (Indexes{0, 1, 3}));
  EXPECT_EQ(spec.IndexTuple(23).GetIndexes(), (Indexes{1, 3, 11}));
}

TEST(IndexTuple, CountsThroughManyPeriods) {
  const TSXDateSpec spec = Make(Week, {{Day, 7}, {Hour, 24}, {Minute, 60}, {Second, 60}});
  const long offset = ((((2 * 7L + 6) * 24) + 23) * 60 + 58) * 60 + 59;
  EXPECT_EQ(spec.IndexTuple(offset).GetIndexes(), (Indexes{2, 6, 23, 58, 59}));
}

TEST(IndexTuple, BeforeTheBeginningIsTheBeginning) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  EXPECT_EQ(spec.IndexTuple(-1999 * 12 - 4).GetIndexes(), (Indexes{0, 0}));
  EXPECT_EQ(spec.IndexTuple(kLeast).GetIndexes(), (Indexes{0, 0}));
}

TEST(IndexTuple, ImpossiblePositionIsTheFirstCase) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  EXPECT_EQ(spec.IndexTuple(kMost).GetIndexes(), (Indexes{1999, 3})) << "years have 32 bits";
  const long last = (4294967295L - 1999) * 12 + 11 - 3;
  EXPECT_EQ(spec.IndexTuple(last).GetIndexes(), (Indexes{kMostUnsigned, 11}));
  EXPECT_EQ(spec.IndexTuple(last + 1).GetIndexes(), (Indexes{1999, 3}));
}

TEST(IndexTuple, ImpossibleBaseAloneIsTheFirstCase) {
  TSXDateSpec spec = Yearly();
  ASSERT_EQ(spec.SetLowestIncrement(kMostUnsigned).GetCode(), 0U);
  EXPECT_EQ(spec.IndexTuple(1).GetIndexes(), Indexes{kMostUnsigned});
  EXPECT_EQ(spec.IndexTuple(2).GetIndexes(), Indexes{0});
  EXPECT_EQ(spec.IndexTuple(kMost).GetIndexes(), Indexes{0});
}

TEST(IndexTuple, ImpossibleQuarterIsTheFirstCase) {
  // Months 5 to 10, quarters 1 and 2: months 9 and 10 have no quarter.
  const TSXDateSpec spec = Make(Year, {{Quarter, 4, 1, 2}, {Month, 12, 5, 6}});
  EXPECT_EQ(spec.IndexTuple(3).GetIndexes(), (Indexes{0, 2, 8}));
  EXPECT_EQ(spec.IndexTuple(4).GetIndexes(), (Indexes{0, 1, 5}));
  EXPECT_EQ(spec.IndexTuple(6).GetIndexes(), (Indexes{1, 1, 5}));
}

TEST(IndexTuple, CyclesWhoseProductIsBeyondAnyNumberStillCount) {
  // Seconds in a week: (2^32 - 1)^4.
  const TSXDateSpec spec = Make(Week, {{Day, kMostUnsigned},
                                       {Hour, kMostUnsigned},
                                       {Minute, kMostUnsigned},
                                       {Second, kMostUnsigned}});
  EXPECT_EQ(spec.IndexTuple(4294967294L).GetIndexes(), (Indexes{0, 0, 0, 0, 4294967294U}));
  EXPECT_EQ(spec.IndexTuple(4294967295L).GetIndexes(), (Indexes{0, 0, 0, 1, 0}));
  // 2^63 - 1 = 2147483648 * (2^32 - 1) + 2147483647.
  EXPECT_EQ(spec.IndexTuple(kMost).GetIndexes(), (Indexes{0, 0, 0, 2147483648U, 2147483647U}));
  EXPECT_EQ(spec.IndexTuple(kMost).VirtualCaseOffset(), kMost);
}

TEST(FirstCase, IsTheTupleAndItsNumberAfterwards) {
  TSXDateSpec spec = Make(Year, {{Quarter, 4, 1, 2}, {Month, 12, 3, 6}});
  const Tuple tuple = At(spec, {1999, 2, 7});
  ASSERT_EQ(spec.SetFirstCaseIndex(tuple).GetCode(), 0U);
  EXPECT_EQ(spec.FirstCaseIndex().GetIndexes(), (Indexes{1999, 2, 7}));
  EXPECT_EQ(spec.FirstCaseIndex().VirtualCaseOffset(), 0);
  EXPECT_EQ(tuple.VirtualCaseOffset(), 0);
  EXPECT_EQ(spec.NumberFromOffset(0), 1999U * 6 + 4);
  EXPECT_EQ(spec.IndexTuple(0).GetIndexes(), (Indexes{1999, 2, 7}));
}

TEST(FirstCase, MayMoveBack) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  StartAt(spec, {1998, 0});
  EXPECT_EQ(spec.FirstCaseIndex().GetIndexes(), (Indexes{1998, 0}));
  EXPECT_EQ(spec.NumberFromOffset(0), 1998U * 12);
}

TEST(FirstCase, MayBeSetOnASimpleSequence) {
  TSXDateSpec spec = Make(SimpleSequence);
  StartAt(spec, {5});
  EXPECT_EQ(spec.IndexTuple(2).GetIndexes(), Indexes{7});
}

TEST(Gaps, AtATupleBeyondLongAre40208) {
  TSXDateSpec spec(TSXDateSpec::Week);
  ASSERT_EQ(spec.AddPeriod(TSXDateSpec::Day, kMostUnsigned, 0, 0).GetCode(), 0U);
  ASSERT_EQ(spec.AddPeriod(TSXDateSpec::Hour, kMostUnsigned, 0, 0).GetCode(), 0U);
  EXPECT_EQ(spec.AddGap(At(spec, {kMostUnsigned, 0, 0})).GetCode(), 40208U);
  EXPECT_EQ(spec.GapCount(), 0U);
}

TEST(FirstCase, WithANumberBeyondLongIs40208) {
  TSXDateSpec spec = Make(Week, {{Day, 4294967295U}, {Hour, 4294967295U}});
  AddGaps(spec, {3});
  const TSXDateSpec before = spec;
  EXPECT_EQ(spec.SetFirstCaseIndex(At(spec, {kMostUnsigned, 0, 0})).GetCode(), 40208U);
  EXPECT_TRUE(test::AreSame(spec, before));
  EXPECT_EQ(GapsOf(spec), Offsets{3});
}

TEST(FirstCase, LeavesTheFirstCaseDay) {
  TSXDateSpec spec = Make(Week, {{Day, 7}});
  ASSERT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  StartAt(spec, {10, 3});
  EXPECT_EQ(test::FirstCaseDayOf(spec), (Indexes{15, 3, 2001}));
}

TEST(FirstCase, MovedOnDropsGapsUpToItAndLowersTheOthers) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 0});
  AddGaps(spec, {2, 4, 5, 9, 20});
  StartAt(spec, {1999, 5});  // 5 on, itself a gap
  EXPECT_EQ(GapsOf(spec), (Offsets{4, 15}));
  EXPECT_EQ(spec.GapIndex(0).GetIndexes(), (Indexes{1999, 9})) << "where it was";
  EXPECT_EQ(spec.CaseOffset(5), 4);
  EXPECT_EQ(spec.VirtualCaseOffset(4), 5) << "the other direction knows too";
}

TEST(FirstCase, MovedOnByOneLowersEveryGapBeyond) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {1, 2, 3});
  StartAt(spec, {1});
  EXPECT_EQ(GapsOf(spec), (Offsets{1, 2}));
}

TEST(FirstCase, MovedPastAllGapsLeavesNone) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {1, 2, 3});
  StartAt(spec, {1000});
  EXPECT_EQ(spec.GapCount(), 0U);
  EXPECT_EQ(spec.VirtualCaseOffset(3), 3);
}

TEST(FirstCase, MovedBackOrNotAtAllKeepsTheOffsetsOfGaps) {
  TSXDateSpec spec = Yearly();
  StartAt(spec, {10});
  AddGaps(spec, {2, 3});
  StartAt(spec, {10});
  EXPECT_EQ(GapsOf(spec), (Offsets{2, 3}));
  StartAt(spec, {8});
  EXPECT_EQ(GapsOf(spec), (Offsets{2, 3}));
}

TEST(Gaps, SqueezeCaseOffsets) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {3, 4});
  const Offsets kCases{0, 1, 2, -1, -1, 3, 4};
  for (long offset = 0; offset < 7; ++offset) {
    EXPECT_EQ(spec.CaseOffset(offset), kCases[static_cast<std::size_t>(offset)]) << offset;
  }
}

TEST(Gaps, AnswerWithTheNextOrTheLastCaseWhenAskedForTheClosest) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {3, 4});
  EXPECT_EQ(spec.ClosestCaseOffset(3, true), 3);
  EXPECT_EQ(spec.ClosestCaseOffset(4, true), 3);
  EXPECT_EQ(spec.ClosestCaseOffset(3, false), 2);
  EXPECT_EQ(spec.ClosestCaseOffset(4, false), 2);
}

TEST(Gaps, AreNoConcernOfCasesThatExist) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {3, 4});
  for (const bool forward : {true, false}) {
    EXPECT_EQ(spec.ClosestCaseOffset(2, forward), 2);
    EXPECT_EQ(spec.ClosestCaseOffset(5, forward), 3);
    EXPECT_EQ(spec.ClosestCaseOffset(9, forward), 7);
  }
}

TEST(Gaps, BetweenTwoGapsCasesAreCounted) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {2, 5, 6});
  EXPECT_EQ(spec.CaseOffset(3), 2);
  EXPECT_EQ(spec.CaseOffset(4), 3);
  EXPECT_EQ(spec.CaseOffset(7), 4);
}

TEST(Gaps, StretchVirtualOffsets) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {3, 4});
  const Offsets kVirtual{0, 1, 2, 5, 6};
  for (long offset = 0; offset < 5; ++offset) {
    EXPECT_EQ(spec.VirtualCaseOffset(offset), kVirtual[static_cast<std::size_t>(offset)]);
  }
}

TEST(Gaps, RightBehindTheFirstCase) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {1});
  EXPECT_EQ(spec.VirtualCaseOffset(0), 0);
  EXPECT_EQ(spec.VirtualCaseOffset(1), 2);
  EXPECT_EQ(spec.ClosestCaseOffset(1, false), 0);
}

TEST(Gaps, LetNegativeOffsetsPass) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {3, 4});
  for (const long offset : {-1L, -10L, kLeast}) {
    EXPECT_EQ(spec.CaseOffset(offset), offset);
    EXPECT_EQ(spec.ClosestCaseOffset(offset, true), offset);
    EXPECT_EQ(spec.ClosestCaseOffset(offset, false), offset);
    EXPECT_EQ(spec.VirtualCaseOffset(offset), offset);
  }
}

TEST(Gaps, WithoutThemOffsetsAreTheSame) {
  for (const long offset : {-1L, 0L, 7L, kMost, kLeast}) {
    EXPECT_EQ(Yearly().CaseOffset(offset), offset);
    EXPECT_EQ(Yearly().VirtualCaseOffset(offset), offset);
  }
}

TEST(Gaps, AtTheEndOfLong) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {kMost});
  EXPECT_EQ(spec.CaseOffset(kMost), -1);
  EXPECT_EQ(spec.ClosestCaseOffset(kMost, true), kMost);
  EXPECT_EQ(spec.ClosestCaseOffset(kMost, false), kMost - 1);
  EXPECT_EQ(spec.VirtualCaseOffset(kMost - 1), kMost - 1);
  EXPECT_EQ(spec.VirtualCaseOffset(kMost), kMost) << "does not wrap";
  AddGaps(spec, {1, 2});
  EXPECT_EQ(spec.VirtualCaseOffset(kMost - 2), kMost);
  EXPECT_EQ(spec.VirtualCaseOffset(kMost - 3), kMost - 1);
  EXPECT_EQ(spec.VirtualCaseOffset(kMost), kMost);
}

TEST(Gaps, AreSortedWhateverTheOrderOfAdding) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {9, 2, 5});
  EXPECT_EQ(GapsOf(spec), (Offsets{2, 5, 9}));
  EXPECT_EQ(spec.VirtualCaseOffset(3), 4);
  EXPECT_EQ(spec.VirtualCaseOffset(4), 6);
  EXPECT_EQ(spec.VirtualCaseOffset(7), 10);
}

TEST(Gaps, AddedTwiceAreOneWithSuccess) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {3, 5});
  EXPECT_EQ(spec.AddGap(3).GetCode(), 0U);
  EXPECT_EQ(spec.AddGap(At(spec, {5})).GetCode(), 0U);
  EXPECT_EQ(GapsOf(spec), (Offsets{3, 5}));
  EXPECT_EQ(spec.CaseOffset(6), 4);
}

TEST(Gaps, GivenAsTuples) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  EXPECT_EQ(spec.AddGap(At(spec, {2000, 0})).GetCode(), 0U);
  EXPECT_EQ(GapsOf(spec), Offsets{9});
  EXPECT_EQ(spec.GapIndex(0).GetIndexes(), (Indexes{2000, 0}));
}

TEST(Gaps, BelowOneAre40209) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  EXPECT_EQ(spec.AddGap(0).GetCode(), 40209U);
  EXPECT_EQ(spec.AddGap(-1).GetCode(), 40209U);
  EXPECT_EQ(spec.AddGap(kLeast).GetCode(), 40209U);
  EXPECT_EQ(spec.AddGap(At(spec, {1999, 3})).GetCode(), 40209U) << "the first case exists";
  EXPECT_EQ(spec.AddGap(At(spec, {1998, 3})).GetCode(), 40209U);
  EXPECT_EQ(spec.GapCount(), 0U);
}

TEST(Gaps, OnASimpleSequenceAre40205) {
  TSXDateSpec spec = Make(SimpleSequence);
  EXPECT_EQ(spec.AddGap(1).GetCode(), 40205U);
  EXPECT_EQ(spec.AddGap(At(spec, {1})).GetCode(), 40205U);
  EXPECT_EQ(spec.GapCount(), 0U);
}

TEST(Gaps, GoByTheBasePeriodAlone) {
  EXPECT_EQ(Make(SimpleSequence, {{Month, 12}}).AddGap(1).GetCode(), 40205U);
}

TEST(Gaps, OffsetIsTestedBeforeTheSequence) {
  EXPECT_EQ(Make(SimpleSequence).AddGap(0).GetCode(), 40209U);
}

TEST(Gaps, TupleIsTestedBeforeTheSequenceAndTheOffset) {
  TSXDateSpec spec = Make(SimpleSequence, {{Month, 12}});
  EXPECT_EQ(spec.AddGap(Tuple()).GetCode(), 40208U) << "offset 0 and a simple sequence as well";
}

TEST(Gaps, Cleared) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {3, 4});
  spec.ClearGaps();
  EXPECT_EQ(spec.GapCount(), 0U);
  EXPECT_EQ(spec.CaseOffset(3), 3);
  EXPECT_EQ(spec.VirtualCaseOffset(3), 3);
  AddGaps(spec, {1});
  EXPECT_EQ(spec.VirtualCaseOffset(3), 4);
}

TEST(Gaps, PastTheEndHaveTheFirstCasesTuple) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  AddGaps(spec, {2});
  EXPECT_EQ(spec.GapIndex(1).GetIndexes(), (Indexes{1999, 3}));
  EXPECT_EQ(spec.GapIndex(18446744073709551615UL).GetIndexes(), (Indexes{1999, 3}));
}

TEST(Gaps, BeyondTheLastPositionHaveTheFirstCasesTuple) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  AddGaps(spec, {kMost});
  EXPECT_EQ(spec.GapCount(), 1U);
  EXPECT_EQ(spec.GapIndex(0).GetIndexes(), (Indexes{1999, 3}));
}

TEST(TupleOffsets, SeeTheGaps) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 0});
  AddGaps(spec, {3, 4});
  const Tuple may = At(spec, {1999, 4});
  EXPECT_EQ(may.VirtualCaseOffset(), 4);
  EXPECT_EQ(may.CaseOffset(), -1);
  EXPECT_EQ(may.ClosestCaseOffset(true), 3);
  EXPECT_EQ(may.ClosestCaseOffset(false), 2);
  EXPECT_EQ(At(spec, {1999, 5}).CaseOffset(), 3);
}

}  // namespace
