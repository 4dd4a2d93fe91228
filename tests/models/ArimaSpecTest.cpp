#include <gtest/gtest.h>
#include <limits>

#include <tsfcore/MV.h>

#include "cli/options/ArimaTexts.h"
#include "cli/options/CommandWords.h"
#include "cli/table/SeriesReader.h"
#include "models/ModelChoice.h"
#include "models/arima/Arima.h"
#include "models/arima/ArimaSpec.h"
#include "support/Tables.h"

namespace tsx::models {
namespace {

using cli::ParseArimaOrders;
using cli::ParseOutlier;
using cli::ParsePredictor;
using cli::TableSeries;

using test::Table;

constexpr char kMonths[] =
    "date,y\n2000-01,5\n2000-02,6\n2000-03,4\n2000-04,7\n2000-05,5\n2000-06,8\n";
constexpr char kMonthsWithX[] =
    "date,y,x\n2000-01,5,1\n2000-02,6,2\n2000-03,4,3\n2000-04,7,4\n2000-05,5,5\n";
constexpr char kYears[] = "year,y\n1871,5\n1872,6\n1873,4\n1874,7\n";

TableSeries SeriesOf(std::string_view text, bool gaps = false) {
  cli::SeriesOptions options;
  options.columns.variables = {"y"};
  if (text.find(",x\n") != std::string_view::npos) options.columns.predictors = {"x"};
  options.skipped_as_gaps = gaps;
  return cli::ReadSeries(Table(text), options).front();
}

ArimaRequest Request(const std::string& model) {
  ArimaRequest request;
  request.orders = ParseArimaOrders(model);
  return request;
}
ArimaRequest WithPredictor(const std::string& predictor) {
  ArimaRequest request = Request("arima(0,1,1)");
  request.predictors = {ParsePredictor(predictor)};
  return request;
}
ArimaRequest WithOutlier(const std::string& outlier) {
  ArimaRequest request = Request("arima(0,1,1)");
  request.outliers = {ParseOutlier(outlier)};
  return request;
}

AMModelSpec SpecOf(const ArimaRequest& request, const TableSeries& series, unsigned season = 1) {
  return AMModelSpec(MakeArimaSpec(request, series.series, season, TSTransformation::kNone));
}

bool HasConstant(const ArimaRequest& request) {
  return MakeArimaSpec(request, SeriesOf(kYears).series, 1, TSTransformation::kNone).has_constant;
}

long OutlierIndex(const std::string& outlier, const TableSeries& series) {
  return SpecOf(WithOutlier(outlier), series).GetOutliers().GetOutlierSpec(0).GetStartIndex();
}

std::string TitleOf(const std::string& model, unsigned season,
                    int function = TSTransformation::kNone) {
  ArimaRequest request = Request(model);
  request.constant = false;
  return ArimaTitle(AMModelSpec(MakeArimaSpec(request, SeriesOf(kYears).series, season, function)));
}

// Why the command would refuse the request, and where in the table.
struct Refusal {
  std::string cause;
  text::Place place;
};
Refusal RefusalOf(const ArimaRequest& arima, const TableSeries& read, unsigned season,
                  unsigned horizon) {
  ModelRequest request;
  request.kind = &ArimaKind();
  request.arima = arima;
  request.horizon = horizon;
  request.words = &cli::kCommandWords;
  const Fault fault = FindFault({read.series, request, season});
  return {fault.cause, cli::PlaceOf(fault.where, read.places)};
}
std::string FaultOf(const ArimaRequest& request, const TableSeries& series, unsigned season = 12,
                    unsigned horizon = 0) {
  return RefusalOf(request, series, season, horizon).cause;
}

TEST(ArimaSpec, SeasonalLagsAreSeasonsInPeriods) {
  const AMModelSpec spec = SpecOf(Request("arima(0,1,1)(2,1,[3])"), SeriesOf(kMonths), 12);
  AMPowers lags;
  AMPowers seasonalLags;
  spec.GetARStruct(lags, seasonalLags);
  ASSERT_EQ(seasonalLags.GetCount(), 2U);
  EXPECT_EQ(seasonalLags.GetPower(0), 12U);
  EXPECT_EQ(seasonalLags.GetPower(1), 24U);
  spec.GetMAStruct(lags, seasonalLags);
  ASSERT_EQ(seasonalLags.GetCount(), 1U);
  EXPECT_EQ(seasonalLags.GetPower(0), 36U);
  EXPECT_EQ(spec.GetSeasonLength(true), 12U);
}

TEST(ArimaSpec, SeasonOfAModelWithoutIsOne) {
  EXPECT_EQ(SpecOf(Request("arima(1,0,0)"), SeriesOf(kMonths), 12).GetSeasonLength(true), 1U);
}

TEST(ArimaSpec, PredictorOrSeasonalOutlierKeepsTheSeason) {
  EXPECT_EQ(SpecOf(WithPredictor("x:sdiff=1"), SeriesOf(kMonthsWithX), 12).GetSeasonLength(true),
            12U);
  EXPECT_EQ(
      SpecOf(WithOutlier("seasonal-additive@2000-02"), SeriesOf(kMonths), 12).GetSeasonLength(true),
      12U);
}

TEST(ArimaSpec, ConstantIsThereWithoutDifferences) {
  EXPECT_TRUE(HasConstant(Request("arima(1,0,0)")));
  EXPECT_FALSE(HasConstant(Request("arima(1,1,0)")));
  EXPECT_FALSE(HasConstant(Request("arima(1,0,0)(0,1,0)")));
}

TEST(ArimaSpec, ConstantAskedForWins) {
  ArimaRequest request = Request("arima(1,1,0)");
  request.constant = true;
  EXPECT_TRUE(HasConstant(request));
  request = Request("arima(1,0,0)");
  request.constant = false;
  EXPECT_FALSE(HasConstant(request));
}

TEST(ArimaSpec, PredictorIsTakenOver) {
  const AMModelSpec spec = SpecOf(WithPredictor("x:delay=3,num=1,sden=1,diff=1,transform=log"),
                                  SeriesOf(kMonthsWithX), 12);
  ASSERT_EQ(spec.GetXCount(), 1U);
  unsigned diff = 0;
  unsigned seasonalDiff = 0;
  unsigned delay = 0;
  spec.GetXDiffNDelay(0, diff, seasonalDiff, delay);
  EXPECT_EQ(diff, 1U);
  EXPECT_EQ(seasonalDiff, 0U);
  EXPECT_EQ(delay, 3U);
  EXPECT_EQ(spec.GetXTransformSpec(0).GetFunctionType(), TSTransformation::kLogarithm);
  AMPowers lags;
  AMPowers seasonalLags;
  spec.GetXNumerator(0, lags, seasonalLags);
  EXPECT_EQ(lags.GetCount(), 1U);
  spec.GetXDenominator(0, lags, seasonalLags);
  EXPECT_EQ(lags.GetCount(), 0U);
  ASSERT_EQ(seasonalLags.GetCount(), 1U);
  EXPECT_EQ(seasonalLags.GetPower(0), 12U);
}

TEST(ArimaOutlierTime, IsATimeOfTheSeries) {
  EXPECT_EQ(OutlierIndex("level@2000-03", SeriesOf(kMonths)), 2);
}

TEST(ArimaOutlierTime, MayBeTheNumberOfTheCase) {
  EXPECT_EQ(OutlierIndex("level@3", SeriesOf(kMonths)), 2);
  EXPECT_EQ(OutlierIndex("level@3", SeriesOf(kYears)), 2);
}

TEST(ArimaOutlierTime, OfFourDigitsIsAYearWhereTimesAreYears) {
  EXPECT_EQ(OutlierIndex("level@1872", SeriesOf(kYears)), 1);
}

TEST(ArimaOutlierTime, IsTheNumberInTheTableWhereTimesAreNumbers) {
  EXPECT_EQ(OutlierIndex("level@12", SeriesOf("n,y\n10,5\n11,4\n12,7\n13,5\n")), 2);
}

TEST(ArimaOutlierTime, CountsSkippedPeriodsUnlessTheyAreGaps) {
  constexpr char kSkipped[] = "date,y\n2000-01,5\n2000-02,6\n2000-04,7\n2000-05,5\n";
  EXPECT_EQ(OutlierIndex("level@2000-04", SeriesOf(kSkipped)), 3);
  EXPECT_EQ(OutlierIndex("level@2000-04", SeriesOf(kSkipped, true)), 2);
}

TEST(ArimaOutlierTime, MustBeOneOfTheSeries) {
  const std::string months =
      ": the series has no such time; it runs from 2000-01 to 2000-06 "
      "(monthly)";
  for (const std::string outlier :
       {"level@1999-12", "level@2000-07", "level@2000-02-01", "level@0", "level@7", "level@2000"}) {
    EXPECT_EQ(FaultOf(WithOutlier(outlier), SeriesOf(kMonths)),
              "--outlier '" + outlier + "'" + months);
  }
  EXPECT_EQ(FaultOf(WithOutlier("level@1875"), SeriesOf(kYears)),
            "--outlier 'level@1875': the series has no such time; it runs from 1871 to 1874 "
            "(yearly)");
}

TEST(ArimaOutlierTime, MustNotFallIntoAGapOrBetweenTwoCases) {
  constexpr char kSkipped[] = "date,y\n2000-01,5\n2000-02,6\n2000-04,7\n2000-05,5\n";
  EXPECT_NE(FaultOf(WithOutlier("level@2000-03"), SeriesOf(kSkipped, true)), "");
  constexpr char kWeeks[] = "date,y\n2020-01-06,5\n2020-01-13,6\n2020-01-20,7\n2020-01-27,5\n";
  EXPECT_EQ(OutlierIndex("level@2020-01-20", SeriesOf(kWeeks)), 2);
  EXPECT_NE(FaultOf(WithOutlier("level@2020-01-21"), SeriesOf(kWeeks)), "");
}

TEST(ArimaOutlierTime, MustNotFallOnAWeekendThatNeverOccurs) {
  std::string text = "date,y\n";
  for (const int day : {13, 14, 15, 16, 17, 20, 21, 22, 23, 24}) {
    text += "2020-01-" + std::to_string(day) + "," + std::to_string(day % 7) + "\n";
  }
  EXPECT_EQ(OutlierIndex("level@2020-01-20", SeriesOf(text)), 5);
  EXPECT_NE(FaultOf(WithOutlier("level@2020-01-18"), SeriesOf(text)), "");
}

TEST(ArimaFault, SeasonsNeedALength) {
  EXPECT_EQ(FaultOf(Request("arima(1,0,0)(1,0,0)"), SeriesOf(kYears), 1),
            "the second parenthesis of arima(p,d,q)(P,D,Q) needs a season, and yearly times have "
            "none; give its length with --season");
  EXPECT_EQ(FaultOf(WithPredictor("x:snum=1"), SeriesOf(kYears), 1),
            "the predictor 'x' needs a season, and yearly times have none; give its length with "
            "--season");
  EXPECT_EQ(FaultOf(WithOutlier("seasonal-additive@1872"), SeriesOf(kYears), 1),
            "the outlier 'seasonal-additive@1872' needs a season, and yearly times have none; give "
            "its length with --season");
  EXPECT_EQ(FaultOf(Request("arima(1,0,0)(0,0,0)"), SeriesOf(kYears), 1), "");
}

TEST(ArimaFault, GapsShiftSeasons) {
  const TableSeries series = SeriesOf("date,y\n2000-01,5\n2000-02,6\n2000-04,7\n2000-05,5\n", true);
  EXPECT_EQ(FaultOf(Request("arima(1,0,0)(1,0,0)"), series),
            "the second parenthesis of arima(p,d,q)(P,D,Q) has seasons, which gaps would shift; "
            "leave --gaps out or choose a model without");
  EXPECT_EQ(FaultOf(Request("arima(1,0,0)"), series), "");
}

TEST(ArimaFault, LagsReachNoFurtherThanTheSeries) {
  const TableSeries series = SeriesOf(kMonths);
  EXPECT_EQ(FaultOf(Request("arima(5,0,0)"), series), "");
  EXPECT_EQ(FaultOf(Request("arima(6,0,0)"), series),
            "the model needs more than 6 cases, so far back do its lags reach; the series has 6");
  EXPECT_EQ(FaultOf(Request("arima(1,0,0)"), SeriesOf("date,y\n2000-01,5\n")),
            "the model needs more than 1 case, so far back do its lags reach; the series has 1");
  EXPECT_EQ(FaultOf(Request("arima(0,0,1)(0,0,2)"), series),
            "the model needs more than 25 cases, so far back do its lags reach; the series has 6");
  EXPECT_EQ(FaultOf(Request("arima(0,1,0)(0,2,0)"), series),
            "the model needs more than 25 cases, so far back do its lags reach; the series has 6");
  EXPECT_EQ(FaultOf(WithPredictor("x:delay=3,diff=1,num=2"), SeriesOf(kMonthsWithX)),
            "the model needs more than 6 cases, so far back do its lags reach; the series has 5");
  EXPECT_EQ(FaultOf(WithPredictor("x:den=7"), SeriesOf(kMonthsWithX)),
            "the model needs more than 7 cases, so far back do its lags reach; the series has 5");
}

TEST(ArimaFault, LongestSeasonsAndLagsAreWithinTheRangeOfTheSum) {
  EXPECT_EQ(FaultOf(Request("arima([1000],0,0)([1000],0,0)"), SeriesOf(kMonths), 1'000'000),
            "the model needs more than 1000001000 cases, so far back do its lags reach; the series "
            "has 6");
}

TEST(ArimaFault, PredictorHasAValueForEveryCase) {
  const Refusal fault = RefusalOf(
      WithPredictor("x"), SeriesOf("date,y,x\n2000-01,5,1\n2000-02,6,\n2000-03,4,3\n"), 1, 0);
  EXPECT_EQ(fault.cause, "the predictor 'x' has no value at 2000-02, which lies within the series");
  EXPECT_EQ(fault.place, (text::Place{3, 11}));
}

TEST(ArimaFault, PredictorHasAValueForSkippedPeriodsToo) {
  const Refusal fault = RefusalOf(
      WithPredictor("x"), SeriesOf("date,y,x\n2000-01,5,1\n2000-02,6,2\n2000-04,4,3\n"), 1, 0);
  EXPECT_EQ(fault.cause, "the predictor 'x' has no value at 2000-03, which the table skips");
  EXPECT_EQ(fault.place, (text::Place{4, 11}));
}

TEST(ArimaFault, PredictorNeedsNoValueBeforeTheSeriesBegins) {
  EXPECT_EQ(FaultOf(WithPredictor("x"), SeriesOf("date,y,x\n2000-01,,\n2000-02,6,2\n"
                                                 "2000-03,4,3\n")),
            "");
}

TEST(ArimaFault, FutureOfAPredictorIsInTheDomainOfItsTransformation) {
  const TableSeries series = SeriesOf("date,y,x\n2000-01,5,1\n2000-02,6,2\n2000-03,,-3\n");
  const Refusal fault = RefusalOf(WithPredictor("x:transform=log"), series, 1, 0);
  EXPECT_EQ(fault.cause, "the predictor 'x' is -3: the logarithm needs values above 0");
  EXPECT_EQ(fault.place, (text::Place{4, 10}));
  EXPECT_EQ(FaultOf(WithPredictor("x:transform=sqrt"), series),
            "the predictor 'x' is -3: the square root needs values of at least 0");
  EXPECT_EQ(FaultOf(WithPredictor("x"), series), "");
}

constexpr char kTwoAhead[] =
    "date,y,x\n2000-01,5,1\n2000-02,6,2\n2000-03,5,1\n2000-04,7,2\n"
    "2000-05,,3\n2000-06,,4\n2000-07,,\n";

TEST(ArimaHorizon, EndsWithTheKnownValuesOfThePredictor) {
  const TableSeries series = SeriesOf(kTwoAhead);
  EXPECT_EQ(KnownHorizon(SpecOf(WithPredictor("x"), series), series.series), 2U);
  EXPECT_EQ(FaultOf(WithPredictor("x"), series, 1, 2), "");
  EXPECT_EQ(FaultOf(WithPredictor("x"), series, 1, 3),
            "--forecast 3 needs 3 values of the predictor 'x' after 2000-04, where the series "
            "ends; there are 2");
}

TEST(ArimaHorizon, IsBlamedOnTheFirstUnknownValueElseTheLastKnownOne) {
  const auto placeOf = [](std::string_view table) {
    return RefusalOf(WithPredictor("x"), SeriesOf(table), 1, 3).place;
  };
  EXPECT_EQ(placeOf(kTwoAhead), (text::Place{8, 10}));
  EXPECT_EQ(placeOf("date,y,x\n2000-01,5,1\n2000-02,6,2\n2000-03,,1\n"), (text::Place{4, 10}));
  EXPECT_EQ(placeOf("date,y,x\n2000-01,5,1\n2000-02,6,2\n"), (text::Place{3, 11}));
}

TEST(ArimaHorizon, OfOnePeriodNeedsOneValue) {
  EXPECT_EQ(FaultOf(WithPredictor("x"), SeriesOf("date,y,x\n2000-01,5,1\n2000-02,6,2\n"), 1, 1),
            "--forecast 1 needs 1 value of the predictor 'x' after 2000-02, where the series ends; "
            "there are 0");
}

TEST(ArimaHorizon, IsLongerByTheDelay) {
  const TableSeries series = SeriesOf(kTwoAhead);
  EXPECT_EQ(KnownHorizon(SpecOf(WithPredictor("x:delay=3"), series), series.series), 5U);
  EXPECT_EQ(FaultOf(WithPredictor("x:delay=3"), series, 1, 5), "");
  EXPECT_EQ(FaultOf(WithPredictor("x:delay=3"), series, 1, 6),
            "--forecast 6 needs 3 values of the predictor 'x' after 2000-04, where the series "
            "ends; there are 2");
}

TEST(ArimaHorizon, HasNoEndWithoutPredictors) {
  const TableSeries series = SeriesOf(kYears);
  EXPECT_EQ(KnownHorizon(SpecOf(Request("arima(0,1,1)"), series), series.series),
            std::numeric_limits<unsigned>::max());
}

TEST(ArimaHorizon, LastKnownValueStandsForThoseWithoutEffect) {
  using Values = std::vector<double>;
  EXPECT_EQ(FutureValues(SeriesOf(kTwoAhead).series, 4), (std::vector<Values>{{3, 4, 4, 4}}));
  EXPECT_EQ(FutureValues(SeriesOf(kMonthsWithX).series, 2), (std::vector<Values>{{5, 5}}));
  EXPECT_EQ(FutureValues(SeriesOf(kTwoAhead).series, 1), (std::vector<Values>{{3}}));
}

TEST(ArimaTitle, HasTheUsualNotation) {
  EXPECT_EQ(TitleOf("arima(0,1,1)(0,1,1)", 12), "ARIMA(0,1,1)(0,1,1)12");
  EXPECT_EQ(TitleOf("arima(2,0,1)", 12), "ARIMA(2,0,1)");
  EXPECT_EQ(TitleOf("arima(2,0,1)(0,0,0)", 12), "ARIMA(2,0,1)");
}

TEST(ArimaTitle, ListsLagsThatAreNoOrder) {
  EXPECT_EQ(TitleOf("arima([1,3],1,[1])", 1), "ARIMA([1,3],1,1)");
  EXPECT_EQ(TitleOf("arima([2],0,0)([2,3],0,[1,2])", 4), "ARIMA([2],0,0)([2,3],0,2)4");
}

TEST(ArimaTitle, TellsTransformationAndConstant) {
  EXPECT_EQ(TitleOf("arima(0,1,1)", 1, TSTransformation::kLogarithm),
            "ARIMA(0,1,1) of the logarithm");
  EXPECT_EQ(TitleOf("arima(0,1,1)", 1, TSTransformation::kSquareRoot),
            "ARIMA(0,1,1) of the square root");
  EXPECT_EQ(ArimaTitle(SpecOf(Request("arima(1,0,0)"), SeriesOf(kYears))),
            "ARIMA(1,0,0) with a constant");
}

}  // namespace
}  // namespace tsx::models
