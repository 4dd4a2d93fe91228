#include <gtest/gtest.h>
#include <numeric>

#include "cli/table/TimeColumn.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

using test::ErrorOf;
using test::Table;

// A table whose first column holds these times.
CsvTable TimeTable(const std::vector<std::string>& times) {
  std::string text = "date,y\n";
  for (const std::string& time : times) text += time + ",1\n";
  return Table(text);
}
TimeColumn Read(const std::vector<std::string>& times) { return ReadTimes(TimeTable(times), 0); }
std::string ReadError(const std::vector<std::string>& times) {
  return ErrorOf([&times] {
    const CsvTable table = TimeTable(times);
    const TimeColumn column = ReadTimes(table, 0);
    std::vector<std::size_t> rows(times.size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    CheckOrder(table, 0, column, rows);
  });
}

TEST(TimeColumn, NumbersOfFourDigitsAreYears) {
  EXPECT_EQ(Read({"1871", "1872"}).form.unit, tsxtimes::TimeUnit::kYear);
  EXPECT_EQ(Read({"1871", "1872"}).ticks, (std::vector<std::int64_t>{1871, 1872}));
}

TEST(TimeColumn, NumbersOfWhichSomeHaveOtherLengthsAreRunningNumbers) {
  EXPECT_EQ(Read({"999", "1000"}).form.unit, tsxtimes::TimeUnit::kNumber);
}

TEST(TimeColumn, NumbersFromThreeThousandOnAreRunningNumbers) {
  EXPECT_EQ(Read({"3000", "3001"}).form.unit, tsxtimes::TimeUnit::kNumber);
}

TEST(TimeColumn, SecondsMayBeLeftOutHereAndThere) {
  EXPECT_EQ(Read({"2020-01-01 00:00", "2020-01-01 00:00:30"}).ticks[1] -
                Read({"2020-01-01 00:00"}).ticks[0],
            30);
}

TEST(TimeColumnError, Word) {
  EXPECT_EQ(ReadError({"1949-01", "soon"}),
            "table.csv:3:1: 'soon' is not a time (1949-01, 1960-Q1, 1871, a running number, "
            "2020-02-29 or 2020-02-29 13:45)");
}

TEST(TimeColumnError, ImpossibleTime) {
  EXPECT_EQ(ReadError({"1999-12", "1999-13"}), "table.csv:3:1: '1999-13': there is no month 13");
}

TEST(TimeColumnError, MissingTime) {
  EXPECT_EQ(ReadError({"1999-12", ""}), "table.csv:3:1: the time is missing");
}

TEST(TimeColumnError, AnotherForm) {
  EXPECT_EQ(ReadError({"1999-12", "2000-Q1"}),
            "table.csv:3:1: '2000-Q1' is not a month YYYY-MM like the times above it");
}

TEST(TimeColumnError, RepeatedTime) {
  EXPECT_EQ(ReadError({"1999-12", "2000-01", "2000-01"}),
            "table.csv:4:1: '2000-01' repeats the time '2000-01' of line 3");
}

TEST(TimeColumnError, BackwardTime) {
  EXPECT_EQ(ReadError({"1999-12", "2000-01", "1999-11"}),
            "table.csv:4:1: '1999-11' lies before the time '2000-01' of line 3");
}

}  // namespace
}  // namespace tsx::cli
