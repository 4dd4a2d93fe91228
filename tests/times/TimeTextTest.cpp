#include <gtest/gtest.h>

#include <tsxtimes/TimeValue.h>

namespace tsxtimes {
namespace {

std::int64_t TickOf(std::string_view text) {
  const ParsedTime time = ParseTime(text);
  return time.value ? time.value->tick : -1;
}
TimeUnit UnitOf(std::string_view text) { return ParseTime(text).value->form.unit; }
std::string FaultOf(std::string_view text) { return ParseTime(text).impossible; }
bool IsTime(std::string_view text) { return ParseTime(text).value.has_value(); }

TEST(TimeForm, MonthsCountFromJanuaryOfYearZero) {
  EXPECT_EQ(UnitOf("1949-01"), TimeUnit::kMonth);
  EXPECT_EQ(TickOf("1949-01"), 12 * 1949);
  EXPECT_EQ(TickOf("1949-12"), 12 * 1949 + 11);
}

TEST(TimeForm, QuartersCountFromTheFirstOfYearZero) {
  EXPECT_EQ(UnitOf("1960-Q1"), TimeUnit::kQuarter);
  EXPECT_EQ(TickOf("1960-Q1"), 4 * 1960);
  EXPECT_EQ(TickOf("1960Q4"), 4 * 1960 + 3);
}

TEST(TimeForm, WholeNumbersStandForThemselves) {
  EXPECT_EQ(UnitOf("1871"), TimeUnit::kNumber);
  EXPECT_EQ(TickOf("1871"), 1871);
  EXPECT_EQ(TickOf("0"), 0);
}
// Reckoned by hand: 1970-01-01 is 719162 days after 0001-01-01, and 2000-03-01 11017 days later.
TEST(TimeForm, DaysCountFromTheFirstDayOfOurEra) {
  EXPECT_EQ(UnitOf("0001-01-01"), TimeUnit::kDay);
  EXPECT_EQ(TickOf("0001-01-01"), 0);
  EXPECT_EQ(TickOf("1970-01-01"), 719162);
  EXPECT_EQ(TickOf("2000-03-01"), 719162 + 11017);
}

TEST(TimeForm, TimesOfDayCountSeconds) {
  EXPECT_EQ(UnitOf("0001-01-02 00:00"), TimeUnit::kSecond);
  EXPECT_EQ(TickOf("0001-01-02 01:02:03"), 86400 + 3723);
  EXPECT_EQ(TickOf("0001-01-02T23:59"), 86400 + 23 * 3600 + 59 * 60);
}

TEST(TimeForm, ImpossibleTimesAreTold) {
  EXPECT_EQ(FaultOf("1999-13"), "there is no month 13");
  EXPECT_EQ(FaultOf("1999-00"), "there is no month 0");
  EXPECT_EQ(FaultOf("0000-01"), "there is no year 0");
  EXPECT_EQ(FaultOf("1999-Q5"), "there is no quarter 5");
  EXPECT_EQ(FaultOf("1999-Q0"), "there is no quarter 0");
  EXPECT_EQ(FaultOf("2023-02-30"), "2023-02 has no day 30");
  EXPECT_EQ(FaultOf("1900-02-29"), "1900-02 has no day 29");
  EXPECT_EQ(FaultOf("2023-02-30 12:00"), "2023-02 has no day 30");
  EXPECT_EQ(FaultOf("2023-02-03 24:00"), "there is no hour 24");
  EXPECT_EQ(FaultOf("2023-02-03 23:60"), "there is no minute 60");
  EXPECT_EQ(FaultOf("2023-02-03 23:00:60"), "there is no second 60");
  EXPECT_EQ(FaultOf("99999999999"), "the number is too large to count cases by");
}

TEST(TimeForm, PlaceOfWhatIsImpossibleIsTold) {
  EXPECT_EQ(ParseTime("1999-13").place, 5U);
  EXPECT_EQ(ParseTime("0000-01").place, 0U);
  EXPECT_EQ(ParseTime("1999-Q5").place, 6U);
  EXPECT_EQ(ParseTime("2023-02-30").place, 8U);
  EXPECT_EQ(ParseTime("2023-02-30 24:00").place, 11U);
  EXPECT_EQ(ParseTime("2023-02-03 9:00:60").place, 16U);
}

TEST(TimeForm, PlaceWhereATextCeasesToBeATimeIsTold) {
  EXPECT_EQ(ParseTime("1949/01").place, 4U);
  EXPECT_EQ(ParseTime("1949-Qx").place, 6U);
  EXPECT_EQ(ParseTime("1949-001").place, 5U);
  EXPECT_EQ(ParseTime("2020-01-01 12").place, 13U);
  EXPECT_EQ(ParseTime("2020-01-01 12:00 PM").place, 16U);
  EXPECT_EQ(ParseTime("2020-01-01").place, 0U);
}

TEST(TimeForm, FieldsOfATextAreTold) {
  const ScannedTime time = ScanTime("2020-02-31T13:45:07");
  EXPECT_TRUE(time.is_time);
  EXPECT_EQ(time.form.date_time_separator, 'T');
  EXPECT_EQ(time.fields.day.value, 31);
  EXPECT_EQ(time.fields.day.place, 8U);
  EXPECT_EQ(time.fields.second.value, 7);
  EXPECT_EQ(time.fields.second.place, 17U);
}

TEST(TimeForm, FieldsHaveATextInEveryForm) {
  EXPECT_EQ(FieldsText({TimeUnit::kYear}, {.year = {871}}), "0871");
  EXPECT_EQ(FieldsText({TimeUnit::kQuarter}, {.year = {1960}, .quarter = {4}}), "1960-Q4");
  EXPECT_EQ(FieldsText({TimeUnit::kMonth}, {.year = {1949}, .month = {1}}), "1949-01");
}

TEST(TimeForm, LeapDaysExist) {
  EXPECT_TRUE(IsTime("2000-02-29"));
  EXPECT_TRUE(IsTime("2024-02-29"));
}

TEST(TimeForm, OtherTextsAreNoTimes) {
  for (const char* text :
       {"", "Jan 1949", "49-01", "1949-", "1949-001", "1949/01", "-5", "1.5", "1949-Q",
        "2020-01-01 ", "2020-01-01 12", "2020-01-01T12:0", "1949-Q12x", "2020-01-01 12:00 PM"}) {
    const ParsedTime time = ParseTime(text);
    EXPECT_FALSE(time.value) << text;
    EXPECT_EQ(time.impossible, "") << text;
  }
}

TEST(TimeForm, TextOfATickGivesTheTickBack) {
  for (const char* text : {"1949-01", "1960-Q4", "17", "0004-02-29", "2020-12-31",
                           "1999-12-31 23:59", "1999-12-31T00:00:01"}) {
    const ParsedTime time = ParseTime(text);
    EXPECT_EQ(TimeText(time.value->form, time.value->tick), text);
  }
}

TEST(CivilDays, DaysAndTicksAreInverseOverAnEraOfTheCalendar) {
  CivilDay expected;  // 0001-01-01
  for (std::int64_t tick = 0; tick < 146097 + 366; ++tick) {
    const CivilDay day = DayFromTick(tick);
    ASSERT_EQ(day.year, expected.year) << tick;
    ASSERT_EQ(day.month, expected.month) << tick;
    ASSERT_EQ(day.day, expected.day) << tick;
    ASSERT_EQ(TickFromDay(day), tick);
    if (++expected.day <= DaysInMonth(expected.year, expected.month)) continue;
    expected.day = 1;
    if (++expected.month <= 12) continue;
    expected.month = 1;
    ++expected.year;
  }
}

}  // namespace
}  // namespace tsxtimes
