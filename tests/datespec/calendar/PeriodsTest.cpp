// Periods, lowest increment, and what each of the two refuses.

#include <gtest/gtest.h>
#include <limits>

#include "datespec/Calendars.h"

namespace {

using test::AddGaps;
using test::AreSame;
using test::Indexes;
using test::Make;
using test::Monthly;
using test::MonthsInQuarters;
using test::PeriodOf;
using test::StartAt;
using test::Told;
using test::TypesOf;
using test::Yearly;
using namespace test::periods;
using Types = std::vector<TSXDateSpec::PeriodType>;

constexpr unsigned kMost = std::numeric_limits<unsigned>::max();

TEST(BasePeriod, StandsAlone) {
  const TSXDateSpec spec(Year);
  EXPECT_EQ(spec.PeriodCount(), 1U);
  EXPECT_EQ(spec.LowestIncrement(), 1U);
  EXPECT_EQ(spec.DefaultSeasonLength(), 1U);
  EXPECT_EQ(spec.ForcedSeasonLength(), 0U);
  EXPECT_EQ(spec.FiscalYearStart(), 0U);
  EXPECT_EQ(spec.GapCount(), 0U);
  EXPECT_EQ(test::FirstCaseDayOf(spec), (Indexes{0, 0, 0}));
  EXPECT_EQ(test::FirstCaseNumberOf(spec), 0);
}

TEST(BasePeriod, HasNoCycle) { EXPECT_EQ(PeriodOf(Yearly(), 0), (Told{Year, 0, 0, 0})); }

TEST(BasePeriod, ObsIsRefusedByThrowing40200) {
  try {
    const TSXDateSpec spec(Obs);
    FAIL() << "nothing thrown";
  } catch (const MCTime::MCStatus& status) {
    EXPECT_EQ(status.GetCode(), 40200U);
    EXPECT_TRUE(status.IsError());
  }
}

TEST(BasePeriod, EveryOtherTypeWillDo) {
  for (unsigned type = SimpleSequence; type < Obs; ++type) {
    EXPECT_EQ(PeriodOf(TSXDateSpec(TSXDateSpec::PeriodType{type}), 0).type, type);
  }
}

TEST(GetPeriod, PastTheEndReturnsTheCountAndFillsNothing) {
  Told told{Week, 1, 2, 3};
  const TSXDateSpec spec = Monthly();
  EXPECT_EQ(spec.GetPeriod(2, told.type, told.cycle_length, told.start, told.length), 2U);
  EXPECT_EQ(spec.GetPeriod(kMost, told.type, told.cycle_length, told.start, told.length), 2U);
  EXPECT_EQ(told, (Told{Week, 1, 2, 3}));
}

TEST(GetPeriod, TellsAWholeCycleAsLengthZeroHoweverItWasGiven) {
  EXPECT_EQ(PeriodOf(Make(Year, {{Month, 12, 0, 0}}), 1), (Told{Month, 12, 0, 0}));
  EXPECT_EQ(PeriodOf(Make(Year, {{Month, 12, 0, 12}}), 1), (Told{Month, 12, 0, 0}));
}

TEST(GetPeriod, TellsAPartOfACycle) {
  EXPECT_EQ(PeriodOf(Make(Week, {{Day, 7, 1, 5}}), 1), (Told{Day, 7, 1, 5}));
}

TEST(DefaultSeasonLength, IsTheFinestPeriodsLengthInSteps) {
  TSXDateSpec spec = Monthly();
  EXPECT_EQ(spec.DefaultSeasonLength(), 12U);
  EXPECT_EQ(spec.SetLowestIncrement(3).GetCode(), 0U);
  EXPECT_EQ(spec.DefaultSeasonLength(), 4U);
}

TEST(DefaultSeasonLength, CountsTheIndexesInUseOnly) {
  EXPECT_EQ(test::Workdays().DefaultSeasonLength(), 5U);
}

TEST(DefaultSeasonLength, IsOneForABaseAloneWhateverTheIncrement) {
  TSXDateSpec spec = Yearly();
  EXPECT_EQ(spec.SetLowestIncrement(5).GetCode(), 0U);
  EXPECT_EQ(spec.DefaultSeasonLength(), 1U);
}

TEST(DefaultSeasonLength, TakesNoNoticeOfTheForcedOne) {
  TSXDateSpec spec = Monthly();
  spec.SetForcedSeasonLength(4);
  EXPECT_EQ(spec.ForcedSeasonLength(), 4U);
  EXPECT_EQ(spec.DefaultSeasonLength(), 12U);
}

TEST(AddPeriod, ASecondTimeReplaces) {
  TSXDateSpec spec = Monthly();
  EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 0).GetCode(), 0U);
  EXPECT_EQ(spec.PeriodCount(), 2U);
  EXPECT_EQ(spec.AddPeriod(Month, 24, 3, 6).GetCode(), 0U);
  EXPECT_EQ(TypesOf(spec), (Types{Year, Month}));
  EXPECT_EQ(PeriodOf(spec, 1), (Told{Month, 24, 3, 6}));
}

TEST(AddPeriod, PutsPeriodsInOrderOfTypeWhateverTheOrderOfCalls) {
  const TSXDateSpec spec = Make(Week, {{Second, 60}, {Day, 7}, {Minute, 60}, {Hour, 24}});
  EXPECT_EQ(TypesOf(spec), (Types{Week, Day, Hour, Minute, Second}));
}

TEST(AddPeriod, TakesEveryTypeAtOnceUnderASimpleSequence) {
  const TSXDateSpec spec = Make(SimpleSequence, {{Obs, 2},
                                                 {Cycle, 2},
                                                 {Month, 12},
                                                 {Second, 2},
                                                 {Year, 2},
                                                 {Day, 2},
                                                 {Quarter, 4},
                                                 {Week, 2},
                                                 {Hour, 2},
                                                 {Minute, 2}});
  EXPECT_EQ(TypesOf(spec), (Types{SimpleSequence, Cycle, Year, Quarter, Month, Week, Day, Hour,
                                  Minute, Second, Obs}));
}

TEST(AddPeriod, CycleShorterThanTwoIs40201) {
  TSXDateSpec spec = Yearly();
  EXPECT_EQ(spec.AddPeriod(Month, 0, 0, 0).GetCode(), 40201U);
  EXPECT_EQ(spec.AddPeriod(Month, 1, 0, 0).GetCode(), 40201U);
  EXPECT_EQ(spec.AddPeriod(Month, 2, 0, 0).GetCode(), 0U);
}

TEST(AddPeriod, IndexesBeyondTheCycleAre40201) {
  TSXDateSpec spec = Yearly();
  EXPECT_EQ(spec.AddPeriod(Month, 12, 6, 7).GetCode(), 40201U);
  EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 13).GetCode(), 40201U);
  EXPECT_EQ(spec.AddPeriod(Month, 12, 6, 6).GetCode(), 0U);
}

TEST(AddPeriod, WholeCycleFromALaterStartIs40201) {
  EXPECT_EQ(Yearly().AddPeriod(Month, 12, 1, 0).GetCode(), 40201U);
}

TEST(AddPeriod, StartPlusLengthIsSummedWithoutWrapAround) {
  TSXDateSpec spec = Yearly();
  EXPECT_EQ(spec.AddPeriod(Month, 12, kMost, 2).GetCode(), 40201U);
  EXPECT_EQ(spec.AddPeriod(Month, 12, 2, kMost).GetCode(), 40201U);
  EXPECT_EQ(spec.AddPeriod(Month, kMost, kMost, kMost).GetCode(), 40201U);
  EXPECT_EQ(spec.AddPeriod(Month, kMost, kMost - 1, 1).GetCode(), 0U);
}

TEST(AddPeriod, NotFinerThanTheBaseIs40202) {
  TSXDateSpec spec = Make(Month);
  EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 0).GetCode(), 40202U);
  EXPECT_EQ(spec.AddPeriod(Year, 12, 0, 0).GetCode(), 40202U);
  EXPECT_EQ(spec.AddPeriod(Obs, 12, 0, 0).GetCode(), 0U);
}

// One row per base, one column per added type: '.' goes, 'x' is refused with 40204, '-' is not
// finer than the base and so refused with 40202. A Month in a Quarter is 40206, '6'.
TEST(AddPeriod, KeepsTheYearAndTheWeekFamilyApart) {
  const char* const kRows[] = {
      // SCYQMWDhmsO
      "-..........",  // SimpleSequence
      "--.........",  // Cycle
      "---..xxxxx.",  // Year
      "----6xxxxx.",  // Quarter
      "-----xxxxx.",  // Month
      "------.....",  // Week
      "-------....",  // Day
      "--------...",  // Hour
      "---------..",  // Minute
      "----------.",  // Second
  };
  for (unsigned base = SimpleSequence; base < Obs; ++base) {
    for (unsigned type = SimpleSequence; type <= Obs; ++type) {
      TSXDateSpec spec(TSXDateSpec::PeriodType{base});
      const unsigned code = spec.AddPeriod(TSXDateSpec::PeriodType{type}, 12, 0, 0).GetCode();
      const char told = code == 0       ? '.'
                        : code == 40202 ? '-'
                        : code == 40204 ? 'x'
                        : code == 40206 ? '6'
                                        : '?';
      EXPECT_EQ(told, kRows[base][type]) << "base " << base << ", type " << type;
    }
  }
}

TEST(AddPeriod, ACycleBaseGoesByItsSecondPeriod) {
  TSXDateSpec years = Make(Cycle, {{Year, 4}});
  EXPECT_EQ(years.AddPeriod(Day, 7, 0, 0).GetCode(), 40204U);
  EXPECT_EQ(years.AddPeriod(Month, 12, 0, 0).GetCode(), 0U);

  TSXDateSpec days = Make(Cycle, {{Day, 7}});
  EXPECT_EQ(days.AddPeriod(Year, 4, 0, 0).GetCode(), 40204U);
  EXPECT_EQ(days.AddPeriod(Month, 12, 0, 0).GetCode(), 40204U);
  EXPECT_EQ(days.AddPeriod(Week, 4, 0, 0).GetCode(), 0U);
  EXPECT_EQ(days.AddPeriod(Obs, 4, 0, 0).GetCode(), 0U);
}

TEST(AddPeriod, ACycleOfObservationsTakesEitherFamilyAndThenThatOnly) {
  TSXDateSpec spec = Make(Cycle, {{Obs, 4}});
  EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 0).GetCode(), 0U);
  EXPECT_EQ(spec.AddPeriod(Day, 7, 0, 0).GetCode(), 40204U);
  TSXDateSpec other = Make(Cycle, {{Obs, 4}});
  EXPECT_EQ(other.AddPeriod(Day, 7, 0, 0).GetCode(), 0U);
  EXPECT_EQ(other.AddPeriod(Month, 12, 0, 0).GetCode(), 40204U);
}

TEST(AddPeriod, ACycleMayStandBeforeAnything) {
  TSXDateSpec spec = Make(SimpleSequence, {{Month, 12}, {Day, 7}});
  EXPECT_EQ(spec.AddPeriod(Cycle, 2, 0, 0).GetCode(), 0U);
}

TEST(AddPeriod, NamelessTypesComeBehindObs) {
  constexpr auto kNameless = TSXDateSpec::PeriodType{11};
  TSXDateSpec spec = Make(Year, {{kNameless, 2}, {Obs, 3}});
  EXPECT_EQ(TypesOf(spec), (Types{Year, Obs, kNameless}));
}

TEST(AddPeriod, OnePeriodMoreThanATupleHoldsIs40204) {
  TSXDateSpec spec(SimpleSequence);
  for (unsigned type = 1; type < test::Tuple::kCapacity; ++type) {
    ASSERT_EQ(spec.AddPeriod(TSXDateSpec::PeriodType{100 * type}, 2, 0, 0).GetCode(), 0U);
  }
  const TSXDateSpec before = spec;
  EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 0).GetCode(), 40204U);
  EXPECT_TRUE(AreSame(spec, before));
  EXPECT_EQ(spec.AddPeriod(TSXDateSpec::PeriodType{500}, 3, 0, 0).GetCode(), 0U) << "replaces";
}

TEST(QuarterAndMonth, AgreeInEitherOrder) {
  EXPECT_EQ(TypesOf(Make(Year, {{Quarter, 4}, {Month, 12}})), (Types{Year, Quarter, Month}));
  EXPECT_EQ(TypesOf(Make(Year, {{Month, 12}, {Quarter, 4}})), (Types{Year, Quarter, Month}));
}

TEST(QuarterAndMonth, AgreeOnAPartOfTheYear) {
  // The second and third quarter: months 3 to 8.
  EXPECT_EQ(Make(Year, {{Quarter, 4, 1, 2}, {Month, 12, 3, 6}}).PeriodCount(), 3U);
  // A start within the quarter counts for that quarter.
  EXPECT_EQ(Make(Year, {{Quarter, 4, 1, 2}, {Month, 12, 5, 6}}).PeriodCount(), 3U);
}

TEST(QuarterAndMonth, MonthsOfAnotherCycleAre40206) {
  EXPECT_EQ(Make(Year, {{Quarter, 4}}).AddPeriod(Month, 13, 0, 12).GetCode(), 40206U);
  EXPECT_EQ(Make(Year, {{Month, 12}}).AddPeriod(Quarter, 5, 0, 4).GetCode(), 40206U);
}

TEST(QuarterAndMonth, MonthsOfAnotherLengthAre40206) {
  EXPECT_EQ(Make(Year, {{Quarter, 4}}).AddPeriod(Month, 12, 0, 9).GetCode(), 40206U);
  EXPECT_EQ(Make(Year, {{Month, 12}}).AddPeriod(Quarter, 4, 0, 3).GetCode(), 40206U);
}

TEST(QuarterAndMonth, MonthsThatStartInAnotherQuarterAre40206) {
  EXPECT_EQ(Make(Year, {{Quarter, 4, 1, 2}}).AddPeriod(Month, 12, 2, 6).GetCode(), 40206U);
  EXPECT_EQ(Make(Year, {{Quarter, 4, 1, 2}}).AddPeriod(Month, 12, 6, 6).GetCode(), 40206U);
  EXPECT_EQ(Make(Year, {{Month, 12, 3, 6}}).AddPeriod(Quarter, 4, 0, 2).GetCode(), 40206U);
}

TEST(QuarterAndMonth, AQuarterWithoutCycleHasNoMonths) {
  EXPECT_EQ(Make(Quarter).AddPeriod(Month, 3, 0, 0).GetCode(), 40206U);
}

TEST(QuarterAndMonth, ThreeQuartersAreCountedWithoutWrapAround) {
  // 3 * 1431655770 is 14 in 32 bits.
  EXPECT_EQ(Make(Year, {{Quarter, 1431655770U, 0, 4}}).AddPeriod(Month, 14, 0, 12).GetCode(),
            40206U);
}

TEST(QuarterAndMonth, AreNotComparedWhenOneIsReplaced) {
  TSXDateSpec spec = MonthsInQuarters();
  EXPECT_EQ(spec.AddPeriod(Month, 24, 0, 0).GetCode(), 0U);
  EXPECT_EQ(spec.AddPeriod(Quarter, 7, 0, 0).GetCode(), 0U);
}

TEST(QuarterAndMonth, OnceAgreedTheQuarterNeverCounts) {
  TSXDateSpec spec = MonthsInQuarters();
  EXPECT_EQ(spec.IndexTuple(13).GetIndexes(), (Indexes{1, 0, 1}));
  // Also after a replacement: half a year's months, still two quarters of them.
  ASSERT_EQ(spec.AddPeriod(Month, 12, 0, 6).GetCode(), 0U);
  EXPECT_EQ(spec.IndexTuple(5).GetIndexes(), (Indexes{0, 1, 5}));
  EXPECT_EQ(spec.IndexTuple(6).GetIndexes(), (Indexes{1, 0, 0}));
}

TEST(QuarterAndMonth, APeriodInFrontMovesTheExcludedQuarterAlong) {
  TSXDateSpec spec = Make(SimpleSequence, {{Quarter, 4}, {Month, 12}});
  EXPECT_EQ(spec.IndexTuple(17).GetIndexes(), (Indexes{1, 1, 5}));
  ASSERT_EQ(spec.AddPeriod(Year, 10, 0, 0).GetCode(), 0U);
  EXPECT_EQ(spec.IndexTuple(137).GetIndexes(), (Indexes{1, 1, 1, 5}));
  ASSERT_EQ(spec.AddPeriod(Cycle, 2, 0, 0).GetCode(), 0U);
  EXPECT_EQ(spec.IndexTuple(377).GetIndexes(), (Indexes{1, 1, 1, 1, 5}));
}

TEST(QuarterAndMonth, APeriodBehindLeavesTheExcludedQuarterWhereItIs) {
  TSXDateSpec spec = MonthsInQuarters();
  ASSERT_EQ(spec.AddPeriod(Obs, 2, 0, 0).GetCode(), 0U);
  EXPECT_EQ(spec.IndexTuple(35).GetIndexes(), (Indexes{1, 1, 5, 1}));
}

TEST(LowestIncrement, DividesTheFinestLength) {
  TSXDateSpec spec = Monthly();
  for (const unsigned increment : {1U, 2U, 3U, 4U, 6U, 12U}) {
    EXPECT_EQ(spec.SetLowestIncrement(increment).GetCode(), 0U);
    EXPECT_EQ(spec.LowestIncrement(), increment);
  }
  for (const unsigned increment : {0U, 5U, 7U, 13U, 24U, kMost}) {
    EXPECT_EQ(spec.SetLowestIncrement(increment).GetCode(), 40207U);
    EXPECT_EQ(spec.LowestIncrement(), 12U);
  }
}

TEST(LowestIncrement, GoesByTheIndexesInUse) {
  TSXDateSpec spec = test::Workdays();
  EXPECT_EQ(spec.SetLowestIncrement(7).GetCode(), 40207U);
  EXPECT_EQ(spec.SetLowestIncrement(5).GetCode(), 0U);
}

TEST(LowestIncrement, OfABaseAloneIsAnyFromOneOn) {
  TSXDateSpec spec = Yearly();
  EXPECT_EQ(spec.SetLowestIncrement(1).GetCode(), 0U);
  EXPECT_EQ(spec.SetLowestIncrement(7).GetCode(), 0U);
  EXPECT_EQ(spec.SetLowestIncrement(kMost).GetCode(), 0U);
  EXPECT_EQ(spec.SetLowestIncrement(0).GetCode(), 40207U);
  EXPECT_EQ(spec.LowestIncrement(), kMost);
}

TEST(LowestIncrement, OfASimpleSequenceIs40205) {
  EXPECT_EQ(Make(SimpleSequence).SetLowestIncrement(1).GetCode(), 40205U);
  EXPECT_EQ(Make(SimpleSequence).SetLowestIncrement(0).GetCode(), 40205U);
  EXPECT_EQ(Make(SimpleSequence, {{Obs, 4}}).SetLowestIncrement(2).GetCode(), 40205U);
}

TEST(LowestIncrement, MustDivideANewFinestPeriod) {
  TSXDateSpec spec = Monthly();
  ASSERT_EQ(spec.SetLowestIncrement(2).GetCode(), 0U);
  EXPECT_EQ(spec.AddPeriod(Obs, 3, 0, 0).GetCode(), 40207U);
  EXPECT_EQ(spec.AddPeriod(Obs, 5, 1, 2).GetCode(), 0U) << "the length in use is 2";
}

TEST(LowestIncrement, MustDivideTheFirstPeriodUnderABase) {
  TSXDateSpec spec = Yearly();
  ASSERT_EQ(spec.SetLowestIncrement(5).GetCode(), 0U);
  EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 0).GetCode(), 40207U);
  EXPECT_EQ(spec.AddPeriod(Month, 10, 0, 0).GetCode(), 0U);
}

TEST(LowestIncrement, MustDivideAReplacementOfTheFinestPeriod) {
  TSXDateSpec spec = Monthly();
  ASSERT_EQ(spec.SetLowestIncrement(3).GetCode(), 0U);
  EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 7).GetCode(), 40207U);
  EXPECT_EQ(PeriodOf(spec, 1), (Told{Month, 12, 0, 0}));
  EXPECT_EQ(spec.AddPeriod(Month, 12, 0, 6).GetCode(), 0U);
}

TEST(LowestIncrement, IsNoConcernOfCoarserPeriods) {
  TSXDateSpec spec = Make(Week, {{Hour, 24}});
  ASSERT_EQ(spec.SetLowestIncrement(8).GetCode(), 0U);
  EXPECT_EQ(spec.AddPeriod(Day, 7, 0, 0).GetCode(), 0U) << "inserted";
  EXPECT_EQ(spec.AddPeriod(Day, 7, 1, 5).GetCode(), 0U) << "replaced";
}

TEST(RefusalOrder, CycleBeforeFineness) {
  EXPECT_EQ(Make(Month).AddPeriod(Year, 1, 0, 0).GetCode(), 40201U);
}

TEST(RefusalOrder, FinenessBeforeFamily) {
  EXPECT_EQ(Make(Day).AddPeriod(Month, 12, 0, 0).GetCode(), 40202U);
}

TEST(RefusalOrder, FamilyBeforeIncrement) {
  TSXDateSpec spec = Make(Year);
  ASSERT_EQ(spec.SetLowestIncrement(5).GetCode(), 0U);
  EXPECT_EQ(spec.AddPeriod(Day, 7, 0, 0).GetCode(), 40204U);
}

TEST(RefusalOrder, QuarterAndMonthBeforeIncrement) {
  TSXDateSpec spec = Make(Year, {{Quarter, 4}});
  ASSERT_EQ(spec.SetLowestIncrement(2).GetCode(), 0U);
  EXPECT_EQ(spec.AddPeriod(Month, 11, 0, 0).GetCode(), 40206U);
}

// A calendar on which everything is set that can be set.
TSXDateSpec Furnished() {
  TSXDateSpec spec = Make(Week, {{Day, 7}, {Hour, 24}});
  EXPECT_EQ(spec.SetLowestIncrement(6).GetCode(), 0U);
  StartAt(spec, {10, 3, 12});
  AddGaps(spec, {2, 5});
  EXPECT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  spec.SetForcedSeasonLength(9);
  spec.SetFiscalYearStart(4);
  return spec;
}

void ExpectAfresh(const TSXDateSpec& spec, const Indexes& start) {
  EXPECT_EQ(spec.GapCount(), 0U);
  EXPECT_EQ(test::FirstCaseDayOf(spec), (Indexes{0, 0, 0}));
  EXPECT_EQ(test::FirstCaseNumberOf(spec), 0);
  EXPECT_EQ(spec.FirstCaseIndex().GetIndexes(), start);
  EXPECT_EQ(spec.CaseOffset(5), 5) << "no gap is left behind";
  EXPECT_EQ(spec.VirtualCaseOffset(5), 5);
}

TEST(Recomputing, AddedPeriodStartsAfresh) {
  TSXDateSpec spec = Furnished();
  ASSERT_EQ(spec.AddPeriod(Minute, 60, 0, 0).GetCode(), 0U);
  ExpectAfresh(spec, {0, 0, 0, 0});
}

TEST(Recomputing, ReplacedPeriodStartsAfresh) {
  TSXDateSpec spec = Furnished();
  ASSERT_EQ(spec.AddPeriod(Day, 7, 2, 4).GetCode(), 0U);
  ExpectAfresh(spec, {0, 2, 0});
}

TEST(Recomputing, LowestIncrementStartsAfresh) {
  TSXDateSpec spec = Furnished();
  ASSERT_EQ(spec.SetLowestIncrement(6).GetCode(), 0U) << "the same one";
  ExpectAfresh(spec, {0, 0, 0});
}

TEST(Recomputing, KeepsSeasonAndFiscalYear) {
  TSXDateSpec spec = Furnished();
  ASSERT_EQ(spec.AddPeriod(Minute, 60, 0, 0).GetCode(), 0U);
  ASSERT_EQ(spec.SetLowestIncrement(5).GetCode(), 0U);
  EXPECT_EQ(spec.ForcedSeasonLength(), 9U);
  EXPECT_EQ(spec.FiscalYearStart(), 4U);
}

TEST(Refusal, OfAPeriodOrIncrementChangesNothing) {
  const TSXDateSpec before = Furnished();
  TSXDateSpec spec = before;
  EXPECT_EQ(spec.AddPeriod(Minute, 1, 0, 0).GetCode(), 40201U);
  EXPECT_EQ(spec.AddPeriod(Week, 4, 0, 0).GetCode(), 40202U);
  EXPECT_EQ(spec.AddPeriod(Hour, 23, 0, 0).GetCode(), 40207U);
  EXPECT_EQ(spec.AddPeriod(Minute, 59, 0, 0).GetCode(), 40207U);
  EXPECT_EQ(spec.SetLowestIncrement(0).GetCode(), 40207U);
  EXPECT_EQ(spec.SetLowestIncrement(7).GetCode(), 40207U);
  EXPECT_TRUE(AreSame(spec, before));
  EXPECT_EQ(TypesOf(spec), (Types{Week, Day, Hour}));
}

TEST(Refusal, OfAFamilyOrAQuarterChangesNothing) {
  TSXDateSpec spec = Make(Year, {{Quarter, 4}});
  StartAt(spec, {1999, 2});
  AddGaps(spec, {3});
  const TSXDateSpec before = spec;
  EXPECT_EQ(spec.AddPeriod(Day, 7, 0, 0).GetCode(), 40204U);
  EXPECT_EQ(spec.AddPeriod(Month, 11, 0, 0).GetCode(), 40206U);
  EXPECT_TRUE(AreSame(spec, before));
  EXPECT_EQ(TypesOf(spec), (Types{Year, Quarter}));
}

}  // namespace
