#include <gtest/gtest.h>
#include <stdexcept>

#include <tsxtimes/DateAxis.h>

#include "Axes.h"

namespace tsxtimes {
namespace {

using test::AxisOf;
using test::Times;
using test::Without;
using Indexes = std::vector<std::size_t>;

constexpr const char* kTypeNames[] = {"Sequence", "Cycle", "Year",   "Quarter", "Month", "Week",
                                      "Day",      "Hour",  "Minute", "Second",  "Obs"};

// "Year 1949 | Month/12 0 | by 1": each period with its cycle, the part used of it, and the first
// case's index; then the increment.
std::string Calendar(const DateAxis& axis) {
  const TSXDateSpec& spec = axis.calendar.DateSpec();
  const std::vector<unsigned> first = spec.FirstCaseIndex().GetIndexes();
  std::string text;
  for (unsigned i = 0; i < spec.PeriodCount(); ++i) {
    TSXDateSpec::PeriodType type{};
    unsigned cycleLength = 0;
    unsigned start = 0;
    unsigned length = 0;
    spec.GetPeriod(i, type, cycleLength, start, length);
    text += kTypeNames[type];
    if (cycleLength != 0) text += "/" + std::to_string(cycleLength);
    if (length != 0) text += "[" + std::to_string(start) + "+" + std::to_string(length) + "]";
    text += " " + std::to_string(first[i]) + " | ";
  }
  return text + "by " + std::to_string(spec.LowestIncrement());
}

// Weekdays from 2020-01-06, a Monday, on for `weeks` weeks; the offsets count from Monday.
std::vector<std::string> WeekdaysOf(int weeks, const std::vector<int>& offsets,
                                    const std::string& time = "") {
  const std::int64_t monday = ParseTime("2020-01-06").value->tick;
  std::vector<std::string> texts;
  for (int week = 0; week < weeks; ++week) {
    for (const int offset : offsets) {
      texts.push_back(TimeText({TimeUnit::kDay}, monday + 7 * week + offset) + time);
    }
  }
  return texts;
}

TEST(DateAxis, RunningNumbersAreASimpleSequence) {
  const DateAxis axis = AxisOf({"1", "2", "3"});
  EXPECT_EQ(Calendar(axis), "Sequence 1 | by 1");
  EXPECT_EQ(axis.SeasonLength(), 1U);
  EXPECT_EQ(axis.CaseText(4), "5");
}

TEST(DateAxis, RunningNumbersInStepsAreCountedInSteps) {
  const DateAxis axis = AxisOf({"10", "15", "20", "30"});
  EXPECT_EQ(Calendar(axis), "Sequence 2 | by 1");
  EXPECT_EQ(axis.row_cases, (Indexes{0, 1, 2, 4}));
  EXPECT_EQ(axis.CaseText(3), "25");
}

TEST(DateAxis, YearsAreYears) {
  const DateAxis axis = AxisOf({"1871", "1872", "1874"});
  EXPECT_EQ(Calendar(axis), "Year 1871 | by 1");
  EXPECT_EQ(axis.name, "yearly");
  EXPECT_EQ(axis.SkippedCases(), Indexes{2});
  EXPECT_EQ(axis.CaseText(4), "1875");
}

TEST(DateAxis, EverySecondYearIsAnIncrement) {
  const DateAxis axis = AxisOf({"1871", "1873", "1877"});
  EXPECT_EQ(Calendar(axis), "Year 1870 | by 2");
  EXPECT_EQ(axis.name, "every 2 years");
  EXPECT_EQ(axis.row_cases, (Indexes{0, 1, 3}));
  EXPECT_EQ(axis.CaseText(1), "1873");
}

TEST(DateAxis, QuartersCountFromZero) {
  const DateAxis axis = AxisOf({"1960-Q3", "1960-Q4", "1961-Q1"});
  EXPECT_EQ(Calendar(axis), "Year 1960 | Quarter/4 2 | by 1");
  EXPECT_EQ(axis.SeasonLength(), 4U);
  EXPECT_EQ(axis.CaseText(2), "1961-Q1");
}

TEST(DateAxis, MonthsCountFromZero) {
  const DateAxis axis = AxisOf(Times("1949-01", 1, 14));
  EXPECT_EQ(Calendar(axis), "Year 1949 | Month/12 0 | by 1");
  EXPECT_EQ(axis.name, "monthly");
  EXPECT_EQ(axis.SeasonLength(), 12U);
  EXPECT_EQ(axis.CaseText(12), "1950-01");
}

TEST(DateAxis, SkippedMonthIsACaseOfItsOwn) {
  const DateAxis axis = AxisOf({"1949-11", "1949-12", "1950-02"});
  EXPECT_EQ(axis.row_cases, (Indexes{0, 1, 3}));
  EXPECT_EQ(axis.SkippedCases(), Indexes{2});
  EXPECT_EQ(axis.CaseCount(), 4U);
}

TEST(DateAxis, QuartersWrittenAsMonthsAreStepsOfThreeMonths) {
  const DateAxis axis = AxisOf({"2000-04", "2000-07", "2000-10"});
  EXPECT_EQ(Calendar(axis), "Year 2000 | Month/12 3 | by 3");
  EXPECT_EQ(axis.SeasonLength(), 4U);
}

TEST(DateAxis, StepOfSeveralMonthsIsToldByTheMonthItStartsWith) {
  const DateAxis axis = AxisOf({"2000-03", "2000-06", "2000-09"});
  EXPECT_EQ(Calendar(axis), "Year 2000 | Month/12 0 | by 3");
  EXPECT_EQ(axis.CaseText(3), "2000-12");
}

TEST(DateAxis, SameMonthOfEachYearIsYearly) {
  EXPECT_EQ(Calendar(AxisOf({"2000-05", "2001-05", "2002-05"})), "Year 2000 | by 1");
}

TEST(DateAxis, StepOfFiveMonthsFitsNoYear) {
  const DateAxis axis = AxisOf({"2000-01", "2000-06", "2000-11"});
  EXPECT_EQ(Calendar(axis), "Month 24000 | by 5");
  EXPECT_EQ(axis.SeasonLength(), 1U);
  EXPECT_EQ(axis.CaseText(3), "2001-04");
}

TEST(DateAxis, FirstDaysOfMonthsAreMonths) {
  const DateAxis axis = AxisOf({"2020-01-01", "2020-02-01", "2020-04-01"});
  EXPECT_EQ(Calendar(axis), "Year 2020 | Month/12 0 | by 1");
  EXPECT_EQ(axis.CaseText(2), "2020-03-01");
}

TEST(DateAxis, LastDaysOfMonthsAreMonths) {
  const DateAxis axis = AxisOf({"2020-01-31", "2020-02-29", "2020-03-31", "2020-04-30"});
  EXPECT_EQ(axis.name, "monthly");
  EXPECT_EQ(axis.CaseText(13), "2021-02-28");
}

TEST(DateAxis, LastDaysOfShortMonthsAreStillLastDays) {
  EXPECT_EQ(AxisOf({"2021-04-30", "2021-06-30"}).CaseText(2), "2021-08-31");
}

TEST(DateAxis, ThirtiethsOfMonthsAreMonths) {
  const DateAxis axis = AxisOf({"2021-01-30", "2021-02-28", "2021-03-30"});
  EXPECT_EQ(axis.name, "monthly");
  EXPECT_EQ(axis.CaseText(4), "2021-05-30");
}

TEST(DateAxis, LastDaysOfQuartersAreStepsOfThreeMonths) {
  const DateAxis axis = AxisOf({"2020-03-31", "2020-06-30", "2020-09-30"});
  EXPECT_EQ(Calendar(axis), "Year 2020 | Month/12 0 | by 3");
  EXPECT_EQ(axis.CaseText(3), "2020-12-31");
}

TEST(DateAxis, LastDaysOfYearsAreYears) {
  EXPECT_EQ(Calendar(AxisOf({"2019-12-31", "2020-12-31", "2021-12-31"})), "Year 2019 | by 1");
}

// 2020-01-06 is day 737429 after 0001-01-01, in week (737429 + 1) / 7 = 105347 with rest 1: Monday.
TEST(DateAxis, DaysAreDaysOfTheWeek) {
  const DateAxis axis = AxisOf(Times("2020-01-06", 1, 10));
  EXPECT_EQ(Calendar(axis), "Week 105347 | Day/7 1 | by 1");
  EXPECT_EQ(axis.name, "daily");
  EXPECT_EQ(axis.SeasonLength(), 7U);
  EXPECT_EQ(axis.CaseText(10), "2020-01-16");
}

TEST(DateAxis, EverySeventhDayIsAWeek) {
  const DateAxis axis = AxisOf(Times("2020-01-06", 7, 10));
  EXPECT_EQ(Calendar(axis), "Week 105347 | by 1");
  EXPECT_EQ(axis.name, "weekly");
  EXPECT_EQ(axis.SeasonLength(), 1U);
  EXPECT_EQ(axis.CaseText(10), "2020-03-16");
}

TEST(DateAxis, EveryFourteenthDayIsEverySecondWeek) {
  EXPECT_EQ(Calendar(AxisOf(Times("2020-01-06", 14, 5))), "Week 105346 | by 2");
}

TEST(DateAxis, EveryTenthDayIsAStepOfDays) {
  EXPECT_EQ(Calendar(AxisOf(Times("2020-01-06", 10, 5))), "Day 737420 | by 10");
}

TEST(DateAxis, WeekendsThatNeverOccurAreLeftOutOfTheWeek) {
  const DateAxis axis = AxisOf(WeekdaysOf(3, {0, 1, 2, 3, 4}));
  EXPECT_EQ(Calendar(axis), "Week 105347 | Day/7[1+5] 1 | by 1");
  EXPECT_EQ(axis.name, "daily, Monday to Friday");
  EXPECT_EQ(axis.CaseCount(), 15U);
  EXPECT_EQ(axis.SeasonLength(), 5U);
  EXPECT_EQ(axis.CaseText(15), "2020-01-27");
}

TEST(DateAxis, HolidayIsASkippedWorkingDay) {
  const DateAxis axis = AxisOf(Without(WeekdaysOf(2, {0, 1, 2, 3, 4}), {"2020-01-08"}));
  EXPECT_EQ(axis.SkippedCases(), Indexes{2});
}

TEST(DateAxis, SundayAloneMayBeLeftOut) {
  EXPECT_EQ(Calendar(AxisOf(WeekdaysOf(2, {0, 1, 2, 3, 4, 5}))),
            "Week 105347 | Day/7[1+6] 1 | by 1");
}

TEST(DateAxis, FiveDaysAreTooFewToTellAWorkingWeek) {
  EXPECT_EQ(Calendar(AxisOf(WeekdaysOf(1, {0, 1, 2, 3, 4}))), "Week 105347 | Day/7 1 | by 1");
}

TEST(DateAxis, HoursAreHoursOfTheDay) {
  const DateAxis axis = AxisOf(Times("2020-01-06 22:00", 3600, 30));
  EXPECT_EQ(Calendar(axis), "Day 737429 | Hour/24 22 | by 1");
  EXPECT_EQ(axis.name, "hourly");
  EXPECT_EQ(axis.SeasonLength(), 24U);
  EXPECT_EQ(axis.CaseText(2), "2020-01-07 00:00");
}

TEST(DateAxis, EverySixthHourIsAnIncrement) {
  const DateAxis axis = AxisOf(Times("2020-01-06T03:00", 6 * 3600, 10));
  EXPECT_EQ(Calendar(axis), "Day 737429 | Hour/24 0 | by 6");
  EXPECT_EQ(axis.SeasonLength(), 4U);
  EXPECT_EQ(axis.CaseText(1), "2020-01-06T09:00");
}

TEST(DateAxis, EveryFifthHourFitsNoDay) {
  EXPECT_EQ(Calendar(AxisOf(Times("2020-01-06 03:00", 5 * 3600, 10))), "Hour 0 | by 5");
}

TEST(DateAxis, NightsThatNeverOccurAreLeftOutOfTheDay) {
  std::vector<std::string> times;
  for (const char* day : {"2020-01-06", "2020-01-07", "2020-01-08"}) {
    for (const std::string& time : Times(std::string(day) + " 09:30", 3600, 8)) {
      times.push_back(time);
    }
  }
  const DateAxis axis = AxisOf(times);
  EXPECT_EQ(Calendar(axis), "Day 737429 | Hour/24[9+8] 9 | by 1");
  EXPECT_EQ(axis.CaseCount(), 24U);
  EXPECT_EQ(axis.CaseText(24), "2020-01-09 09:30");
}

TEST(DateAxis, WorkingHoursOfWorkingDays) {
  std::vector<std::string> times;
  for (const std::string& day : WeekdaysOf(2, {0, 1, 2, 3, 4})) {
    for (const char* time : {" 09:00", " 10:00", " 11:00"}) times.push_back(day + time);
  }
  const DateAxis axis = AxisOf(times);
  EXPECT_EQ(Calendar(axis), "Week 105347 | Day/7[1+5] 1 | Hour/24[9+3] 9 | by 1");
  EXPECT_EQ(axis.CaseCount(), 30U);
  EXPECT_EQ(axis.CaseText(30), "2020-01-20 09:00");
}

TEST(DateAxis, SameTimeEachDayIsDaily) {
  const DateAxis axis = AxisOf(Times("2020-01-06 06:30", 86400, 10));
  EXPECT_EQ(Calendar(axis), "Week 105347 | Day/7 1 | by 1");
  EXPECT_EQ(axis.CaseText(10), "2020-01-16 06:30");
}

TEST(DateAxis, SameTimeEachWorkingDayIsDaily) {
  const DateAxis axis = AxisOf(WeekdaysOf(2, {0, 1, 2, 3, 4}, " 17:00"));
  EXPECT_EQ(Calendar(axis), "Week 105347 | Day/7[1+5] 1 | by 1");
  EXPECT_EQ(axis.CaseText(10), "2020-01-20 17:00");
}

TEST(DateAxis, QuartersOfAnHourAreStepsOfMinutes) {
  const DateAxis axis = AxisOf(Times("2020-01-06 22:20", 900, 10));
  EXPECT_EQ(Calendar(axis), "Day 737429 | Hour/24 22 | Minute/60 15 | by 15");
  EXPECT_EQ(axis.name, "every 15 minutes");
  EXPECT_EQ(axis.SeasonLength(), 4U);
}

TEST(DateAxis, SecondsHaveAllPeriods) {
  EXPECT_EQ(Calendar(AxisOf(Times("2020-01-06 22:20:07", 1, 10))),
            "Day 737429 | Hour/24 22 | Minute/60 20 | Second/60 7 | by 1");
}

TEST(DateAxis, EverySeventhSecondFitsNoMinute) {
  EXPECT_EQ(Calendar(AxisOf(Times("2020-01-06 00:01:07", 7, 10))), "Second 63 | by 7");
}

TEST(DateAxis, LoneTimeHasACalendar) {
  EXPECT_EQ(Calendar(AxisOf({"1949-05"})), "Year 1949 | Month/12 4 | by 1");
  EXPECT_EQ(Calendar(AxisOf({"2020-01-06"})), "Week 105347 | Day/7 1 | by 1");
  EXPECT_EQ(Calendar(AxisOf({"2020-01-06 06:30"})), "Week 105347 | Day/7 1 | by 1");
}

TEST(DateAxis, TimesBeforeTheFirstAreTheCallersMistake) {
  EXPECT_THROW(MakeDateAxis({TimeUnit::kMonth}, {24001, 24000}), std::logic_error);
  EXPECT_THROW(MakeDateAxis({TimeUnit::kDay}, {-3, -2}), std::logic_error);
}

TimeValue TimeOf(const char* text) { return *ParseTime(text).value; }

TEST(DateAxisCaseOf, TimeInTheFormOfTheAxisIsItsCase) {
  const DateAxis axis = AxisOf({"1949-11", "1949-12", "1950-02"});
  EXPECT_EQ(axis.CaseOf(TimeOf("1949-12")), 1U);
  EXPECT_EQ(axis.CaseOf(TimeOf("1950-01")), 2U);
  EXPECT_EQ(axis.CaseOf(TimeOf("1950-05")), 6U);
  EXPECT_EQ(axis.CaseOf(TimeOf("1949-10")), std::nullopt);
}

TEST(DateAxisCaseOf, TimeBetweenTwoCasesIsNone) {
  EXPECT_EQ(AxisOf({"1871", "1873", "1877"}).CaseOf(TimeOf("1872")), std::nullopt);
  EXPECT_EQ(AxisOf(WeekdaysOf(3, {0, 1, 2, 3, 4})).CaseOf(TimeOf("2020-01-11")), std::nullopt);
}

TEST(DateAxisCaseOf, NumberIsThatOfACaseFromOne) {
  const DateAxis axis = AxisOf({"1949-11", "1949-12", "1950-02"});
  EXPECT_EQ(axis.CaseOf(TimeOf("1")), 0U);
  EXPECT_EQ(axis.CaseOf(TimeOf("3")), 2U);
  EXPECT_EQ(axis.CaseOf(TimeOf("0")), std::nullopt);
}

TEST(DateAxisCaseOf, NumbersOfFourDigitsAreYearsWhereTheTimesAre) {
  const DateAxis axis = AxisOf({"1871", "1872"});
  EXPECT_EQ(axis.CaseOf(TimeOf("1872")), 1U);
  EXPECT_EQ(axis.CaseOf(TimeOf("2")), 1U);
  EXPECT_EQ(axis.CaseOf(TimeOf("3000")), 2999U);
}

TEST(DateAxisCaseOf, NumbersAreTimesWhereTheTimesAreNumbers) {
  EXPECT_EQ(AxisOf({"10", "15", "20"}).CaseOf(TimeOf("15")), 1U);
  EXPECT_EQ(AxisOf({"10", "15", "20"}).CaseOf(TimeOf("1")), std::nullopt);
}

TEST(DateAxisCaseOf, OtherFormsNameNoCase) {
  EXPECT_EQ(AxisOf({"1949-11", "1949-12"}).CaseOf(TimeOf("1949-11-01")), std::nullopt);
}

TEST(DateAxisFault, TimesThatFillATenthOfTheCasesAreRegularEnough) {
  EXPECT_EQ(AxisOf({"1", "2", "30"}).Fault(), "");
}

TEST(DateAxisFault, TimesScatteredOverManyCasesAreNot) {
  EXPECT_EQ(AxisOf({"1", "2", "400"}).Fault(),
            "the times follow no regular step: the 3 times there are would be spread over 400 "
            "cases (numbered)");
}

TEST(DateAxisFault, StepsOfMoreThanAnIncrementHoldsAreRefused) {
  EXPECT_EQ(AxisOf({"0001-01-01 00:00:00", "0501-01-01 00:00:01"}).Fault(),
            "the times lie too far apart");
}

// Every row's case is told by the very time the row has.
TEST(DateAxis, CasesHaveTheTimesOfTheirRows) {
  const std::vector<std::vector<std::string>> all = {
      {"1949-11", "1949-12", "1950-02"},
      {"2021-01-30", "2021-02-28", "2021-04-30"},
      {"1871", "1875", "1877"},
      {"2020-01-31 12:00", "2020-02-29 12:00", "2020-04-30 12:00"},
      Without(WeekdaysOf(5, {0, 1, 2, 3, 4, 5}, " 08:15"), {"2020-01-14 08:15"}),
      WeekdaysOf(5, {-1, 0, 1, 2, 3}),
      Without(Times("2020-02-28 07:45", 3600, 90), {"2020-02-29 12:45"}),
      Times("2020-02-28 23:59:30", 45, 90)};
  for (const auto& times : all) {
    const DateAxis axis = AxisOf(times);
    for (std::size_t i = 0; i < times.size(); ++i) {
      EXPECT_EQ(axis.CaseText(axis.row_cases[i]), times[i]);
    }
  }
}

}  // namespace
}  // namespace tsxtimes
