#include <gtest/gtest.h>

#include <tsxtimes/CalendarTimes.h>

namespace tsxtimes {
namespace {

using Tuple = TSXDateSpec::TSXIndexTuple;

struct Added {
  TSXDateSpec::PeriodType type;
  unsigned cycle_length;
  unsigned start = 0;
  unsigned length = 0;
};

// A calendar with its first case, as a document's reader would make it.
TSXDateSpec Spec(TSXDateSpec::PeriodType base, const std::vector<Added>& periods,
                 const std::vector<unsigned>& first, unsigned increment = 1) {
  TSXDateSpec spec(base);
  for (const Added& period : periods) {
    EXPECT_FALSE(
        spec.AddPeriod(period.type, period.cycle_length, period.start, period.length).IsError());
  }
  EXPECT_EQ(spec.SetLowestIncrement(increment).IsError(), base == TSXDateSpec::SimpleSequence);
  Tuple tuple(spec);
  EXPECT_TRUE(tuple.SetIndexes(first));
  EXPECT_FALSE(spec.SetFirstCaseIndex(tuple).IsError());
  return spec;
}

TSXDateSpec WorkingDays(unsigned week, unsigned day) {
  return Spec(TSXDateSpec::Week, {{TSXDateSpec::Day, 7, 1, 5}}, {week, day});
}

std::string TextOf(const TSXDateSpec& spec, std::int64_t i) {
  const auto times = CalendarTimes::Of(spec);
  return times ? times->CaseText(i) : "no times";
}

TEST(CalendarTimes, MonthsOfADocumentAreMonths) {
  const TSXDateSpec spec = Spec(TSXDateSpec::Year, {{TSXDateSpec::Month, 12}}, {1949, 3});
  EXPECT_EQ(TextOf(spec, 0), "1949-04");
  EXPECT_EQ(TextOf(spec, 12), "1950-04");
}

TEST(CalendarTimes, HalfYearsAreEverySixthMonth) {
  EXPECT_EQ(TextOf(Spec(TSXDateSpec::Year, {{TSXDateSpec::Month, 12}}, {1949, 6}, 6), 1),
            "1950-01");
}

TEST(CalendarTimes, QuartersOfADocumentAreQuarters) {
  EXPECT_EQ(TextOf(Spec(TSXDateSpec::Year, {{TSXDateSpec::Quarter, 4}}, {1960, 3}), 1), "1961-Q1");
}

TEST(CalendarTimes, MonthsInQuartersAreMonths) {
  const TSXDateSpec spec =
      Spec(TSXDateSpec::Year, {{TSXDateSpec::Quarter, 4}, {TSXDateSpec::Month, 12}}, {1960, 3, 11});
  EXPECT_EQ(TextOf(spec, 0), "1960-12");
  EXPECT_EQ(TextOf(spec, 1), "1961-01");
  EXPECT_EQ(CalendarTimes::Of(spec)->CaseOfTick(12 * 1961), 1);
}

TEST(CalendarTimes, LoneMonthsCountFromTheYearZero) {
  EXPECT_EQ(TextOf(Spec(TSXDateSpec::Month, {}, {24000}, 5), 1), "2000-06");
}

// 2020-01-06, a Monday, is day 737429 and lies in week 105347.
TEST(CalendarTimes, WeeksBeginOnSunday) {
  EXPECT_EQ(TextOf(Spec(TSXDateSpec::Week, {}, {105347}), 0), "2020-01-05");
  EXPECT_EQ(TextOf(Spec(TSXDateSpec::Week, {}, {105347}), 2), "2020-01-19");
}

TEST(CalendarTimes, WorkingDaysAreDatesWithoutWeekends) {
  EXPECT_EQ(TextOf(WorkingDays(105347, 5), 0), "2020-01-10");
  EXPECT_EQ(TextOf(WorkingDays(105347, 5), 1), "2020-01-13");
}

TEST(CalendarTimes, HoursAreDatesWithTime) {
  const TSXDateSpec spec = Spec(TSXDateSpec::Day, {{TSXDateSpec::Hour, 24}}, {737429, 22});
  EXPECT_EQ(TextOf(spec, 0), "2020-01-06 22:00");
  EXPECT_EQ(TextOf(spec, 2), "2020-01-07 00:00");
}

TEST(CalendarTimes, SecondsAreTold) {
  const TSXDateSpec spec =
      Spec(TSXDateSpec::Day,
           {{TSXDateSpec::Hour, 24}, {TSXDateSpec::Minute, 60}, {TSXDateSpec::Second, 60}},
           {737429, 23, 59, 59});
  EXPECT_EQ(TextOf(spec, 1), "2020-01-07 00:00:00");
}

TEST(CalendarTimes, LoneHoursCountFromTheFirstDayOfOurEra) {
  EXPECT_EQ(TextOf(Spec(TSXDateSpec::Hour, {}, {5}, 5), 4), "0001-01-02 01:00");
}

TEST(CalendarTimes, SequencesAreNumbers) {
  EXPECT_EQ(TextOf(Spec(TSXDateSpec::SimpleSequence, {}, {7}), 3), "10");
}

TEST(CalendarTimes, GapsAreSqueezedOut) {
  TSXDateSpec spec = WorkingDays(105347, 1);
  spec.AddGap(2);
  const auto times = CalendarTimes::Of(spec);
  EXPECT_EQ(times->CaseText(1), "2020-01-07");
  EXPECT_EQ(times->CaseText(2), "2020-01-09");
  EXPECT_EQ(times->TickOfOffset(2), 737431);
  EXPECT_EQ(times->CaseOfTick(737432), 2);
  EXPECT_EQ(times->CaseOfTick(737431), std::nullopt);
}

TEST(CalendarTimes, StepsOfDaysBeginAtAMultipleOfTheStep) {
  EXPECT_EQ(TextOf(Spec(TSXDateSpec::Day, {}, {737420}, 10), 0), "2019-12-28");
}

TEST(CalendarTimes, DayOfTheFirstCaseTellsWhereStepsBegin) {
  TSXDateSpec spec = Spec(TSXDateSpec::Day, {}, {737420}, 10);
  ASSERT_TRUE(spec.SetFirstCaseDay(6, 1, 2020));
  EXPECT_EQ(TextOf(spec, 0), "2020-01-06");
  EXPECT_EQ(TextOf(spec, 1), "2020-01-16");
}

TEST(CalendarTimes, DayOfTheFirstCaseThatIsNoneIsLeftAlone) {
  TSXDateSpec spec = Spec(TSXDateSpec::Day, {}, {737429});
  ASSERT_TRUE(spec.SetFirstCaseDay(30, 2, 2020));
  EXPECT_EQ(TextOf(spec, 0), "2020-01-06");
}

TEST(CalendarTimes, CyclesAndObservationsAreNoTimes) {
  EXPECT_FALSE(CalendarTimes::Of(Spec(TSXDateSpec::Cycle, {}, {1})));
  EXPECT_FALSE(CalendarTimes::Of(Spec(TSXDateSpec::Day, {{TSXDateSpec::Obs, 4}}, {1, 0})));
}

TEST(CalendarTimes, DaysOfOtherLengthsAreNoTimes) {
  EXPECT_FALSE(CalendarTimes::Of(Spec(TSXDateSpec::Day, {{TSXDateSpec::Hour, 8}}, {1, 0})));
  EXPECT_FALSE(CalendarTimes::Of(Spec(TSXDateSpec::Week, {{TSXDateSpec::Day, 5}}, {1, 0})));
  EXPECT_TRUE(CalendarTimes::Of(Spec(TSXDateSpec::Week, {{TSXDateSpec::Hour, 168}}, {1, 0})));
}

TEST(CalendarTimes, FormThatDoesNotSuitTheCalendarIsRefused) {
  const TSXDateSpec months = Spec(TSXDateSpec::Year, {{TSXDateSpec::Month, 12}}, {1949, 3});
  const TSXDateSpec days = Spec(TSXDateSpec::Day, {}, {737429});
  const TSXDateSpec numbers = Spec(TSXDateSpec::SimpleSequence, {}, {7});
  EXPECT_FALSE(CalendarTimes::Of(months, {.form = {TimeUnit::kNumber}}));
  EXPECT_FALSE(CalendarTimes::Of(days, {.form = {TimeUnit::kMonth}}));
  EXPECT_FALSE(CalendarTimes::Of(numbers, {.form = {TimeUnit::kDay}}));
  EXPECT_FALSE(CalendarTimes::Of(numbers, {.stride = 0}));
}

TEST(CalendarTimes, AnchorTellsTheDayOfTheMonth) {
  const TSXDateSpec spec = Spec(TSXDateSpec::Year, {{TSXDateSpec::Month, 12}}, {2020, 0});
  const auto times =
      CalendarTimes::Of(spec, {.form = {TimeUnit::kSecond}, .month_day = 31, .time_of_day = 3600});
  EXPECT_EQ(times->CaseText(1), "2020-02-29 01:00");
  EXPECT_EQ(times->CaseOfTick(ParseTime("2020-02-29 01:00").value->tick), 1);
  EXPECT_EQ(times->CaseOfTick(ParseTime("2020-02-28 01:00").value->tick), std::nullopt);
  EXPECT_EQ(times->CaseOfTick(ParseTime("2020-02-29 02:00").value->tick), std::nullopt);
}

TEST(CalendarTimes, CasesAreAtTheirVeryTimesOnly) {
  const auto times = CalendarTimes::Of(Spec(TSXDateSpec::Day, {}, {737420}, 10));
  EXPECT_EQ(times->CaseOfTick(737440), 2);
  EXPECT_EQ(times->CaseOfTick(737441), std::nullopt);
  EXPECT_EQ(times->CaseOfTick(737410), std::nullopt);
  EXPECT_EQ(times->CaseOfTick(-10), std::nullopt);
  EXPECT_EQ(times->OffsetOfTick(737410), -1);
}

// In seconds such ticks would go round the 64 bits, and this one come out at 2020-01-06.
TEST(CalendarTimes, TicksTooLargeToCountAreNoCases) {
  const std::int64_t tick = 737429 + (std::int64_t{1} << 57);
  const TSXDateSpec days = Spec(TSXDateSpec::Day, {}, {737429});
  EXPECT_EQ(CalendarTimes::Of(days)->CaseOfTick(737429), 0);
  EXPECT_EQ(CalendarTimes::Of(days)->CaseOfTick(tick), std::nullopt);
  EXPECT_FALSE(CalendarTimes::StartingAt(tick, days, {.form = {TimeUnit::kDay}}));
}

TEST(CalendarTimes, BeforeTheFirstCaseThereAreOffsets) {
  const auto days = CalendarTimes::Of(WorkingDays(105347, 1));
  EXPECT_EQ(days->TickOfOffset(-1), 737426);  // Friday
  EXPECT_EQ(CalendarTimes::Of(WorkingDays(0, 1))->TickOfOffset(-1), 0);
  EXPECT_EQ(CalendarTimes::Of(Spec(TSXDateSpec::Year, {}, {2}))->TickOfOffset(-3), 0);
}

// 12 * 10^9 seconds do not fit an index of 32 bits.
TEST(CalendarTimes, LoneBaseGoesBeyondWhatATupleHolds) {
  const auto times = CalendarTimes::Of(Spec(TSXDateSpec::Second, {}, {0}, 4'000'000'000));
  EXPECT_EQ(times->TickOfCase(3), 12'000'000'000);
  EXPECT_EQ(times->CaseOfTick(12'000'000'000), 3);
}

TEST(CalendarTimesStartingAt, FirstCaseIsRoundedDownAndTheRestIsKept) {
  TSXDateSpec spec(TSXDateSpec::Day);
  spec.SetLowestIncrement(10);
  const auto times = CalendarTimes::StartingAt(737429, spec, {.form = {TimeUnit::kDay}});
  EXPECT_EQ(times->DateSpec().FirstCaseIndex().GetIndexes(), std::vector<unsigned>{737420});
  EXPECT_EQ(times->Anchor().shift, 9 * 86400);
  EXPECT_EQ(times->CaseText(1), "2020-01-16");
}

TEST(CalendarTimesStartingAt, GapsAreForgotten) {
  TSXDateSpec spec = WorkingDays(1, 1);
  spec.AddGap(1);
  const auto times = CalendarTimes::StartingAt(737429, spec, {.form = {TimeUnit::kDay}});
  EXPECT_EQ(times->DateSpec().GapCount(), 0U);
}

TEST(CalendarTimesStartingAt, DaysThatTheWeekLeavesOutAreRefused) {
  const TimeAnchor dates{.form = {TimeUnit::kDay}};
  EXPECT_TRUE(CalendarTimes::StartingAt(737429, WorkingDays(1, 1), dates));
  EXPECT_FALSE(CalendarTimes::StartingAt(737428, WorkingDays(1, 1), dates));  // Sunday
  EXPECT_FALSE(CalendarTimes::StartingAt(737434, WorkingDays(1, 1), dates));  // Saturday
}

TEST(CalendarTimesStartingAt, TimesThatNoIndexTellsAreRefused) {
  const TSXDateSpec months = Spec(TSXDateSpec::Year, {{TSXDateSpec::Month, 12}}, {2020, 0});
  EXPECT_FALSE(CalendarTimes::StartingAt(737429, months, {.form = {TimeUnit::kDay}}));
  EXPECT_FALSE(CalendarTimes::StartingAt(-1, months, {.form = {TimeUnit::kMonth}}));
  const TSXDateSpec numbers(TSXDateSpec::SimpleSequence);
  EXPECT_FALSE(CalendarTimes::StartingAt(std::int64_t{1} << 32, numbers, {}));
}

TEST(CalendarTimes, CopiesTellTheSame) {
  auto times = CalendarTimes::Of(WorkingDays(105347, 5));
  const CalendarTimes copy = *times;
  times.reset();
  EXPECT_EQ(copy.CaseText(1), "2020-01-13");
}

}  // namespace
}  // namespace tsxtimes
