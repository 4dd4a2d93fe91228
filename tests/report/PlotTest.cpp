#include <gtest/gtest.h>

#include <tsfcore/MV.h>

#include "cli/table/SeriesReader.h"
#include "report/Plot.h"
#include "report/TimeTicks.h"
#include "report/ValueScale.h"
#include "support/Golden.h"
#include "support/Tables.h"
#include "times/Axes.h"

namespace tsx::report {
namespace {

using cli::CsvTable;
using cli::SeriesOptions;
using cli::TableSeries;
using models::ModelRequest;
using models::SeriesFit;
using tsxtimes::DateAxis;

using test::AxisOf;
using test::Table;
using test::Times;
using Strings = std::vector<std::string>;

Strings ScaleLabels(double low, double high) {
  const ValueScale scale = MakeValueScale(low, high, 5);
  Strings labels;
  for (const double tick : scale.Ticks()) labels.push_back(scale.Label(tick));
  return labels;
}

TEST(ValueScale, RoundNumbersHoldTheValues) {
  EXPECT_EQ(ScaleLabels(104, 622), (Strings{"0", "200", "400", "600", "800"}));
}

TEST(ValueScale, StepsBelowOneHaveDecimals) {
  EXPECT_EQ(ScaleLabels(0.11, 0.32), (Strings{"0.10", "0.15", "0.20", "0.25", "0.30", "0.35"}));
}

TEST(ValueScale, LargeNumbersAreGrouped) {
  EXPECT_EQ(ScaleLabels(-1e6, 2e6), (Strings{"-1 000 000", "0", "1 000 000", "2 000 000"}));
}

TEST(ValueScale, HugeAndTinyNumbersHaveExponents) {
  EXPECT_EQ(ScaleLabels(0, 4e12), (Strings{"0", "1e+12", "2e+12", "3e+12", "4e+12"}));
  EXPECT_EQ(ScaleLabels(0, 4e-9), (Strings{"0", "1e-09", "2e-09", "3e-09", "4e-09"}));
}

TEST(ValueScale, ValuesThatDifferByRoundingAloneAreEqual) {
  EXPECT_EQ(ScaleLabels(5, 5.000000000000001), ScaleLabels(5, 5));
  EXPECT_EQ(ScaleLabels(-1e9, -999999999.9999999), ScaleLabels(-1e9, -1e9));
}

TEST(ValueScale, EqualValuesGetAScaleAroundThem) {
  const ValueScale scale = MakeValueScale(7, 7, 5);
  EXPECT_LT(scale.low, 7);
  EXPECT_GT(scale.high, 7);
  EXPECT_LT(MakeValueScale(0, 0, 5).low, 0);
}

Strings TickLabels(const tsxtimes::DateAxis& axis, std::size_t count, std::size_t room) {
  Strings labels;
  for (const TimeTick& tick : MakeTimeTicks(axis, count, room)) {
    labels.push_back(std::to_string(tick.at) + ":" + tick.label);
  }
  return labels;
}

TEST(TimeTicks, MonthsOfManyYearsAreMarkedByYears) {
  EXPECT_EQ(TickLabels(AxisOf(Times("1949-11", 1, 50)), 50, 35),
            (Strings{"2:1950", "14:1951", "26:1952", "38:1953"}));
}

TEST(TimeTicks, YearsAreMarkedByRoundYears) {
  EXPECT_EQ(TickLabels(AxisOf(Times("1871", 1, 100)), 100, 40),
            (Strings{"9:1880", "29:1900", "49:1920", "69:1940", "89:1960"}));
}

TEST(TimeTicks, FewMonthsAreMarkedOneByOne) {
  EXPECT_EQ(TickLabels(AxisOf({"1949-11", "1949-12", "1950-01"}), 3, 60),
            (Strings{"0:1949-11", "1:1949-12", "2:1950-01"}));
}

TEST(TimeTicks, DaysAtTheSameTimeAreMarkedByDays) {
  EXPECT_EQ(TickLabels(AxisOf(Times("2020-01-06 06:30", 86400, 3)), 3, 60),
            (Strings{"0:2020-01-06", "1:2020-01-07", "2:2020-01-08"}));
}

TEST(TimeTicks, NumbersAreMarkedByRoundNumbers) {
  EXPECT_EQ(TickLabels(AxisOf(Times("1", 1, 150)), 150, 30),
            (Strings{"49:50", "99:100", "149:150"}));
}

std::vector<SeriesFit> FitTable(const CsvTable& table, std::vector<TableSeries>& series,
                                const SeriesOptions& options = {},
                                const ModelRequest& request = {}) {
  series = cli::ReadSeries(table, options);
  std::vector<SeriesFit> fitted;
  for (const TableSeries& one : series) fitted.push_back(FitSeries(one.series, request));
  return fitted;
}
std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

constexpr char kTwoSeries[] =
    "year,a,b\n1990,5,1\n1991,6,3\n1992,,2\n1993,7,4\n1994,6,3\n1995,8,5\n1996,7,4\n";

TEST(Plot, IsWellFormedWithOnePanelPerSeries) {
  std::vector<TableSeries> series;
  const std::string svg = PlotText(FitTable(Table(kTwoSeries), series), 3);
  test::ExpectWellFormed(svg);
  EXPECT_EQ(Count(svg, "<path class=\"series\""), 2U);
  EXPECT_EQ(Count(svg, "<path class=\"forecast\""), 2U);
  EXPECT_EQ(Count(svg, "<path class=\"limits\""), 2U);
}

TEST(Plot, MissingValueInterruptsTheLine) {
  std::vector<TableSeries> series;
  const std::string svg = PlotText(FitTable(Table("y\n5\n6\nNA\n7\n6\n8\n"), series), 2);
  const std::size_t start = svg.find("<path class=\"series\" d=\"");
  const std::string path = svg.substr(start, svg.find("/>", start) - start);
  EXPECT_EQ(Count(path, "M"), 2U);
  EXPECT_EQ(Count(path, "L"), 3U);
}

TEST(Plot, NamesAreEscaped) {
  std::vector<TableSeries> series;
  SeriesOptions options;
  options.name = "R&D <2020> \"x\"";
  const std::string svg = PlotText(FitTable(Table(kTwoSeries), series, options), 3);
  test::ExpectWellFormed(svg);
  EXPECT_NE(svg.find("R&amp;D &lt;2020&gt;"), std::string::npos);
}

TEST(Plot, HopelessSeriesHaveNoPanel) {
  std::vector<TableSeries> series;
  std::vector<SeriesFit> fitted = FitTable(Table(kTwoSeries), series);
  fitted[0].model.reset();
  EXPECT_EQ(Count(PlotText(fitted, 3), "<path class=\"series\""), 1U);
}

TEST(Plot, NeverWritesWhatIsNoNumber) {
  std::vector<TableSeries> series;
  const std::string svg =
      PlotText(FitTable(Table("y\n1e300\n-1e300\n1e299\n0\n1e300\n"), series), 5);
  test::ExpectWellFormed(svg);
  EXPECT_EQ(Count(svg, "nan"), 0U);
  EXPECT_EQ(Count(svg, "inf"), 0U);
}

// The square of the root of 5 is not quite 5.
TEST(Plot, ConstantUnderATransformationIsDrawn) {
  std::vector<TableSeries> series;
  ModelRequest request;
  request.function_type = TSTransformation::kSquareRoot;
  const std::string svg = PlotText(FitTable(Table("y\n5\n5\n5\n5\n5\n"), series, {}, request), 5);
  test::ExpectWellFormed(svg);
  EXPECT_EQ(Count(svg, "nan"), 0U);
  EXPECT_EQ(Count(svg, "inf"), 0U);
}

}  // namespace
}  // namespace tsx::report
