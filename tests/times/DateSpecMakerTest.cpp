#include <gtest/gtest.h>

#include <tsxtimes/DateAxis.h>

#include "Axes.h"

namespace tsxtimes {
namespace {

using test::AxisOf;
using test::Times;

TEST(DateSpecMaker, MonthlyAxisIsYearsAndMonths) {
  const TSXDateSpec spec = MakeDateSpec(AxisOf(Times("1949-03", 1, 24)), {});
  TSXDateSpec::PeriodType type{};
  unsigned cycle = 0;
  unsigned start = 0;
  unsigned length = 0;
  ASSERT_EQ(spec.PeriodCount(), 2U);
  spec.GetPeriod(1, type, cycle, start, length);
  EXPECT_EQ(type, TSXDateSpec::Month);
  EXPECT_EQ(cycle, 12U);
  EXPECT_EQ(spec.FirstCaseIndex().GetIndexes(), (std::vector<unsigned>{1949, 2}));
  EXPECT_EQ(spec.ForcedSeasonLength(), 0U);
  EXPECT_EQ(spec.GapCount(), 0U);
}

TEST(DateSpecMaker, SeasonOfTheCalendarIsNotForced) {
  EXPECT_EQ(
      MakeDateSpec(AxisOf(Times("1949-03", 1, 24)), {.season_length = 12}).ForcedSeasonLength(),
      0U);
}

TEST(DateSpecMaker, AnotherSeasonIsForced) {
  EXPECT_EQ(
      MakeDateSpec(AxisOf(Times("1949-03", 1, 24)), {.season_length = 6}).ForcedSeasonLength(), 6U);
}

TEST(DateSpecMaker, SkippedCasesBecomeGapsOnRequest) {
  const DateAxis axis = AxisOf({"1949-11", "1949-12", "1950-02", "1950-05"});
  EXPECT_EQ(MakeDateSpec(axis, {}).GapCount(), 0U);
  const TSXDateSpec spec = MakeDateSpec(axis, {.skipped_as_gaps = true});
  ASSERT_EQ(spec.GapCount(), 3U);
  EXPECT_EQ(spec.GapIndex(0).GetIndexes(), (std::vector<unsigned>{1950, 0}));
  EXPECT_EQ(spec.GapIndex(2).GetIndexes(), (std::vector<unsigned>{1950, 3}));
}

TEST(DateSpecMaker, FirstCaseDayIsSetOnRequestOnly) {
  const DateAxis axis = AxisOf(Times("2020-01-06", 1, 10));
  unsigned day = 9;
  unsigned month = 9;
  unsigned year = 9;
  MakeDateSpec(axis, {}).GetFirstCaseDay(day, month, year);
  EXPECT_EQ(day, 0U);
  MakeDateSpec(axis, {.first_case_day = true}).GetFirstCaseDay(day, month, year);
  EXPECT_EQ(day, 6U);
  EXPECT_EQ(month, 1U);
  EXPECT_EQ(year, 2020U);
}

// The calendar counts cases as the axis does: the default season, and the position of every case.
TEST(DateSpecMaker, CalendarAndAxisAgreeOnEveryCase) {
  std::vector<std::string> workingHours;
  for (const char* day : {"2020-01-02", "2020-01-03", "2020-01-06", "2020-01-07", "2020-01-09"}) {
    for (const std::string& time : Times(std::string(day) + " 08:00", 7200, 5)) {
      workingHours.push_back(time);
    }
  }
  const std::vector<std::vector<std::string>> all = {
      Times("7", 3, 10),
      Times("1871", 2, 10),
      Times("1949-Q4", 1, 10),
      Times("1949-Q4", 2, 10),
      Times("1949-Q4", 3, 10),
      Times("1949-11", 1, 30),
      Times("1949-11", 3, 30),
      Times("1949-11", 5, 30),
      Times("2020-01-29", 1, 30),
      Times("2020-01-29", 7, 30),
      Times("2020-01-29", 10, 30),
      {"2020-01-02", "2020-01-03", "2020-01-06", "2020-01-07", "2020-01-13"},
      Times("2020-01-29 21:00", 3600, 80),
      Times("2020-01-29 21:00", 7200, 80),
      Times("2020-01-29 21:00", 18000, 80),
      workingHours,
      Times("2020-01-29 23:40", 600, 80),
      Times("2020-01-29 23:59:50", 5, 80),
      Times("2020-01-29 23:59:50", 7, 80)};
  for (const auto& times : all) {
    const DateAxis axis = AxisOf(times);
    SCOPED_TRACE(times[0] + ", " + axis.name);
    const TSXDateSpec spec = MakeDateSpec(axis, {});
    EXPECT_EQ(spec.DefaultSeasonLength(), axis.SeasonLength()) << times[0] << " " << axis.name;
    for (std::size_t i = 0; i < times.size(); ++i) {
      // The axis of the times from here on begins where the calendar has this case.
      const DateAxis rest = AxisOf({times.begin() + static_cast<std::ptrdiff_t>(i), times.end()});
      if (rest.name != axis.name) break;
      const std::vector<unsigned> indexes = rest.calendar.DateSpec().FirstCaseIndex().GetIndexes();
      const bool countsFromFirstDay =
          axis.calendar.DateSpec().PeriodCount() == 1 && axis.Form().unit == TimeUnit::kSecond;
      const bool countsSteps = axis.Form().unit == TimeUnit::kNumber;
      if (countsFromFirstDay || countsSteps) continue;
      EXPECT_EQ(spec.IndexTuple(static_cast<long>(axis.row_cases[i])).GetIndexes(), indexes)
          << times[i] << " " << axis.name;
    }
  }
}

}  // namespace
}  // namespace tsxtimes
