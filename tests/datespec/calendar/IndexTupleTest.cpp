// Tuples: what is valid, how they compare, whose they are.

#include <gtest/gtest.h>

#include "datespec/Calendars.h"
#include "datespec/calendar/TSXDateSpecImp.h"

namespace {

using test::AddGaps;
using test::At;
using test::Indexes;
using test::Make;
using test::Monthly;
using test::MonthsInQuarters;
using test::StartAt;
using test::Tuple;
using test::Yearly;
using namespace test::periods;

bool IsPosition(const TSXDateSpec& spec, const Indexes& indexes) {
  return Tuple(spec).SetIndexes(indexes);
}

TEST(PlainTuple, IsAValidZero) {
  const Tuple tuple;
  EXPECT_TRUE(tuple.IsValid());
  EXPECT_EQ(tuple.GetIndexes(), Indexes{0});
  EXPECT_EQ(tuple.VirtualCaseOffset(), 0);
}

TEST(PlainTuple, TakesExactlyOneIndex) {
  Tuple tuple;
  EXPECT_TRUE(tuple.SetIndexes({4294967295U}));
  EXPECT_FALSE(tuple.SetIndexes({}));
  EXPECT_FALSE(tuple.SetIndexes({1, 2}));
  EXPECT_FALSE(tuple.SetIndexes(Indexes(1000, 1)));
  EXPECT_EQ(tuple.GetIndexes(), Indexes{4294967295U});
}

TEST(PlainTuple, IsItsOwnOffset) {
  Tuple tuple;
  ASSERT_TRUE(tuple.SetIndexes({4294967295U}));
  EXPECT_EQ(tuple.VirtualCaseOffset(), 4294967295L);
  EXPECT_EQ(tuple.CaseOffset(), 4294967295L);
  EXPECT_EQ(tuple.ClosestCaseOffset(true), 4294967295L);
  EXPECT_EQ(tuple.ClosestCaseOffset(false), 4294967295L);
}

TEST(PlainTuple, IsPutToTheValidityTestLikeAnyOther) {
  TSXDateSpec yearly = Yearly();
  const TSXDateSpec monthly = Monthly();
  Tuple tuple;
  ASSERT_TRUE(tuple.SetIndexes({7}));
  EXPECT_TRUE(tuple.IsValidFor(yearly));
  EXPECT_FALSE(tuple.IsValidFor(monthly)) << "one index, two periods";
  ASSERT_EQ(yearly.SetLowestIncrement(5).GetCode(), 0U);
  EXPECT_FALSE(tuple.IsValidFor(yearly)) << "between two steps";
}

TEST(PlainTuple, BecomesTheFirstCaseOfABaseAlone) {
  TSXDateSpec yearly = Yearly();
  Tuple tuple;
  ASSERT_TRUE(tuple.SetIndexes({1949}));
  EXPECT_EQ(yearly.SetFirstCaseIndex(tuple).GetCode(), 0U);
  EXPECT_EQ(yearly.FirstCaseIndex().GetIndexes(), Indexes{1949});
  EXPECT_EQ(Monthly().SetFirstCaseIndex(tuple).GetCode(), 40208U);
}

TEST(PlainTuple, MarksAGapAtItsOneIndex) {
  TSXDateSpec yearly = Yearly();
  StartAt(yearly, {1949});
  Tuple tuple;
  ASSERT_TRUE(tuple.SetIndexes({3}));
  EXPECT_EQ(yearly.AddGap(tuple).GetCode(), 0U);
  EXPECT_EQ(yearly.GapIndex(0).GetIndexes(), Indexes{1952});
}

TEST(PlainTuple, MovesGapsByItsOneIndex) {
  TSXDateSpec yearly = Yearly();
  AddGaps(yearly, {2, 5, 9});
  Tuple tuple;
  ASSERT_TRUE(tuple.SetIndexes({5}));
  ASSERT_EQ(yearly.SetFirstCaseIndex(tuple).GetCode(), 0U);
  EXPECT_EQ(test::GapsOf(yearly), (std::vector<long>{4}));
}

TEST(TupleOfASpecification, StartsAtTheFirstCase) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  EXPECT_EQ(Tuple(spec).GetIndexes(), (Indexes{1999, 3}));
  EXPECT_EQ(Tuple(test::Workdays()).GetIndexes(), (Indexes{0, 1}));
}

TEST(TupleOfASpecification, CanBeMadeFromTheImplementation) {
  TSXDateSpecImp imp(Year);
  ASSERT_EQ(imp.AddPeriod(Month, 12, 0, 0).GetCode(), 0U);
  Tuple tuple(imp);
  EXPECT_TRUE(tuple.SetIndexes({1999, 3}));
  EXPECT_TRUE(tuple.IsValidFor(imp));
  EXPECT_EQ(imp.SetFirstCaseIndex(tuple).GetCode(), 0U);
}

TEST(TupleOfASpecification, IsNotValidForAnotherNotEvenACopy) {
  const TSXDateSpec spec = Monthly();
  const Tuple tuple = At(spec, {1999, 3});
  EXPECT_TRUE(tuple.IsValidFor(spec));
  EXPECT_FALSE(tuple.IsValidFor(TSXDateSpec(spec)));
}

TEST(TupleOfASpecification, OfAnotherIsRefusedWith40208) {
  TSXDateSpec spec = Monthly();
  TSXDateSpec copy = spec;
  const Tuple tuple = At(spec, {1999, 3});
  EXPECT_EQ(copy.SetFirstCaseIndex(tuple).GetCode(), 40208U);
  EXPECT_EQ(copy.AddGap(tuple).GetCode(), 40208U);
  EXPECT_TRUE(test::AreSame(copy, Monthly()));
  EXPECT_EQ(spec.SetFirstCaseIndex(tuple).GetCode(), 0U) << "from the same handle";
}

TEST(TupleOfASpecification, IsTestedAnewWhenTheSpecificationChanges) {
  TSXDateSpec spec = Monthly();
  const Tuple december = At(spec, {1999, 11});
  EXPECT_TRUE(december.IsValid());
  ASSERT_EQ(spec.AddPeriod(Month, 12, 0, 6).GetCode(), 0U);
  EXPECT_FALSE(december.IsValid());
  EXPECT_EQ(spec.SetFirstCaseIndex(december).GetCode(), 40208U);
  EXPECT_EQ(spec.AddGap(december).GetCode(), 40208U);
}

TEST(TupleOfASpecification, OutlivesItForCopyingComparingAndReading) {
  Tuple tuple;
  {
    const TSXDateSpec spec = Monthly();
    tuple = At(spec, {1999, 3});
  }
  const Tuple copy = tuple;
  EXPECT_EQ(copy.GetIndexes(), (Indexes{1999, 3}));
  EXPECT_EQ(copy.Compare(tuple), 0);
}

TEST(Validity, NeedsOneIndexPerPeriod) {
  EXPECT_TRUE(IsPosition(Monthly(), {1999, 3}));
  EXPECT_FALSE(IsPosition(Monthly(), {}));
  EXPECT_FALSE(IsPosition(Monthly(), {1999}));
  EXPECT_FALSE(IsPosition(Monthly(), {1999, 3, 0}));
  EXPECT_FALSE(IsPosition(Monthly(), Indexes(1000, 0)));
}

TEST(Validity, KeepsFinerIndexesWithinTheirSubCycle) {
  const TSXDateSpec spec = test::Workdays();
  EXPECT_FALSE(IsPosition(spec, {0, 0}));
  EXPECT_TRUE(IsPosition(spec, {0, 1}));
  EXPECT_TRUE(IsPosition(spec, {0, 5}));
  EXPECT_FALSE(IsPosition(spec, {0, 6}));
  EXPECT_FALSE(IsPosition(spec, {0, 4294967295U}));
}

TEST(Validity, SetsTheBaseNoLimit) {
  EXPECT_TRUE(IsPosition(Monthly(), {0, 0}));
  EXPECT_TRUE(IsPosition(Monthly(), {4294967295U, 11}));
}

TEST(Validity, TiesTheQuarterToTheMonth) {
  const TSXDateSpec spec = MonthsInQuarters();
  EXPECT_TRUE(IsPosition(spec, {1999, 1, 4}));
  EXPECT_FALSE(IsPosition(spec, {1999, 0, 4}));
  EXPECT_FALSE(IsPosition(spec, {1999, 2, 4}));
  EXPECT_TRUE(IsPosition(spec, {1999, 3, 11}));
}

TEST(Validity, KeepsTheTiedQuarterWithinItsSubCycleToo) {
  // Months 5 to 10, quarters 1 and 2: months 9 and 10 would be in quarter 3.
  const TSXDateSpec spec = Make(Year, {{Quarter, 4, 1, 2}, {Month, 12, 5, 6}});
  EXPECT_TRUE(IsPosition(spec, {0, 1, 5}));
  EXPECT_TRUE(IsPosition(spec, {0, 2, 8}));
  EXPECT_FALSE(IsPosition(spec, {0, 3, 9}));
}

TEST(Validity, NeedsWholeStepsFromTheFinestStart) {
  TSXDateSpec spec = Make(Year, {{Month, 12, 1, 9}});
  ASSERT_EQ(spec.SetLowestIncrement(3).GetCode(), 0U);
  EXPECT_TRUE(IsPosition(spec, {0, 1}));
  EXPECT_FALSE(IsPosition(spec, {0, 3}));
  EXPECT_TRUE(IsPosition(spec, {0, 4}));
  EXPECT_TRUE(IsPosition(spec, {0, 7}));
  EXPECT_FALSE(IsPosition(spec, {0, 9}));
}

TEST(Validity, NeedsWholeStepsOfABaseAlone) {
  TSXDateSpec spec = Yearly();
  ASSERT_EQ(spec.SetLowestIncrement(10).GetCode(), 0U);
  EXPECT_TRUE(IsPosition(spec, {1950}));
  EXPECT_FALSE(IsPosition(spec, {1955}));
}

TEST(SetIndexes, RefusedKeepsTheOldOnes) {
  const TSXDateSpec spec = Monthly();
  Tuple tuple = At(spec, {1999, 3});
  EXPECT_FALSE(tuple.SetIndexes({2000, 12}));
  EXPECT_FALSE(tuple.SetIndexes({2000}));
  EXPECT_EQ(tuple.GetIndexes(), (Indexes{1999, 3}));
}

TEST(SetIndexes, FollowsTheSpecificationToAnotherNumberOfPeriods) {
  TSXDateSpec spec = Monthly();
  Tuple tuple(spec);
  ASSERT_EQ(spec.AddPeriod(Obs, 2, 0, 0).GetCode(), 0U);
  EXPECT_TRUE(tuple.SetIndexes({1999, 3, 1}));
  EXPECT_EQ(tuple.GetIndexes(), (Indexes{1999, 3, 1}));
}

TEST(Compare, FirstDifferenceDecides) {
  const TSXDateSpec spec = Monthly();
  EXPECT_EQ(At(spec, {1999, 3}).Compare(At(spec, {1999, 3})), 0);
  EXPECT_EQ(At(spec, {1999, 3}).Compare(At(spec, {1999, 4})), -1);
  EXPECT_EQ(At(spec, {1999, 4}).Compare(At(spec, {1999, 3})), 1);
  EXPECT_EQ(At(spec, {1998, 11}).Compare(At(spec, {1999, 0})), -1);
}

TEST(Compare, IndexesAreUnsigned) {
  const TSXDateSpec spec = Yearly();
  EXPECT_EQ(At(spec, {4294967295U}).Compare(At(spec, {0})), 1);
}

TEST(Compare, TheBeginningOfALongerOneComesFirst) {
  const TSXDateSpec two = Monthly();
  const TSXDateSpec three = Make(Year, {{Month, 12}, {Obs, 9}});
  EXPECT_EQ(At(two, {1999, 3}).Compare(At(three, {1999, 3, 2})), -1);
  EXPECT_EQ(At(three, {1999, 3, 2}).Compare(At(two, {1999, 3})), 1);
}

TEST(Compare, ADifferenceOutweighsTheLength) {
  const TSXDateSpec one = Yearly();
  const TSXDateSpec two = Monthly();
  EXPECT_EQ(At(one, {2000}).Compare(At(two, {1999, 5})), 1);
  EXPECT_EQ(At(two, {1999, 5}).Compare(At(one, {2000})), -1);
}

}  // namespace
