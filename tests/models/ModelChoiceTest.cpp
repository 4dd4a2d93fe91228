#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include <tsfcore/MV.h>
#include <tsxtimes/TimeValue.h>

#include "cli/options/CommandWords.h"
#include "cli/table/SeriesReader.h"
#include "models/Classes.h"
#include "models/Croston.h"
#include "models/ModelChoice.h"
#include "report/ChoiceText.h"
#include "support/Tables.h"

namespace tsx::models {
namespace {

using cli::ReadSeries;
using cli::TableSeries;

using test::Table;

// A monthly series from 2000-01 on, with the line numbers of a file.
TableSeries Monthly(const std::vector<double>& values) {
  std::string text = "date,y\n";
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string time =
        tsxtimes::TimeText({tsxtimes::TimeUnit::kMonth}, 24000 + static_cast<std::int64_t>(i));
    text += time + "," + std::to_string(values[i]) + "\n";
  }
  return ReadSeries(Table(text), {}).front();
}

std::vector<double> Seasons(int count, double level) {
  std::vector<double> values;
  for (int i = 0; i < count; ++i) {
    values.push_back(level + 10 * std::sin(2 * 3.14159265358979 * i / 12) + (i * i) % 7);
  }
  return values;
}

// As the command asks for a kind.
ModelRequest ForCommand(const char* kind) {
  ModelRequest request;
  request.kind = FindKind(kind);
  request.words = &cli::kCommandWords;
  return request;
}

std::vector<std::string> Tried(const SeriesFit& fitted) {
  std::vector<std::string> names;
  for (const Candidate& candidate : fitted.candidates) {
    if (candidate.fitted) names.push_back(candidate.kind->name);
  }
  return names;
}
bool WasFitted(const SeriesFit& fitted, const std::string& name) {
  const auto names = Tried(fitted);
  return std::find(names.begin(), names.end(), name) != names.end();
}

TEST(ModelChoice, AllKindsAreTriedOnAPositiveSeasonalSeries) {
  const TableSeries series = Monthly(Seasons(60, 100));
  EXPECT_EQ(Tried(FitSeries(series.series, {})).size(), 7U);
}

TEST(ModelChoice, LowestNormalisedBicWins) {
  const TableSeries series = Monthly(Seasons(60, 100));
  const SeriesFit fitted = FitSeries(series.series, {});
  for (const Candidate& candidate : fitted.candidates) {
    EXPECT_GE(candidate.bic, fitted.model->Estimation().GetGOFStat(BFSharedConst::kNormBayesIC))
        << candidate.kind->name;
  }
}

TEST(ModelChoice, NoMultiplicativeSeasonsWhereAValueIsNotPositive) {
  const TableSeries series = Monthly(Seasons(60, 0));
  const SeriesFit fitted = FitSeries(series.series, {});
  EXPECT_FALSE(WasFitted(fitted, "winters-multiplicative"));
  EXPECT_TRUE(WasFitted(fitted, "winters-additive"));
  ASSERT_NE(fitted.kind, nullptr);
}

TEST(ModelChoice, NoMultiplicativeSeasonsOfATransformedSeries) {
  const TableSeries series = Monthly(Seasons(60, 100));
  const SeriesFit fitted = FitSeries(
      series.series,
      {.kind = nullptr, .season_length = 0, .function_type = TSTransformation::kLogarithm});
  EXPECT_FALSE(WasFitted(fitted, "winters-multiplicative"));
  EXPECT_EQ(fitted.candidates.size(), 6U);
}

TEST(ModelChoice, NoSeasonsInASeriesOfLessThanTwo) {
  const TableSeries series = Monthly(Seasons(20, 100));
  const SeriesFit fitted = FitSeries(series.series, {});
  EXPECT_EQ(Tried(fitted), (std::vector<std::string>{"simple", "brown", "holt", "damped-trend"}));
}

TEST(ModelChoice, SeasonOfOneMeansNoSeasons) {
  const TableSeries series = Monthly(Seasons(60, 100));
  EXPECT_EQ(FitSeries(series.series, {.kind = nullptr, .season_length = 1}).candidates.size(), 4U);
}

TEST(ModelChoice, PerfectFitsRankFirstAndTheSimplestOfThemWins) {
  const TableSeries series = Monthly(std::vector<double>(40, 5));
  const SeriesFit fitted = FitSeries(series.series, {});
  ASSERT_NE(fitted.kind, nullptr);
  EXPECT_STREQ(fitted.kind->name, "simple");
  EXPECT_EQ(report::ChoiceText(fitted.choice),
            "fits without error, the simplest of 7 kinds to do so");
}

TEST(ModelChoice, KindAskedForIsTheOnlyOneTried) {
  const TableSeries series = Monthly(Seasons(60, 100));
  const SeriesFit fitted = FitSeries(series.series, {.kind = FindKind("holt")});
  EXPECT_EQ(Tried(fitted), std::vector<std::string>{"holt"});
}

TEST(ModelChoice, ReasonNamesTheRunnerUp) {
  const KindInfo* simple = FindKind("simple");
  const KindInfo* holt = FindKind("holt");
  const Choice choice = ChoiceAmong(
      {{simple, true, {}, 2.5}, {holt, true, {}, 1.25}, {FindKind("brown"), false, {"no", {}}, 0}});
  EXPECT_EQ(report::ChoiceText(choice),
            "lowest normalised BIC of 2 kinds, 1.250; next simple with 2.500");
}

TEST(ModelChoice, ReasonForALoneKind) {
  const Choice choice = ChoiceAmong({{FindKind("simple"), true, {}, 2.5}});
  EXPECT_EQ(report::ChoiceText(choice), "the only kind that goes with the series");
}

// A series of 10 cases, so many of them zero.
std::vector<double> WithZeros(int zeros) {
  std::vector<double> values;
  for (int i = 0; i < 10; ++i) values.push_back(i < zeros ? 0 : 3 + i % 4);
  return values;
}

TEST(Intermittent, ThreeTenthsOfZerosAreEnough) {
  EXPECT_TRUE(CountZeros(Monthly(WithZeros(3)).series).intermittent);
  EXPECT_FALSE(CountZeros(Monthly(WithZeros(2)).series).intermittent);
}

TEST(Intermittent, MissingCasesDoNotCount) {
  std::vector<double> values = WithZeros(3);
  values.push_back(5);
  EXPECT_FALSE(CountZeros(Monthly(values).series).intermittent);
  TableSeries series = Monthly(values);
  series.series.values.back() = MV::gMissingValue;
  const ZeroCount count = CountZeros(series.series);
  EXPECT_TRUE(count.intermittent);
  EXPECT_EQ(count.cases, 10U);
  EXPECT_EQ(count.zeros, 3U);
}

TEST(Intermittent, NegativeCasesSpeakAgainstIt) {
  std::vector<double> values = WithZeros(6);
  values.back() = -1;
  EXPECT_FALSE(CountZeros(Monthly(values).series).intermittent);
}

TEST(Intermittent, ThereIsNoDemandWhereAllIsZero) {
  const TableSeries series = Monthly(WithZeros(10));
  EXPECT_FALSE(CountZeros(series.series).intermittent);
  EXPECT_STREQ(FitSeries(series.series, {}).kind->name, "simple");
}

TEST(Intermittent, GetsCrostonsMethodWithoutAComparison) {
  const TableSeries series = Monthly(WithZeros(4));
  const SeriesFit fitted = FitSeries(series.series, {});
  EXPECT_EQ(Tried(fitted), std::vector<std::string>{"croston"});
  EXPECT_EQ(fitted.kind, &CrostonKind());
  EXPECT_EQ(fitted.model->Describe().name, "croston");
  EXPECT_EQ(report::ChoiceText(fitted.choice),
            "intermittent demand: 4 of 10 cases are zero and none is negative; not compared with "
            "smoothing");
}

TEST(Intermittent, KindAskedForIsTaken) {
  const TableSeries series = Monthly(WithZeros(4));
  EXPECT_EQ(Tried(FitSeries(series.series, {.kind = FindKind("holt")})),
            std::vector<std::string>{"holt"});
  const TableSeries busy = Monthly(WithZeros(0));
  EXPECT_EQ(Tried(FitSeries(busy.series, {.kind = FindKind("croston")})),
            std::vector<std::string>{"croston"});
}

TEST(Intermittent, SizesAreTransformedAlthoughZeroHasNoLogarithm) {
  const TableSeries series = Monthly(WithZeros(4));
  const SeriesFit fitted = FitSeries(
      series.series,
      {.kind = nullptr, .season_length = 0, .function_type = TSTransformation::kLogarithm});
  ASSERT_EQ(fitted.kind, &CrostonKind());
  EXPECT_EQ(fitted.model->Describe().function_type, TSTransformation::kLogarithm);
}

TEST(HopelessSeries, NegativeDemandIsBlamed) {
  std::vector<double> values = WithZeros(4);
  values[6] = -2;
  const TableSeries series = Monthly(values);
  const SeriesFit fitted = FitSeries(series.series, {.kind = FindKind("croston")});
  EXPECT_EQ(fitted.kind, nullptr);
  EXPECT_EQ(fitted.fault.cause, "-2: Croston's method needs values of at least 0");
  EXPECT_EQ(PlaceOf(fitted.fault.where, series.places), (text::Place{8, 9}));
}

TEST(HopelessSeries, NoDemandForCrostonsMethod) {
  const TableSeries series = Monthly(WithZeros(10));
  const SeriesFit fitted = FitSeries(series.series, {.kind = FindKind("croston")});
  EXPECT_EQ(fitted.fault.cause, "the series has no demand: no value is above 0");
  EXPECT_EQ(PlaceOf(fitted.fault.where, series.places), (text::Place{2, 9}));
}

TEST(HopelessSeries, ValueThatHasNoLogarithmIsBlamed) {
  std::vector<double> values = Seasons(40, 100);
  values[7] = 0;
  const TableSeries series = Monthly(values);
  const SeriesFit fitted =
      FitSeries(series.series, {.kind = FindKind("simple"),
                                .season_length = 0,
                                .function_type = TSTransformation::kLogarithm});
  EXPECT_EQ(fitted.kind, nullptr);
  EXPECT_EQ(fitted.fault.cause, "0: the logarithm needs values above 0");
  EXPECT_EQ(PlaceOf(fitted.fault.where, series.places), (text::Place{9, 9}));
}

TEST(HopelessSeries, ValueThatHasNoSquareRootIsBlamed) {
  std::vector<double> values = Seasons(40, 100);
  values[7] = -1;
  const TableSeries series = Monthly(values);
  const SeriesFit fitted = FitSeries(
      series.series,
      {.kind = nullptr, .season_length = 0, .function_type = TSTransformation::kSquareRoot});
  EXPECT_EQ(fitted.fault.cause, "-1: the square root needs values of at least 0");
}

TEST(HopelessSeries, TooShortASeriesIsBlamedAtItsFirstValue) {
  const TableSeries series = Monthly({1, 2});
  const SeriesFit fitted = FitSeries(series.series, {});
  EXPECT_EQ(fitted.kind, nullptr);
  EXPECT_EQ(fitted.fault.cause, "the model needs 3 cases that are not missing, the series has 2");
  EXPECT_EQ(PlaceOf(fitted.fault.where, series.places), (text::Place{2, 9}));
}

TEST(HopelessSeries, SeasonsWithoutACalendarThatHasThem) {
  const TableSeries series = ReadSeries(Table("year,y\n1871,3\n1872,4\n1873,3\n"), {}).front();
  const SeriesFit fitted = FitSeries(series.series, ForCommand("winters-additive"));
  EXPECT_EQ(fitted.fault.cause,
            "winters-additive needs a season, and yearly times have none; give its length with "
            "--season");
}

TEST(HopelessSeries, SeasonsWithGaps) {
  std::string text = "date,y\n";
  for (int i = 0; i < 40; ++i) {
    if (i == 20) continue;
    text += tsxtimes::TimeText({tsxtimes::TimeUnit::kMonth}, 24000 + i) + "," +
            std::to_string(i % 12 + 5) + "\n";
  }
  cli::SeriesOptions options;
  options.skipped_as_gaps = true;
  const TableSeries series = ReadSeries(Table(text), options).front();
  EXPECT_EQ(FitSeries(series.series, ForCommand("winters-additive")).fault.cause,
            "winters-additive has seasons, which gaps would shift; leave --gaps out or choose a "
            "model without");
  EXPECT_EQ(FitSeries(series.series, {}).candidates.size(), 4U);
}

}  // namespace
}  // namespace tsx::models
