#include <algorithm>
#include <gtest/gtest.h>

#include "HandMadeSeries.h"
#include "models/Classes.h"
#include "models/ModelChoice.h"
#include "models/arima/Arima.h"

// The rows that models of the three classes describe themselves in, on series whose models are
// known without a fit.
namespace tsx::models {
namespace {

using test::HandMadeSeries;

Description Described(const Series& series, const ModelRequest& request) {
  const SeriesFit fit = FitSeries(series, request);
  EXPECT_EQ(fit.fault.cause, "");
  return fit.model->Describe();
}

const Figures& FiguresOf(const Description& rows, const std::string& label) {
  const auto found = std::find_if(rows.figures.begin(), rows.figures.end(),
                                  [&](const Figures& one) { return one.label == label; });
  if (found == rows.figures.end()) throw std::out_of_range("no figures " + label);
  return *found;
}

double ValueOf(const Description& rows, const std::string& label, const std::string& name) {
  for (const Figure& figure : FiguresOf(rows, label).rows) {
    if (figure.name == name) return figure.value;
  }
  throw std::out_of_range("no figure " + name);
}

TEST(Description, OfAStraightLineByHoltsMethod) {
  std::vector<double> line;
  for (int i = 0; i < 20; ++i) line.push_back(3 + 2 * i);
  const Series series = HandMadeSeries(line);
  const Description rows = Described(series, {.kind = FindKind("holt")});
  EXPECT_EQ(rows.name, "holt");
  EXPECT_EQ(rows.title, "Holt's linear trend");
  EXPECT_EQ(rows.season_length, 0U);
  EXPECT_TRUE(rows.season.empty());
  ASSERT_EQ(rows.estimates.size(), 2U);
  EXPECT_EQ(rows.estimates[0].name, "level");
  EXPECT_EQ(rows.estimates[1].name, "trend");
  EXPECT_NEAR(ValueOf(rows, "state", "level"), 41, 1e-6);
  EXPECT_NEAR(ValueOf(rows, "state", "trend"), 2, 1e-6);
  EXPECT_NEAR(ValueOf(rows, "fit", "RMSE"), 0, 1e-6);
}

TEST(Description, SeasonBeginsWithTheNextCase) {
  std::vector<double> values;
  for (int i = 0; i < 30; ++i) values.push_back(50 + i % 4);
  const Series series = HandMadeSeries(values);
  const Description rows =
      Described(series, {.kind = FindKind("simple-seasonal"), .season_length = 4});
  EXPECT_EQ(rows.season_length, 4U);
  ASSERT_EQ(rows.season.size(), 4U);
  // Case 30 has the place 2 in its cycle of 50, 51, 52, 53.
  EXPECT_NEAR(rows.season[1] - rows.season[0], 1, 1e-6);
  EXPECT_NEAR(rows.season[2] - rows.season[1], -3, 1e-6);
  EXPECT_NEAR(rows.season[3] - rows.season[2], 1, 1e-6);
}

TEST(Description, OfTheSameDemandEverySecondPeriod) {
  std::vector<double> values;
  for (int i = 0; i < 20; ++i) values.push_back(i % 2 == 0 ? 0 : 4);
  const Series series = HandMadeSeries(values);
  const Description rows = Described(series, {});
  EXPECT_EQ(rows.name, "croston");
  EXPECT_EQ(rows.basis, "10 demands");
  EXPECT_EQ(rows.estimates.size(), 3U);
  EXPECT_NEAR(ValueOf(rows, "state", "demand"), 4, 1e-9);
  EXPECT_NEAR(ValueOf(rows, "state", "interval"), 2, 1e-9);
  EXPECT_NEAR(ValueOf(rows, "state", "rate"), 2, 1e-9);
}

TEST(Description, OfAMeanAndNoise) {
  const Series series = HandMadeSeries({4, 6, 5, 7, 3, 5, 6, 4, 5, 5});
  ModelRequest request = {.kind = &ArimaKind()};
  request.arima.constant = true;
  const Description rows = Described(series, request);
  EXPECT_EQ(rows.name, "ARIMA(0,0,0) with a constant");
  EXPECT_EQ(rows.method, "exact maximum likelihood");
  ASSERT_EQ(rows.estimates.size(), 1U);
  EXPECT_EQ(rows.estimates[0].name, "constant");
  EXPECT_NEAR(rows.estimates[0].value, 5, 1e-9);
  // The sum of squares is 12; v = 12 / 9, and the mean has the error sqrt(v / 10).
  EXPECT_NEAR(ValueOf(rows, "likelihood", "error variance"), 12.0 / 9, 1e-9);
  EXPECT_FALSE(rows.outliers_sought);
}

TEST(Description, LeavesOutTheTestThatCannotBeMade) {
  const Series series = HandMadeSeries({4, 6, 5, 7, 3});
  const Description rows = Described(series, {.kind = FindKind("simple")});
  EXPECT_TRUE(FiguresOf(rows, "residuals").rows.empty());
  EXPECT_STREQ(FiguresOf(rows, "residuals").without, "too few for a Ljung-Box test");
}

TEST(HostWords, SpeakOfNoOptionsUnlessTheHostHasThem) {
  const Series series = HandMadeSeries({3, 4, 3, 5, 4}, "1871");
  EXPECT_EQ(FitSeries(series, {.kind = FindKind("winters-additive")}).fault.cause,
            "winters-additive needs a season, and yearly times have none; give its length");
}

TEST(Faults, AreAboutASpotOfTheSeries) {
  const Series series = HandMadeSeries({3, 4, 0, 5, 4});
  ModelRequest request = {.kind = FindKind("simple")};
  request.function_type = TSTransformation::kLogarithm;
  const SeriesFit fit = FitSeries(series, request);
  EXPECT_TRUE(IsHopeless(fit));
  EXPECT_EQ(fit.fault.where, AtValue(2));
}

}  // namespace
}  // namespace tsx::models
