#include <gtest/gtest.h>

#include "models/HandMadeSeries.h"
#include "report/ChoiceText.h"
#include "report/ForecastTable.h"
#include "report/Summary.h"

// Reports of a model whose class no report can know, since it is of this file.
namespace tsx::report {
namespace {

class ToyModel final : public models::FittedModel {
 public:
  explicit ToyModel(models::Description rows) : rows_(std::move(rows)) {}

  tsffit::Forecasts Forecast(unsigned horizon) const override {
    return {.value = std::vector<double>(horizon, 2.5),
            .std_error = std::vector<double>(horizon, 1),
            .lower = std::vector<double>(horizon, MV::gMissingValue),
            .upper = std::vector<double>(horizon, 4)};
  }
  bool AddTo(TSXMLTree& /*tree*/, const TSXDictionaryRefs& /*refs*/) const override {
    return false;
  }
  const EstimationInfo& Estimation() const override { return info_; }
  models::Description Describe() const override { return rows_; }

 private:
  models::Description rows_;
  EstimationInfo info_;
};

const models::Series& ToySeries() {
  static const models::Series series = test::HandMadeSeries({1, 2, MV::gMissingValue});
  return series;
}

models::SeriesFit FitOf(models::Description rows) {
  models::SeriesFit fit;
  fit.series = &ToySeries();
  rows.name = "toy-kind";
  rows.title = "Toy";
  fit.model = std::make_unique<ToyModel>(std::move(rows));
  return fit;
}

constexpr char kHead[] =
    "toy\n"
    "  series      sales, monthly from 2000-01 to 2000-03, 3 cases, 1 missing\n";

std::string SummaryOf(models::Description rows) {
  const std::string text = SummaryText(FitOf(std::move(rows)));
  EXPECT_EQ(text.substr(0, sizeof kHead - 1), kHead);
  return text.substr(sizeof kHead - 1);
}

TEST(Summary, TellsWhatTheTitleDoesNot) {
  models::Description rows;
  rows.estimates_are = models::Estimates::kCoefficients;
  rows.season_length = 12;
  rows.function_type = TSTransformation::kSquareRoot;
  rows.method = "guesswork";
  rows.basis = "1 demand";
  EXPECT_EQ(SummaryOf(rows),
            "  model       Toy, season of 12, of the square root, guesswork, 1 demand\n");
}

TEST(Summary, WeightsStandInOneLineWithTheirErrors) {
  models::Description rows;
  rows.estimates_are = models::Estimates::kWeights;
  rows.estimates = {{"level", 0.25, 0.125},
                    {"trend", 1, MV::gMissingValue, models::NoError::kOnBound},
                    {"season", 0.1, MV::gMissingValue, models::NoError::kNotEstimated},
                    {"damping", 0.5}};
  EXPECT_EQ(SummaryOf(rows),
            "  model       Toy\n"
            "  weights     level 0.2500 (s.e. 0.12), trend 1.0000 (on its bound), season 0.1000 "
            "(not estimated), damping 0.5000 (s.e. undefined)\n");
}

TEST(Summary, FiguresStandByNameOrInTheirSentence) {
  models::Description rows;
  rows.figures = {
      {.label = "fit", .rows = {{"RMSE", 1.23456789}, {"MAPE", 12.3456, "%"}, {"MAE"}}},
      {.label = "state", .rows = {{"rate", 2}, {"gap", 3}}, .sentence = "{} in {} periods"},
      {.label = "test", .without = "none made"}};
  EXPECT_EQ(SummaryOf(rows),
            "  model       Toy\n"
            "  fit         RMSE 1.2346, MAPE 12.35 %, MAE undefined\n"
            "  state       2 in 3 periods\n"
            "  test        none made\n");
}

TEST(Summary, OfALongSeasonShowsTheFirstTwoDozen) {
  models::Description rows;
  rows.season.assign(25, 7);
  const std::string six = "7          7          7          7          7          7\n";
  EXPECT_EQ(SummaryOf(rows), "  model       Toy\n  season      " + six + "              " + six +
                                 "              " + six + "              " + six +
                                 "              ... 25 values in all\n");
}

TEST(Summary, OutliersThatWereSoughtInVainAreTold) {
  models::Description rows;
  rows.outliers_sought = true;
  EXPECT_EQ(SummaryOf(rows), "  model       Toy\n  outliers    none found\n");
}

TEST(Summary, WarningsStandUnderTheModelAndEndTheLine) {
  models::Description rows;
  rows.warnings = {"made of wood"};
  EXPECT_EQ(SummaryOf(rows), "  model       Toy\n  warning     made of wood\n");
  EXPECT_EQ(SummaryLine(FitOf(rows)), "toy: toy-kind; made of wood\n");
}

TEST(Summary, TheReasonStandsUnderTheModelAndInTheLine) {
  models::SeriesFit fit = FitOf({});
  fit.choice.reason = models::Choice::Reason::kAlone;
  EXPECT_EQ(SummaryText(fit), std::string(kHead) +
                                  "  model       Toy\n"
                                  "  why         the only kind that goes with the series\n");
  EXPECT_EQ(SummaryLine(fit), "toy: toy-kind (the only kind that goes with the series)\n");
}

TEST(ChoiceText, CountsPerfectFits) {
  models::Choice choice = {.reason = models::Choice::Reason::kPerfect, .kinds = 1};
  EXPECT_EQ(ChoiceText(choice), "the only kind to fit without error");
  choice.kinds = 3;
  EXPECT_EQ(ChoiceText(choice), "fits without error, the simplest of 3 kinds to do so");
}

TEST(ChoiceText, NamesTheCriterionOfASearch) {
  const models::Choice choice = {.reason = models::Choice::Reason::kSearched,
                                 .search = {"AICc", -12.3456, 17}};
  EXPECT_EQ(ChoiceText(choice), "lowest AICc of 17 models, -12.346");
}

TEST(ForecastTable, GoesOnWithTheTimesOfTheSeries) {
  std::vector<models::SeriesFit> fits;
  fits.push_back(FitOf({}));
  fits.emplace_back();  // a hopeless one
  EXPECT_EQ(ForecastTable(fits, 2),
            "series,time,forecast,lower95,upper95\n"
            "toy,2000-04,2.5,,4\n"
            "toy,2000-05,2.5,,4\n");
}

}  // namespace
}  // namespace tsx::report
