// The facts beside the calendar, copies and equivalence.

#include <gtest/gtest.h>

#include "datespec/Calendars.h"
#include "datespec/PeriodNames.h"

namespace {

using test::AddGaps;
using test::AreSame;
using test::At;
using test::FirstCaseDayOf;
using test::GapsOf;
using test::Indexes;
using test::Make;
using test::Monthly;
using test::StartAt;
using test::Yearly;
using namespace test::periods;

TEST(FirstCaseDay, NeedsADayPeriod) {
  EXPECT_FALSE(Yearly().SetFirstCaseDay(1, 1, 2000));
  EXPECT_FALSE(Make(Hour, {{Minute, 60}}).SetFirstCaseDay(1, 1, 2000));
  EXPECT_TRUE(Make(Week, {{Day, 7}}).SetFirstCaseDay(1, 1, 2000));
}

TEST(FirstCaseDay, ADayBaseIsADayPeriod) {
  TSXDateSpec spec = Make(Day);
  EXPECT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  EXPECT_EQ(FirstCaseDayOf(spec), (Indexes{15, 3, 2001}));
}

TEST(FirstCaseDay, ThreeZerosClearItOnAnyCalendar) {
  TSXDateSpec spec = Make(Day);
  ASSERT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  EXPECT_TRUE(spec.SetFirstCaseDay(0, 0, 0));
  EXPECT_EQ(FirstCaseDayOf(spec), (Indexes{0, 0, 0}));
  EXPECT_TRUE(Yearly().SetFirstCaseDay(0, 0, 0));
}

TEST(FirstCaseDay, TakesTheEndsOfItsRanges) {
  TSXDateSpec spec = Make(Day);
  EXPECT_TRUE(spec.SetFirstCaseDay(1, 1, 1));
  EXPECT_TRUE(spec.SetFirstCaseDay(31, 12, 4294967295U));
  EXPECT_EQ(FirstCaseDayOf(spec), (Indexes{31, 12, 4294967295U}));
}

TEST(FirstCaseDay, RefusesWhatIsNoDateAndKeepsTheOldOne) {
  TSXDateSpec spec = Make(Day);
  ASSERT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  const Indexes kNoDates[] = {{0, 1, 2000},  {32, 1, 2000}, {1, 0, 2000},
                              {1, 13, 2000}, {1, 1, 0},     {0, 0, 2000},
                              {1, 0, 0},     {0, 1, 0},     {4294967295U, 1, 2000}};
  for (const Indexes& date : kNoDates) {
    EXPECT_FALSE(spec.SetFirstCaseDay(date[0], date[1], date[2]));
  }
  EXPECT_EQ(FirstCaseDayOf(spec), (Indexes{15, 3, 2001}));
}

TEST(FiscalYearStart, IsKeptAsGiven) {
  TSXDateSpec spec = Monthly();
  spec.SetFiscalYearStart(7);
  EXPECT_EQ(spec.FiscalYearStart(), 7U);
}

TSXDateSpec Furnished() {
  TSXDateSpec spec = Make(Week, {{Day, 7}});
  StartAt(spec, {10, 3});
  AddGaps(spec, {2, 5});
  EXPECT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  spec.SetForcedSeasonLength(9);
  spec.SetFiscalYearStart(4);
  return spec;
}

void ChangeAll(TSXDateSpec& spec) {
  StartAt(spec, {20, 1});
  AddGaps(spec, {7});
  EXPECT_TRUE(spec.SetFirstCaseDay(1, 1, 2000));
  spec.SetForcedSeasonLength(1);
  spec.SetFiscalYearStart(1);
  EXPECT_EQ(spec.AddPeriod(Hour, 24, 0, 0).GetCode(), 0U);
}

TEST(Copy, IsEqualAndShareNothing) {
  const TSXDateSpec original = Furnished();
  TSXDateSpec copy(original);
  EXPECT_TRUE(AreSame(copy, original));
  EXPECT_EQ(GapsOf(copy), GapsOf(original));
  ChangeAll(copy);
  EXPECT_TRUE(AreSame(original, Furnished()));
}

TEST(Assignment, MakesEqualAndShareNothing) {
  const TSXDateSpec original = Furnished();
  TSXDateSpec assigned = Monthly();
  AddGaps(assigned, {1, 2, 3});
  assigned = original;
  EXPECT_TRUE(AreSame(assigned, original));
  EXPECT_EQ(GapsOf(assigned), GapsOf(original));
  ChangeAll(assigned);
  EXPECT_TRUE(AreSame(original, Furnished()));
}

TEST(Assignment, ToItselfChangesNothing) {
  TSXDateSpec spec = Furnished();
  const TSXDateSpec& same = spec;
  spec = same;
  EXPECT_TRUE(AreSame(spec, Furnished()));
}

TEST(Assignment, LeavesTuplesTheirSpecification) {
  TSXDateSpec spec = Monthly();
  const test::Tuple april = At(spec, {1999, 3});
  spec = test::MonthsInQuarters();
  EXPECT_FALSE(april.IsValid()) << "three indexes are needed now";
  EXPECT_EQ(april.VirtualCaseOffset(), 0);
  spec = Make(Year, {{Month, 24}});
  EXPECT_TRUE(april.IsValid());
  EXPECT_EQ(april.VirtualCaseOffset(), 1999 * 24 + 3);
}

TEST(Equivalence, ComparesPeriods) {
  const TSXDateSpec monthly = Monthly();
  EXPECT_TRUE(monthly.IsEquivalent(Monthly(), true));
  EXPECT_TRUE(monthly.IsEquivalent(monthly, true));
  EXPECT_FALSE(monthly.IsEquivalent(Yearly(), false));
  EXPECT_FALSE(Yearly().IsEquivalent(monthly, false));
  EXPECT_FALSE(monthly.IsEquivalent(Make(Year, {{Obs, 12}}), false)) << "type";
  EXPECT_FALSE(monthly.IsEquivalent(Make(Year, {{Month, 13, 0, 12}}), false)) << "cycle";
  EXPECT_FALSE(monthly.IsEquivalent(Make(Year, {{Month, 12, 0, 6}}), false)) << "length";
  EXPECT_FALSE(Make(Year, {{Month, 12, 0, 6}}).IsEquivalent(Make(Year, {{Month, 12, 1, 6}}), false))
      << "start";
  EXPECT_FALSE(Yearly().IsEquivalent(Make(Week), false)) << "base";
}

TEST(Equivalence, ComparesLowestIncrements) {
  TSXDateSpec quarterly = Monthly();
  ASSERT_EQ(quarterly.SetLowestIncrement(3).GetCode(), 0U);
  EXPECT_FALSE(quarterly.IsEquivalent(Monthly(), false));
  EXPECT_FALSE(Monthly().IsEquivalent(quarterly, true));
}

TEST(Equivalence, ComparesFirstCasesOnlyInFull) {
  TSXDateSpec later = Monthly();
  StartAt(later, {1999, 0});
  EXPECT_TRUE(later.IsEquivalent(Monthly(), false));
  EXPECT_FALSE(later.IsEquivalent(Monthly(), true));
}

TEST(Equivalence, ComparesGapsOnlyInFull) {
  TSXDateSpec a = Monthly();
  TSXDateSpec b = Monthly();
  AddGaps(a, {3, 4});
  AddGaps(b, {3});
  EXPECT_TRUE(a.IsEquivalent(b, false));
  EXPECT_FALSE(a.IsEquivalent(b, true)) << "number of gaps";
  AddGaps(b, {5});
  EXPECT_FALSE(a.IsEquivalent(b, true)) << "their values";
  AddGaps(a, {5});
  AddGaps(b, {4});
  EXPECT_TRUE(a.IsEquivalent(b, true)) << "whatever the order of adding";
}

// On purpose: calendars that differ only here share one dictionary entry.
TEST(Equivalence, NeverComparesSeasonFiscalYearOrFirstCaseDay) {
  TSXDateSpec spec = Furnished();
  spec.SetForcedSeasonLength(8);
  spec.SetFiscalYearStart(3);
  ASSERT_TRUE(spec.SetFirstCaseDay(1, 1, 2000));
  EXPECT_TRUE(spec.IsEquivalent(Furnished(), true));
}

// The example and the table at the head of TSXDateSpec.h.
TEST(Manual, ExampleHolds) {
  TSXDateSpec monthly(TSXDateSpec::Year);
  monthly.AddPeriod(TSXDateSpec::Month, 12, 0, 0);
  TSXDateSpec::TSXIndexTuple first(monthly);
  EXPECT_TRUE(first.SetIndexes({1949, 3}));
  EXPECT_EQ(monthly.SetFirstCaseIndex(first).GetCode(), 0U);
  EXPECT_EQ(monthly.IndexTuple(12).GetIndexes(), (Indexes{1950, 3}));
}

TEST(Manual, UsualCalendarsHaveTheirSeasons) {
  EXPECT_EQ(Make(Year).DefaultSeasonLength(), 1U);
  EXPECT_EQ(Make(Year, {{Quarter, 4}}).DefaultSeasonLength(), 4U);
  EXPECT_EQ(Make(Year, {{Month, 12}}).DefaultSeasonLength(), 12U);
  TSXDateSpec halfYearly = Make(Year, {{Month, 12}});
  EXPECT_EQ(halfYearly.SetLowestIncrement(6).GetCode(), 0U);
  EXPECT_EQ(halfYearly.DefaultSeasonLength(), 2U);
  EXPECT_EQ(Make(Year, {{Quarter, 4}, {Month, 12}}).DefaultSeasonLength(), 12U);
  EXPECT_EQ(Make(Week, {{Day, 7}}).DefaultSeasonLength(), 7U);
  EXPECT_EQ(Make(Week, {{Day, 7, 1, 5}}).DefaultSeasonLength(), 5U);
  EXPECT_EQ(Make(Day, {{Hour, 24}}).DefaultSeasonLength(), 24U);
  EXPECT_EQ(Make(SimpleSequence).DefaultSeasonLength(), 1U);
}

TEST(PeriodNames, AreThoseOfTheDocuments) {
  const char* const kNames[] = {"SimpleSequence", "Cycle",  "Year", "Quarter",
                                "Month",          "Week",   "Day",  "Hour",
                                "Minute",         "Second", "Obs"};
  for (unsigned value = 0; value < 11; ++value) {
    EXPECT_STREQ(tsx::FindName(tsx::kPeriodNames, value), kNames[value]);
    EXPECT_STREQ(tsx::FindName(tsx::kPeriodAndTermNames, value), kNames[value]);
  }
}

TEST(PeriodNames, TermsAreNamesOnly) {
  EXPECT_EQ(tsx::FindName(tsx::kPeriodNames, 11), nullptr);
  EXPECT_EQ(tsx::FindName(tsx::kPeriodNames, 12), nullptr);
  EXPECT_STREQ(tsx::FindName(tsx::kPeriodAndTermNames, 11), "LagTerm");
  EXPECT_STREQ(tsx::FindName(tsx::kPeriodAndTermNames, 12), "ZeroLagTerm");
}

TEST(PeriodNames, OtherValuesHaveNone) {
  EXPECT_EQ(tsx::FindName(tsx::kPeriodNames, 13), nullptr);
  EXPECT_EQ(tsx::FindName(tsx::kPeriodAndTermNames, 13), nullptr);
  EXPECT_EQ(tsx::FindName(tsx::kPeriodAndTermNames, 4294967295U), nullptr);
}

}  // namespace
