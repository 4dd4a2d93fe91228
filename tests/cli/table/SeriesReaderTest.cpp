#include <gtest/gtest.h>

#include <tsfcore/MV.h>

#include "cli/table/SeriesReader.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

using test::ErrorOf;
using test::Table;
using Values = std::vector<double>;

std::vector<std::string> Names(const std::vector<TableSeries>& all) {
  std::vector<std::string> names;
  for (const TableSeries& read : all) names.push_back(read.series.model_name);
  return names;
}

constexpr char kLong[] =
    "shop,month,sales,visits\n"
    "b,2020-01,1,10\n"
    "a,2020-01,2,20\n"
    "b,2020-02,3,30\n"
    "a,2020-02,4,40\n"
    "b,2020-03,5,50\n";

TEST(Series, SkippedPeriodIsAMissingValue) {
  const auto all = ReadSeries(Table("date,y\n2020-01,1\n2020-02,2\n2020-04,4\n"), {});
  ASSERT_EQ(all.size(), 1U);
  EXPECT_EQ(all[0].series.values, (Values{1, 2, MV::gMissingValue, 4}));
  EXPECT_EQ(all[0].places.values[2].line, 0U);
  EXPECT_EQ(all[0].places.values[3], (text::Place{4, 9}));
}

TEST(Series, SkippedPeriodIsPlacedWhereTheNextRowIs) {
  const auto all = ReadSeries(Table("date,y\n2020-01,1\n2020-02,2\n2020-05,4\n"), {});
  EXPECT_EQ(PlaceOfCase(all[0].places.values, 1), (text::Place{3, 9}));
  EXPECT_EQ(PlaceOfCase(all[0].places.values, 2), (text::Place{4, 9}));
  EXPECT_EQ(PlaceOfCase(all[0].places.values, 3), (text::Place{4, 9}));
}

TEST(Series, SkippedPeriodIsLeftOutOnRequest) {
  const auto all = ReadSeries(Table("date,y\n2020-01,1\n2020-02,2\n2020-04,4\n"),
                              {.columns = {}, .name = "", .skipped_as_gaps = true});
  EXPECT_EQ(all[0].series.values, (Values{1, 2, 4}));
  EXPECT_EQ(all[0].series.cases, (std::vector<std::size_t>{0, 1, 3}));
}

TEST(Series, EmptyCellIsAMissingValueEvenWhereSkippedPeriodsAreLeftOut) {
  const auto all = ReadSeries(Table("date,y\n2020-01,1\n2020-02,\n2020-03,4\n"),
                              {.columns = {}, .name = "", .skipped_as_gaps = true});
  EXPECT_EQ(all[0].series.values, (Values{1, MV::gMissingValue, 4}));
}

TEST(Series, WithoutTimesCasesAreNumberedFromOne) {
  const auto all = ReadSeries(Table("y\n5\n4\n6\n"), {});
  EXPECT_EQ(all[0].series.axis->CaseText(0), "1");
  EXPECT_EQ(all[0].series.values, (Values{5, 4, 6}));
}

TEST(Series, TimesWithoutARegularStepAreNotSpreadOut) {
  const auto all = ReadSeries(Table("n,y\n1,5\n2,4\n4000000000,6\n"), {});
  EXPECT_EQ(all[0].series.values.size(), 3U);
  EXPECT_NE(all[0].series.axis->Fault(), "");
}

TEST(Series, LongTableGivesASeriesForEachIdInOrderOfAppearance) {
  SeriesOptions options;
  options.columns = {"", "shop", {"sales"}};
  const auto all = ReadSeries(Table(kLong), options);
  EXPECT_EQ(Names(all), (std::vector<std::string>{"table/b", "table/a"}));
  EXPECT_EQ(all[0].series.values, (Values{1, 3, 5}));
  EXPECT_EQ(all[1].series.values, (Values{2, 4}));
}

TEST(SeriesReader, EndLeavesTheLastSeriesAsItWas) {
  const CsvTable table = Table("y\n5\n4\n");
  SeriesReader reader(table, {});
  TableSeries next;
  ASSERT_TRUE(reader.Next(next));
  EXPECT_FALSE(reader.Next(next));
  EXPECT_FALSE(reader.Next(next));
  EXPECT_EQ(next.series.values, (Values{5, 4}));
}

TEST(SeriesReader, FaultOfALaterSeriesComesInItsTurn) {
  SeriesOptions options;
  options.columns.id = "id";
  const CsvTable table = Table("id,y\na,1\nb,oops\na,2\n");
  SeriesReader reader(table, options);
  TableSeries next;
  ASSERT_TRUE(reader.Next(next));
  EXPECT_EQ(next.series.values, (Values{1, 2}));
  EXPECT_EQ(ErrorOf([&] { reader.Next(next); }),
            "table.csv:3:3: 'oops' is not a number (column \"y\")");
}

TableSeries WithPredictor(std::string_view text, bool gaps = false) {
  SeriesOptions options;
  options.columns.predictors = {"x"};
  options.skipped_as_gaps = gaps;
  return ReadSeries(Table(text), options).front();
}

TEST(Predictors, AreReadBesideTheSeries) {
  const TableSeries read = WithPredictor("date,y,x\n2020-01,1,10\n2020-02,,20\n2020-04,4,\n");
  EXPECT_EQ(read.series.variable, "y");
  ASSERT_EQ(read.series.predictors.size(), 1U);
  EXPECT_EQ(read.series.predictors[0].name, "x");
  EXPECT_EQ(read.series.predictors[0].values,
            (Values{10, 20, MV::gMissingValue, MV::gMissingValue}));
  EXPECT_EQ(read.places.predictors[0].values[1], (text::Place{3, 10}));
  EXPECT_EQ(read.places.predictors[0].values[2].line, 0U);
}

TEST(Predictors, SeriesEndsWithItsLastValue) {
  const TableSeries read =
      WithPredictor("date,y,x\n2020-01,1,10\n2020-02,2,20\n2020-03,,30\n2020-04,,40\n");
  EXPECT_EQ(read.series.values, (Values{1, 2}));
  EXPECT_EQ(read.series.cases, (std::vector<std::size_t>{0, 1}));
  EXPECT_EQ(read.series.axis->CaseCount(), 2U);
  EXPECT_EQ(read.series.predictors[0].values, (Values{10, 20}));
  EXPECT_EQ(read.series.predictors[0].future, (Values{30, 40}));
  EXPECT_EQ(read.places.predictors[0].future[1], (text::Place{5, 10}));
}

TEST(Predictors, FutureEndsWithTheFirstMissingValue) {
  EXPECT_EQ(WithPredictor("date,y,x\n2020-01,1,1\n2020-02,,2\n2020-03,,\n2020-04,,4\n")
                .series.predictors[0]
                .future,
            Values{2});
  EXPECT_EQ(
      WithPredictor("date,y,x\n2020-01,1,1\n2020-02,,2\n2020-04,,4\n").series.predictors[0].future,
      Values{2});
  EXPECT_EQ(WithPredictor("date,y,x\n2020-01,1,1\n2020-02,,2\n2020-04,,4\n", true)
                .series.predictors[0]
                .future,
            Values{2});
}

TEST(Predictors, FutureEndsAtTheRowOfTheFirstMissingValue) {
  EXPECT_EQ(WithPredictor("date,y,x\n2020-01,1,1\n2020-02,,2\n2020-03,,\n2020-04,,4\n")
                .places.predictors[0]
                .future_end,
            (text::Place{4, 10}));
  constexpr char kSkipped[] = "date,y,x\n2020-01,1,1\n2020-02,,2\n2020-04,,4\n";
  for (const bool gaps : {false, true}) {
    EXPECT_EQ(WithPredictor(kSkipped, gaps).places.predictors[0].future_end, (text::Place{4, 10}));
  }
  EXPECT_EQ(
      WithPredictor("date,y,x\n2020-01,1,1\n2020-02,,2\n").places.predictors[0].future_end.line,
      0U);
}

TEST(Predictors, EachVariableHasAnEndOfItsOwn) {
  SeriesOptions options;
  options.columns.predictors = {"x"};
  const auto all = ReadSeries(Table("n,a,b,x\n1,5,4,1\n2,3,2,2\n3,7,,3\n4,,,4\n"), options);
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].series.predictors[0].future, Values{4});
  EXPECT_EQ(all[1].series.predictors[0].future, (Values{3, 4}));
  EXPECT_EQ(all[0].series.axis->CaseCount(), 3U);
  EXPECT_EQ(all[1].series.axis->CaseCount(), 2U);
}

TEST(Predictors, SeriesWithoutAnyValueKeepsItsCases) {
  SeriesOptions options;
  options.columns.variables = {"y"};
  options.columns.predictors = {"x"};
  EXPECT_EQ(ReadSeries(Table("n,y,x\n1,,1\n2,,2\n"), options)[0].series.values.size(), 2U);
}

TEST(Predictors, WithoutThemMissingCasesAtTheEndStay) {
  EXPECT_EQ(ReadSeries(Table("n,y\n1,5\n2,3\n3,\n"), {})[0].series.values.size(), 3U);
}

TEST(Predictors, HoldNumbersOnly) {
  EXPECT_EQ(ErrorOf([] { WithPredictor("n,y,x\n1,5,1\n2,3,often\n"); }),
            "table.csv:3:5: 'often' is not a number (column \"x\")");
}

TEST(ModelNames, OneVariableTakesTheNameOfTheFile) {
  EXPECT_EQ(Names(ReadSeries(ParseCsv("dir/my sales.2020.csv", "y\n5\n4\n"), {})),
            std::vector<std::string>{"my sales.2020"});
}

TEST(ModelNames, OneVariableTakesTheNameGiven) {
  SeriesOptions options;
  options.name = "airline";
  EXPECT_EQ(Names(ReadSeries(Table("y\n5\n4\n"), options)), std::vector<std::string>{"airline"});
}

TEST(ModelNames, SeveralVariablesAreTold) {
  EXPECT_EQ(Names(ReadSeries(Table("a,b\n5,1\n4,2\n"), {})),
            (std::vector<std::string>{"table/a", "table/b"}));
}

TEST(ModelNames, IdsAndVariablesAreTold) {
  SeriesOptions options;
  options.columns.id = "shop";
  options.name = "north";
  EXPECT_EQ(Names(ReadSeries(Table(kLong), options)),
            (std::vector<std::string>{"north/b/sales", "north/b/visits", "north/a/sales",
                                      "north/a/visits"}));
}

TEST(SeriesError, TimesOfOneIdMustRise) {
  SeriesOptions options;
  options.columns.id = "id";
  EXPECT_EQ(ErrorOf([&] {
              ReadSeries(Table("id,date,y\na,2020-02,1\nb,2020-01,1\na,2020-01,1\n"), options);
            }),
            "table.csv:4:3: '2020-01' lies before the time '2020-02' of line 2");
}

TEST(SeriesError, MissingId) {
  SeriesOptions options;
  options.columns.id = "id";
  EXPECT_EQ(ErrorOf([&] { ReadSeries(Table("id,y\na,1\n,2\n"), options); }),
            "table.csv:3:1: the id is missing");
}

TEST(SeriesError, ControlCharacterInAnId) {
  SeriesOptions options;
  options.columns.id = "id";
  EXPECT_EQ(ErrorOf([&] { ReadSeries(Table("id,y\na\x1B[1m,1\n"), options); }),
            "table.csv:2:1: the id 'a?[1m' holds control characters");
}

}  // namespace
}  // namespace tsx::cli
