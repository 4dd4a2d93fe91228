#include <gtest/gtest.h>

#include "cli/table/CsvReader.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

using test::ErrorOf;
using test::Table;
using test::Texts;
using Strings = std::vector<std::string>;

std::string ParseError(std::string_view text) {
  return ErrorOf([text] { Table(text); });
}

TEST(Csv, HeaderAndRowsAreApart) {
  const CsvTable table = Table("date,value\n1949-01,112\n1949-02,118\n");
  EXPECT_EQ(Texts(table.header), (Strings{"date", "value"}));
  ASSERT_EQ(table.rows.size(), 2U);
  EXPECT_EQ(Texts(table.rows[1]), (Strings{"1949-02", "118"}));
}

TEST(Csv, LastLineNeedsNoEnd) { EXPECT_EQ(Texts(Table("a\n1\n2").rows[1]), Strings{"2"}); }
TEST(Csv, CarriageReturnAndLineFeedAreOneLineEnd) {
  const CsvTable table = Table("a,b\r\n1,2\r\n3,4\r\n");
  ASSERT_EQ(table.rows.size(), 2U);
  EXPECT_EQ(Texts(table.rows[0]), (Strings{"1", "2"}));
  EXPECT_EQ(table.rows[1][0].place, (text::Place{3, 1}));
}

TEST(Csv, LoneCarriageReturnEndsALine) { EXPECT_EQ(Table("a\r1\r2").rows.size(), 2U); }
TEST(Csv, ByteOrderMarkIsPassedOver) {
  const CsvTable table = Table(
      "\xEF\xBB\xBF"
      "date,value\n1,2\n");
  EXPECT_EQ(table.header[0].text, "date");
  EXPECT_EQ(table.header[1].place, (text::Place{1, 6}));
}

TEST(Csv, EmptyLinesAtTheEndArePassedOver) { EXPECT_EQ(Table("a,b\n1,2\n\r\n\n").rows.size(), 1U); }
TEST(Csv, LinesOfBlanksAtTheEndArePassedOver) {
  EXPECT_EQ(Table("a,b\n1,2\n  \n\t\r\n ").rows.size(), 1U);
}

TEST(Csv, BlanksAroundCellsDoNotCount) {
  EXPECT_EQ(Texts(Table("a , b\n 1\t,  2 \n").rows[0]), (Strings{"1", "2"}));
}

TEST(Csv, QuotesHoldSeparatorsLineEndsAndDoubledQuotes) {
  const CsvTable table = Table("a,b\n\"x,\"\"y\"\"\nz\",2\n3,4\n");
  EXPECT_EQ(Texts(table.rows[0]), (Strings{"x,\"y\"\nz", "2"}));
  EXPECT_EQ(table.rows[0][1].place, (text::Place{3, 4}));
  EXPECT_EQ(table.rows[1][0].place, (text::Place{4, 1}));
}

TEST(Csv, BlanksInsideQuotesCount) { EXPECT_EQ(Table("a\n\" x \"\n").rows[0][0].text, " x "); }
TEST(Csv, BlanksAroundQuotesDoNotCount) {
  EXPECT_EQ(Texts(Table("a,b\n \"x\" ,2\n").rows[0]), (Strings{"x", "2"}));
}

TEST(Csv, QuoteInsideAnUnquotedCellIsText) {
  EXPECT_EQ(Table("a\n5\" pipe\n").rows[0][0].text, "5\" pipe");
}

TEST(Csv, SemicolonsSeparateWhenTheHeaderHasThem) {
  const CsvTable table = Table("date;value\n1;2,5\n");
  EXPECT_EQ(table.separator, ';');
  EXPECT_EQ(Texts(table.rows[0]), (Strings{"1", "2,5"}));
}

TEST(Csv, SeparatorsInQuotesAreNotCounted) {
  EXPECT_EQ(Table("\"a;b;c\",d\n1,2\n").separator, ',');
}

TEST(Csv, SemicolonWinsATie) { EXPECT_EQ(Table("date;sales, EUR\n1;2\n").separator, ';'); }

TEST(Csv, ColumnsCountCharactersNotBytes) {
  const CsvTable table = Table("a,b\n\xC3\xA9\xC3\xA9,2\n");
  EXPECT_EQ(table.rows[0][1].place, (text::Place{2, 4}));
}

TEST(CsvError, EmptyFile) { EXPECT_EQ(ParseError(""), "table.csv:1:1: the file is empty"); }
TEST(CsvError, FileOfLineEnds) {
  EXPECT_EQ(ParseError("\n\r\n"), "table.csv:1:1: the file is empty");
  EXPECT_EQ(ParseError(" \n"), "table.csv:1:1: the file is empty");
}

TEST(CsvError, HeaderAlone) {
  EXPECT_EQ(ParseError("date,value\n"), "table.csv:2:1: there is no line after the header");
}

TEST(CsvError, ShortLine) {
  EXPECT_EQ(ParseError("a,b\n1,2\n3\n"), "table.csv:3:1: the line has 1 cell, the header has 2");
}

TEST(CsvError, LongLine) {
  EXPECT_EQ(ParseError("a,b\n1,2,3\n"), "table.csv:2:5: the line has 3 cells, the header has 2");
}

TEST(CsvError, EmptyLineAmongOthers) {
  EXPECT_EQ(ParseError("a,b\n1,2\n\n3,4\n"),
            "table.csv:3:1: the line has 1 cell, the header has 2");
}

TEST(CsvError, OpenQuoteIsToldWhereItOpens) {
  EXPECT_EQ(ParseError("a,b\n1,\"2\n3,4\n"),
            "table.csv:2:3: the quote that opens here is never closed");
}

TEST(CsvError, TextBehindAClosingQuote) {
  EXPECT_EQ(ParseError("a,b\n\"1\"x,2\n"), "table.csv:2:4: there is text behind a closing quote");
}

TEST(CsvError, NulByte) {
  EXPECT_EQ(ParseError(std::string_view("a,b\n1,\0\n", 8)), "table.csv:2:3: there is a NUL byte");
}

TEST(CsvError, InvalidUtf8) {
  EXPECT_EQ(ParseError("a,b\n1,caf\xE9\n"),
            "table.csv:2:6: the text is not UTF-8 from here on; save the file as UTF-8");
}

TEST(CsvError, Utf16) {
  EXPECT_EQ(ParseError("\xFF\xFE"
                       "a"),
            "table.csv:1:1: the file is UTF-16; save it as UTF-8");
}

TEST(CsvError, ColumnNameThatComesTwice) {
  EXPECT_EQ(ParseError("a,b,a\n1,2,3\n"),
            "table.csv:1:5: the column name 'a' has come before, as column 1");
}

TEST(CsvError, ControlCharacterInAColumnName) {
  EXPECT_EQ(ParseError("a,\"b\tc\"\n1,2\n"),
            "table.csv:1:3: the column name 'b?c' holds control characters");
}

TEST(CsvError, FileThatIsNotThere) {
  EXPECT_EQ(ErrorOf([] { ReadCsvFile("no/such.csv"); }),
            "no/such.csv: cannot be read: No such file or directory");
}

TEST(CsvError, Folder) {
  EXPECT_EQ(ErrorOf([] { ReadCsvFile("/"); }), "/: cannot be read: Is a directory");
}

TEST(CsvWriting, EmptyRowOfOneCellIsStillARow) {
  const CsvTable table = Table("a\n1\n\"\"\n");
  EXPECT_EQ(CsvText(table), "a\n1\n\"\"\n");
}

}  // namespace
}  // namespace tsx::cli
