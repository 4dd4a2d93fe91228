#include <gtest/gtest.h>

#include <tsxtimes/DateAxis.h>

#include "RandomTimes.h"

// What holds on every axis, seen on thousands of them: of all units and steps, with holes, working
// days and hours, and days that stand for months.
namespace tsxtimes {
namespace {

constexpr int kAxes = 4500;

std::int64_t TickOf(const std::string& text) { return ParseTime(text).value->tick; }

struct Times {
  std::vector<std::string> texts;
  DateAxis axis;
};

// Passes the axes without a fault to `check`; most are.
template <typename Check>
void ForEachAxis(Check check) {
  test::RandomTimes random(20260101);
  int usable = 0;
  for (int i = 0; i < kAxes && !testing::Test::HasFailure(); ++i) {
    const auto column = random.Next();
    TimeForm form = ParseTime(column.texts.front()).value->form;
    form.unit = column.unit;
    std::vector<std::int64_t> ticks;
    for (const std::string& text : column.texts) ticks.push_back(TickOf(text));
    const Times times{column.texts, MakeDateAxis(form, ticks)};
    if (!times.axis.Fault().empty()) continue;
    ++usable;
    SCOPED_TRACE(times.texts.front() + " to " + times.texts.back() + ", " + times.axis.name);
    check(times);
  }
  EXPECT_GT(usable, kAxes * 9 / 10);
}

std::int64_t CaseOfRow(const DateAxis& axis, std::size_t row) {
  return static_cast<std::int64_t>(axis.row_cases[row]);
}

bool IsSequence(const DateAxis& axis) { return axis.HasPeriod(TSXDateSpec::SimpleSequence); }

// Hours, minutes or seconds that are counted from the midnight before the first.
bool CountsFromMidnight(const DateAxis& axis) {
  return axis.calendar.DateSpec().PeriodCount() == 1 && axis.FinestPeriod() >= TSXDateSpec::Hour;
}

TEST(AxisLaws, CasesHaveTheTimesOfTheirRows) {
  ForEachAxis([](const Times& times) {
    for (std::size_t i = 0; i < times.texts.size(); ++i) {
      ASSERT_EQ(times.axis.CaseText(times.axis.row_cases[i]), times.texts[i]);
    }
  });
}

TEST(AxisLaws, TextOfACaseNamesTheCase) {
  ForEachAxis([](const Times& times) {
    for (std::size_t i = 0; i < times.axis.CaseCount() + 20; ++i) {
      TimeValue time = *ParseTime(times.axis.CaseText(i)).value;
      time.form.unit = times.axis.Form().unit;
      ASSERT_EQ(times.axis.CaseOf(time), i) << times.axis.CaseText(i);
    }
  });
}

TEST(AxisLaws, LaterCasesHaveLaterTimes) {
  ForEachAxis([](const Times& times) {
    const CalendarTimes& calendar = times.axis.calendar;
    const auto end = static_cast<std::int64_t>(times.axis.CaseCount()) + 20;
    for (std::int64_t i = 0; i < end; ++i) {
      ASSERT_LT(calendar.TickOfOffset(i), calendar.TickOfOffset(i + 1)) << i;
    }
  });
}

// With the anchor at hand, nothing is lost on the way through a date specification.
TEST(AxisLaws, CalendarWithItsAnchorGivesTheRowsBack) {
  ForEachAxis([](const Times& times) {
    const bool gaps = !IsSequence(times.axis);
    const TSXDateSpec spec = MakeDateSpec(times.axis, {.skipped_as_gaps = gaps});
    const auto calendar = CalendarTimes::Of(spec, times.axis.calendar.Anchor());
    for (std::size_t i = 0; i < times.texts.size(); ++i) {
      const auto at = gaps ? static_cast<std::int64_t>(i) : CaseOfRow(times.axis, i);
      ASSERT_EQ(calendar->CaseText(at), times.texts[i]);
      ASSERT_EQ(calendar->CaseOfTick(TickOf(times.texts[i])), at);
    }
  });
}

// What of a text a calendar with this finest period can say.
std::string Cut(const std::string& text, TSXDateSpec::PeriodType finest) {
  switch (finest) {
    case TSXDateSpec::Year:
      return text.substr(0, 4);
    case TSXDateSpec::Month:
      return text.substr(0, 7);
    case TSXDateSpec::Week:
    case TSXDateSpec::Day:
      return text.substr(0, 10);
    case TSXDateSpec::Hour:
      return text.substr(0, 13) + ":00";
    case TSXDateSpec::Minute:
      return text.substr(0, 16);
    default:
      return text;
  }
}

// Without the anchor, times come back as far as their calendar tells them ...
TEST(AxisLaws, CalendarAloneGivesTheRowsBackAsFarAsItTellsThem) {
  int exact = 0;
  ForEachAxis([&exact](const Times& times) {
    const DateAxis& axis = times.axis;
    const bool roundsDown = axis.calendar.DateSpec().LowestIncrement() > 1;
    if (roundsDown || IsSequence(axis) || CountsFromMidnight(axis)) return;
    if (axis.FinestPeriod() == TSXDateSpec::Week) return;
    ++exact;
    const auto calendar = CalendarTimes::Of(MakeDateSpec(axis, {.skipped_as_gaps = true}));
    for (std::size_t i = 0; i < times.texts.size(); ++i) {
      ASSERT_EQ(calendar->CaseText(static_cast<std::int64_t>(i)),
                Cut(times.texts[i], axis.FinestPeriod()));
    }
  });
  EXPECT_GT(exact, kAxes / 5);
}

// ... and where they lie several units apart, earlier by less than a step, all by the same.
TEST(AxisLaws, CalendarAloneRoundsDownByLessThanAStep) {
  int rounded = 0;
  ForEachAxis([&rounded](const Times& times) {
    const DateAxis& axis = times.axis;
    if (IsSequence(axis) || CountsFromMidnight(axis)) return;
    ++rounded;
    const auto calendar = CalendarTimes::Of(MakeDateSpec(axis, {}));
    const std::int64_t lost =
        TickOf(Cut(times.texts[0], axis.FinestPeriod())) - calendar->TickOfCase(0);
    ASSERT_GE(lost, 0);
    ASSERT_LT(lost, calendar->TickOfCase(1) - calendar->TickOfCase(0));
    for (std::size_t i = 0; i < times.texts.size(); ++i) {
      const std::int64_t tick = TickOf(Cut(times.texts[i], axis.FinestPeriod()));
      ASSERT_EQ(calendar->CaseOfTick(tick - lost), CaseOfRow(axis, i)) << times.texts[i];
    }
  });
  EXPECT_GT(rounded, kAxes / 2);
}

// A calendar that counts from midnight keeps the time of day alone.
TEST(AxisLaws, CalendarAloneCountsLoneHoursFromTheFirstDay) {
  int lone = 0;
  ForEachAxis([&lone](const Times& times) {
    const DateAxis& axis = times.axis;
    if (!CountsFromMidnight(axis)) return;
    ++lone;
    const auto calendar = CalendarTimes::Of(MakeDateSpec(axis, {}));
    const std::int64_t first = calendar->TickOfCase(0);
    const std::int64_t lost = TickOf(times.texts[0]) % kSecondsPerDay - first;
    ASSERT_GE(lost, 0);
    ASSERT_LT(lost, calendar->TickOfCase(1) - first);
    for (std::size_t i = 0; i < times.texts.size(); ++i) {
      ASSERT_EQ(calendar->TickOfCase(CaseOfRow(axis, i)) - first,
                TickOf(times.texts[i]) - TickOf(times.texts[0]));
    }
  });
  EXPECT_GT(lone, kAxes / 50);
}

TEST(AxisLaws, CalendarAloneCountsNumbersInSteps) {
  ForEachAxis([](const Times& times) {
    const DateAxis& axis = times.axis;
    if (!IsSequence(axis)) return;
    const auto calendar = CalendarTimes::Of(MakeDateSpec(axis, {}));
    const std::int64_t stride = axis.calendar.Anchor().stride;
    for (std::size_t i = 0; i < times.texts.size(); ++i) {
      ASSERT_EQ(calendar->TickOfCase(CaseOfRow(axis, i)), TickOf(times.texts[i]) / stride);
    }
  });
}

// With the day of the first case, dates lose nothing, whatever their step.
TEST(AxisLaws, DayOfTheFirstCaseKeepsDates) {
  int dates = 0;
  ForEachAxis([&dates](const Times& times) {
    const DateAxis& axis = times.axis;
    if (axis.FinestPeriod() != TSXDateSpec::Day) return;
    ++dates;
    const TSXDateSpec spec = MakeDateSpec(axis, {.first_case_day = true});
    const auto calendar = CalendarTimes::Of(spec);
    for (std::size_t i = 0; i < times.texts.size(); ++i) {
      ASSERT_EQ(calendar->CaseText(CaseOfRow(axis, i)), times.texts[i].substr(0, 10));
    }
  });
  EXPECT_GT(dates, kAxes / 20);
}

}  // namespace
}  // namespace tsxtimes
