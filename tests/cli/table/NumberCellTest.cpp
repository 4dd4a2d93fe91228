#include <gtest/gtest.h>

#include <tsfcore/MV.h>

#include "cli/table/NumberCell.h"
#include "support/ScopedLocale.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

using test::ErrorOf;
using test::Table;

// Reads the cells of the first column of a table, which is named x.
std::vector<double> ReadColumn(const CsvTable& table) {
  NumberReader reader(table);
  std::vector<double> values;
  for (const auto& row : table.rows) values.push_back(reader.Read(row[0], "x"));
  return values;
}
std::vector<double> ReadColumn(std::string_view text) { return ReadColumn(Table(text)); }
double ReadOne(const std::string& cell) { return ReadColumn("x\n" + cell + "\n").front(); }
std::string ReadError(const std::string& text) {
  return ErrorOf([&text] { ReadColumn(text); });
}

TEST(NumberCell, DecimalsExponentsAndSigns) {
  EXPECT_EQ(ReadOne("112"), 112);
  EXPECT_EQ(ReadOne("-0.5"), -0.5);
  EXPECT_EQ(ReadOne("+1.5"), 1.5);
  EXPECT_EQ(ReadOne("1e3"), 1000);
  EXPECT_EQ(ReadOne(".25"), 0.25);
  EXPECT_EQ(ReadOne("\"7\""), 7);
}

TEST(NumberCell, AllFifteenDigitsAreKept) {
  EXPECT_EQ(ReadOne("0.102971811805368"), 0.102971811805368);
}

TEST(NumberCell, EmptyAndNaAreMissing) {
  EXPECT_EQ(ReadColumn("x,y\n,1\nNA,1\n\"\",1\n"), (std::vector<double>(3, MV::gMissingValue)));
}

TEST(NumberCell, DecimalCommasInTablesWithSemicolons) {
  EXPECT_EQ(ReadColumn("x;y\n1,5;a\n-2,25;b\n3;c\n"), (std::vector<double>{1.5, -2.25, 3}));
}

TEST(NumberCell, DecimalPointsInTablesWithSemicolons) {
  EXPECT_EQ(ReadColumn("x;y\n1.5;a\n2.25;b\n"), (std::vector<double>{1.5, 2.25}));
}

TEST(NumberCell, IgnoresTheLocale) {
  const test::ScopedLocale german("de_DE.UTF-8");
  EXPECT_EQ(ReadOne("1.5"), 1.5);
}

TEST(NumberCellError, WordNamesThePlaceAndTheColumn) {
  EXPECT_EQ(ReadError("x,y\n1,2\ntwelve,3\n"),
            "table.csv:3:1: 'twelve' is not a number (column \"x\")");
}

TEST(NumberCellError, InfinityAndNanAreWords) {
  for (const char* word : {"inf", "-inf", "Infinity", "nan", "NaN"}) {
    EXPECT_EQ(ReadError("x\n" + std::string(word) + "\n"),
              "table.csv:2:1: '" + std::string(word) + "' is not a number (column \"x\")");
  }
}

TEST(NumberCellError, NumberWithTextBehindIt) {
  EXPECT_EQ(ReadError("x\n12 kg\n"), "table.csv:2:1: '12 kg' is not a number (column \"x\")");
}

TEST(NumberCellError, HexadecimalNumber) {
  EXPECT_EQ(ReadError("x\n0x10\n"), "table.csv:2:1: '0x10' is not a number (column \"x\")");
}

TEST(NumberCellError, TwoSigns) {
  EXPECT_EQ(ReadError("x\n+-1\n"), "table.csv:2:1: '+-1' is not a number (column \"x\")");
}

TEST(NumberCellError, DecimalCommaInATableWithCommas) {
  EXPECT_EQ(ReadError("x,y\n\"1,5\",2\n"), "table.csv:2:1: '1,5' is not a number (column \"x\")");
}

TEST(NumberCellError, GroupedDigits) {
  EXPECT_EQ(ReadError("x;y\n1.234,5;2\n"),
            "table.csv:2:1: '1.234,5' is not a number (column \"x\")");
}

TEST(NumberCellError, NumberThatNoDoubleHolds) {
  EXPECT_EQ(ReadError("x\n1e999\n"), "table.csv:2:1: '1e999' is out of range (column \"x\")");
}

TEST(NumberCellError, NumberThatStandsForMissingValues) {
  EXPECT_EQ(ReadError("x\n-1.7976931348623157e308\n"),
            "table.csv:2:1: '-1.7976931348623157e308' is out of range (column \"x\")");
}

TEST(NumberCellError, PointAfterDecimalCommas) {
  EXPECT_EQ(ReadError("x;y\n1,5;2\n1.234;2\n"),
            "table.csv:3:1: '1.234' and '1,5' in line 2 have different decimal characters "
            "(column \"x\")");
}

}  // namespace
}  // namespace tsx::cli
