// Croston's method: cases worked by hand, R's numbers on two intermittent series, and what must
// hold for any series.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include <tsffit/tsffit.h>

#include "core/support/TestSeries.h"

namespace {

using tsffit::CrostonFit;
using tsffit::CrostonOptions;
using tsffit::CrostonRate;
using tsffit::FitCroston;
using tsffit::FitStatus;
using Values = std::vector<double>;

const double kMissing = MV::gMissingValue;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// All three weights fixed.
CrostonOptions Weights(double weight, int function = TSTransformation::kNone) {
  return {.function_type = function,
          .size_weight = weight,
          .interval_weight = weight,
          .error_weight = weight};
}

const ESForecastState& State(const CrostonFit& fit, int submodel) {
  return fit.model.GetImp()->GetForecastState(submodel);
}
double Level(const CrostonFit& fit, int submodel) {
  return State(fit, submodel).GetSmState().level;
}
double Weight(const CrostonFit& fit, int submodel) {
  return State(fit, submodel).GetParameterEstimates()[0];
}
double StdError(const CrostonFit& fit, int submodel) {
  return State(fit, submodel).GetParameterStdErrors()[0];
}
const EstimationInfo& Info(const CrostonFit& fit) {
  return fit.model.GetImp()->GetEstimationInfo();
}

void ExpectValues(const Values& actual, const Values& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_DOUBLE_EQ(actual[i], expected[i]) << i;
}

// Sizes 3, 2, 4 and intervals 2, 3, 2. With weights of a half the levels are 3, 2.5, 3.25 and
// 2, 2.5, 2.25, so the rate is 1.5, then 1, then 13/9.
const Values kWorked = {0, 3, 0, 0, 2, 0, 4};

TEST(CrostonFit, LevelsAreThoseWorkedByHand) {
  const CrostonFit fit = FitCroston(kWorked, Weights(0.5));
  ASSERT_EQ(fit.status, FitStatus::kOk);
  EXPECT_EQ(fit.message, "");
  EXPECT_DOUBLE_EQ(Level(fit, 0), 3.25);
  EXPECT_DOUBLE_EQ(Level(fit, 1), 2.25);
  // The errors are 1.5, 1.5, 1.5, 1.5, 0.5, 1 and 3; their level goes 1.5, 1, 1, 2.
  EXPECT_DOUBLE_EQ(Level(fit, 2), 2);
  EXPECT_EQ(fit.model.GetImp()->GetFunctionType(), TSTransformation::kNone);
}

TEST(CrostonFit, FittedValuesAreTheRatesBeforeEachCase) {
  ExpectValues(FitCroston(kWorked, Weights(0.5)).fitted, {1.5, 1.5, 1.5, 1.5, 1.5, 1, 1});
}

TEST(CrostonFit, SummaryTellsDemandsAndSumsOfSquares) {
  const CrostonFit fit = FitCroston(kWorked, Weights(0.5));
  EXPECT_EQ(fit.summary.demands, 3U);
  EXPECT_DOUBLE_EQ(fit.summary.sizes.sse, 1 + 2.25);
  EXPECT_DOUBLE_EQ(fit.summary.intervals.sse, 1 + 0.25);
  EXPECT_DOUBLE_EQ(fit.summary.errors.sse, 1 + 4);
  EXPECT_EQ(fit.summary.sizes.weight, 0.5);
  EXPECT_FALSE(fit.summary.sizes.estimated);
}

TEST(CrostonFit, StatisticsAreOfTheErrorsOfAllCases) {
  const CrostonFit fit = FitCroston(kWorked, Weights(0.5));
  EXPECT_EQ(Info(fit).GetSpan().start, 0U);
  EXPECT_EQ(Info(fit).GetSpan().length, 7U);
  EXPECT_EQ(Info(fit).GetDegreesOfFreedom(), 7U);
  EXPECT_DOUBLE_EQ(Info(fit).GetErrorVariance(), (4 * 2.25 + 0.25 + 1 + 9) / 7);
  EXPECT_DOUBLE_EQ(Info(fit).GetGOFStat(BFSharedConst::kMeanAbsErr), 1.5);
  EXPECT_DOUBLE_EQ(Info(fit).GetGOFStat(BFSharedConst::kMaxAbsErr), 3);
}

TEST(CrostonFit, StationaryRSquaredIsRSquared) {
  const CrostonFit fit = FitCroston(kWorked, Weights(0.5));
  EXPECT_DOUBLE_EQ(Info(fit).GetGOFStat(BFSharedConst::kStationaryRSqr),
                   Info(fit).GetGOFStat(BFSharedConst::kRSqr));
}

TEST(CrostonFit, DemandInEveryCaseIsSimpleSmoothing) {
  const CrostonFit fit = FitCroston(Values{8, 4, 6}, Weights(0.5));
  EXPECT_DOUBLE_EQ(Level(fit, 0), 6);
  EXPECT_DOUBLE_EQ(Level(fit, 1), 1);
  ExpectValues(fit.fitted, {8, 8, 6});
}

TEST(CrostonFit, LogarithmAveragesGeometrically) {
  const CrostonFit fit = FitCroston(Values{0, 2, 0, 8}, Weights(0.5, TSTransformation::kLogarithm));
  EXPECT_DOUBLE_EQ(Level(fit, 0), std::log(4.0));
  EXPECT_DOUBLE_EQ(Level(fit, 1), 2);
  EXPECT_EQ(fit.model.GetImp()->GetFunctionType(), TSTransformation::kLogarithm);
  EXPECT_DOUBLE_EQ(tsffit::Forecast(fit.model, 1).value[0], 2);
  ExpectValues(fit.fitted, {1, 1, 1, 1});
}

TEST(CrostonFit, SquareRootAveragesRoots) {
  const CrostonFit fit =
      FitCroston(Values{0, 1, 0, 9}, Weights(0.5, TSTransformation::kSquareRoot));
  EXPECT_DOUBLE_EQ(Level(fit, 0), 2);
  EXPECT_DOUBLE_EQ(tsffit::Forecast(fit.model, 1).value[0], 2);
}

TEST(CrostonFit, SizesBelowOneHaveNegativeLogarithmsAndAPositiveRate) {
  const CrostonFit fit =
      FitCroston(Values{0, 0.25, 0, 0.25}, Weights(0.5, TSTransformation::kLogarithm));
  EXPECT_DOUBLE_EQ(Level(fit, 0), std::log(0.25));
  EXPECT_DOUBLE_EQ(tsffit::Forecast(fit.model, 1).value[0], 0.125);
}

TEST(CrostonZeros, LeadingOnesMakeTheFirstIntervalLong) {
  EXPECT_DOUBLE_EQ(Level(FitCroston(Values{0, 0, 0, 0, 5, 5}, Weights(0.5)), 1), 3);
}

TEST(CrostonZeros, TrailingOnesMoveNoLevelOfTheRate) {
  Values longer = kWorked;
  longer.insert(longer.end(), 10, 0.0);
  const CrostonFit fit = FitCroston(longer, Weights(0.5));
  EXPECT_DOUBLE_EQ(Level(fit, 0), 3.25);
  EXPECT_DOUBLE_EQ(Level(fit, 1), 2.25);
  EXPECT_EQ(Info(fit).GetSpan().length, 17U);
}

TEST(CrostonZeros, NegativeZeroIsZero) {
  EXPECT_DOUBLE_EQ(Level(FitCroston(Values{-0.0, 3}, Weights(0.5)), 1), 2);
}

TEST(CrostonMissing, CasesAreNeitherErrorsNorPartOfAnInterval) {
  const CrostonFit fit = FitCroston(Values{0, 3, kMissing, 0, kMissing, 0, 2, 0, 4}, Weights(0.5));
  const CrostonFit without = FitCroston(kWorked, Weights(0.5));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Level(fit, i), Level(without, i));
  EXPECT_EQ(Info(fit).GetErrorVariance(), Info(without).GetErrorVariance());
  EXPECT_EQ(Info(fit).GetDegreesOfFreedom(), 7U);
  EXPECT_EQ(Info(fit).GetSpan().length, 9U);
  ExpectValues(fit.fitted, {1.5, 1.5, 1.5, 1.5, 1.5, 1.5, 1.5, 1, 1});
}

TEST(CrostonMissing, SpanBeginsAtTheFirstObservedCase) {
  const CrostonFit fit = FitCroston(Values{kMissing, kMissing, 0, 4}, Weights(0.5));
  EXPECT_EQ(Info(fit).GetSpan().start, 2U);
  EXPECT_EQ(Info(fit).GetSpan().length, 2U);
  ExpectValues(fit.fitted, {kMissing, kMissing, 2, 2});
}

TEST(CrostonRefusal, SeriesWithoutDemand) {
  const CrostonFit fit = FitCroston(Values{0, 0, kMissing, 0}, {});
  EXPECT_EQ(fit.status, FitStatus::kNoDemand);
  EXPECT_EQ(fit.message, "the series has no demand: no value is above 0");
  EXPECT_TRUE(fit.model.IsEmpty());
  EXPECT_TRUE(fit.fitted.empty());
}

TEST(CrostonRefusal, SeriesWithoutObservedCases) {
  EXPECT_EQ(FitCroston(Values{}, {}).status, FitStatus::kTooShort);
  EXPECT_EQ(FitCroston(Values{kMissing, kMissing}, {}).status, FitStatus::kTooShort);
}

TEST(CrostonRefusal, NegativeCaseIsBlamed) {
  const CrostonFit fit = FitCroston(Values{0, 3, 0, -1, 2}, {});
  EXPECT_EQ(fit.status, FitStatus::kNegative);
  EXPECT_EQ(fit.bad_case, 3U);
  EXPECT_EQ(fit.message, "Croston's method needs values of at least 0");
}

TEST(CrostonRefusal, CaseThatIsNoNumberIsBlamed) {
  for (const double y : {kInfinity, -kInfinity, std::nan(""), 1e301}) {
    const CrostonFit fit = FitCroston(Values{0, 3, y}, {});
    EXPECT_EQ(fit.status, FitStatus::kNotFinite);
    EXPECT_EQ(fit.bad_case, 2U);
  }
}

TEST(CrostonRefusal, WeightsAndTransformationsThatThereAreNot) {
  for (const double weight : {-0.1, 1.1, std::nan("")}) {
    EXPECT_EQ(FitCroston(kWorked, {.size_weight = weight}).status, FitStatus::kBadOptions);
    EXPECT_EQ(FitCroston(kWorked, {.interval_weight = weight}).status, FitStatus::kBadOptions);
    EXPECT_EQ(FitCroston(kWorked, {.error_weight = weight}).status, FitStatus::kBadOptions);
  }
  EXPECT_EQ(FitCroston(kWorked, {.function_type = 3}).status, FitStatus::kBadOptions);
}

TEST(CrostonWeights, FewDemandsGetATenth) {
  const CrostonFit one = FitCroston(Values{0, 0, 6, 0}, {});
  ASSERT_EQ(one.status, FitStatus::kOk);
  EXPECT_EQ(Level(one, 0), 6);
  EXPECT_EQ(Level(one, 1), 3);
  const CrostonFit three = FitCroston(kWorked, {});
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Weight(one, i), 0.1);
    EXPECT_EQ(Weight(three, i), 0.1);
    EXPECT_EQ(StdError(three, i), kMissing);
    EXPECT_EQ(State(three, i).GetESModelSpec().GetParameterCount(false), 0U);
  }
}

TEST(CrostonWeights, FourDemandsAreEnoughToEstimate) {
  const CrostonFit fit = FitCroston(Values{0, 3, 0, 0, 2, 0, 4, 1}, {});
  EXPECT_TRUE(fit.summary.sizes.estimated);
  EXPECT_TRUE(fit.summary.intervals.estimated);
  EXPECT_TRUE(fit.summary.errors.estimated);
  EXPECT_EQ(Info(fit).GetDegreesOfFreedom(), 6U);
  EXPECT_EQ(State(fit, 0).GetESModelSpec().GetParameterCount(false), 1U);
}
// S(a) of 0, 1, 0, 0 is 1 + a^2 + (a - a^2)^2, least at the lower bound; of 0, 1, 1, 1 it is
// 1 + (1 - a)^2 + (1 - a)^4, least at the upper one.
TEST(CrostonWeights, OnABoundTheyHaveNoStandardError) {
  const CrostonFit low = FitCroston(Values{1, 2, 1, 1}, {});
  EXPECT_EQ(Weight(low, 0), 0.01);
  EXPECT_EQ(StdError(low, 0), kMissing);
  const CrostonFit high = FitCroston(Values{1, 2, 2, 2}, {});
  EXPECT_EQ(Weight(high, 0), 1);
  EXPECT_EQ(StdError(high, 0), kMissing);
}
// The sizes less 1 are 0, 1, b, 0 with errors 1, b - a and -(a + a (b - a)), so that with b = 0.5
// S(a) = 1 + (0.5 - a)^2 + (1.5 a - a^2)^2, S'(a) = 4 a^3 - 9 a^2 + 6.5 a - 1 and
// S''(a) = 12 a^2 - 18 a + 6.5. Its root is near 0.2084.
TEST(CrostonWeights, InsideTheBoundsTheyAreTheRootOfTheSlope) {
  const CrostonFit fit = FitCroston(Values{1, 2, 1.5, 1}, {});
  const double a = Weight(fit, 0);
  EXPECT_NEAR(a, 0.2084, 1e-4);
  EXPECT_NEAR(4 * a * a * a - 9 * a * a + 6.5 * a - 1, 0, 1e-12);
  const double sum = 1 + std::pow(0.5 - a, 2) + std::pow(1.5 * a - a * a, 2);
  EXPECT_NEAR(fit.summary.sizes.sse, sum, 1e-14);
  EXPECT_NEAR(StdError(fit, 0), std::sqrt(sum / 2 / ((12 * a * a - 18 * a + 6.5) / 2)), 1e-10);
}

TEST(CrostonWeights, AreATenthWhereTheyChangeNothing) {
  const CrostonFit same = FitCroston(Values{5, 0, 5, 0, 0, 5, 5, 5}, {});
  EXPECT_EQ(Weight(same, 0), 0.1);
  EXPECT_FALSE(same.summary.sizes.estimated);
  EXPECT_EQ(same.summary.sizes.sse, 0);
  EXPECT_TRUE(same.summary.intervals.estimated);
  EXPECT_EQ(Info(same).GetDegreesOfFreedom(), 7U);
  // Only the last size differs: no weight could have foreseen it.
  const CrostonFit last = FitCroston(Values{5, 5, 5, 7}, {});
  EXPECT_EQ(Weight(last, 0), 0.1);
  EXPECT_DOUBLE_EQ(last.summary.sizes.sse, 4);
}

TEST(CrostonWeights, OneMayBeFixedAndTheOthersEstimated) {
  const CrostonFit fit = FitCroston(Values{0, 3, 0, 0, 2, 0, 4, 1}, {.interval_weight = 0.3});
  EXPECT_TRUE(fit.summary.sizes.estimated);
  EXPECT_EQ(Weight(fit, 1), 0.3);
  EXPECT_EQ(StdError(fit, 1), kMissing);
  EXPECT_EQ(Info(fit).GetDegreesOfFreedom(), 7U);
}

TEST(CrostonWeights, ThatOfTheErrorsCostsNoDegreeOfFreedom) {
  const CrostonFit fit =
      FitCroston(Values{0, 3, 0, 0, 2, 0, 4, 1}, {.size_weight = 0.1, .interval_weight = 0.1});
  EXPECT_TRUE(fit.summary.errors.estimated);
  EXPECT_EQ(Info(fit).GetDegreesOfFreedom(), 8U);
}

TEST(CrostonWeights, DoNotDependOnTheUnit) {
  const Values series = {0, 3, 0, 0, 2, 0, 4, 1, 0, 7, 2};
  const CrostonFit fit = FitCroston(series, {});
  for (const double unit : {1e-200, 1e-6, 1e9, 1e290}) {
    Values scaled = series;
    for (double& y : scaled) y *= unit;
    const CrostonFit other = FitCroston(scaled, {});
    EXPECT_NEAR(Weight(other, 0), Weight(fit, 0), 1e-9) << unit;
    EXPECT_NEAR(Level(other, 0) / unit, Level(fit, 0), 1e-9) << unit;
  }
}

double SumOfSquares(const Values& values, double weight) {
  double sum = 0;
  double level = values[0];
  for (std::size_t i = 1; i < values.size(); ++i) {
    sum += (values[i] - level) * (values[i] - level);
    level = weight * values[i] + (1 - weight) * level;
  }
  return sum;
}

TEST(CrostonWeights, NoneOfAFineGridIsBetter) {
  std::mt19937 random(20261);
  for (int run = 0; run < 60; ++run) {
    Values sizes;
    for (int i = 0; i < 4 + run; ++i)
      sizes.push_back(1 + static_cast<double>(random() % 20) + (run % 3) * i);
    const CrostonFit fit = FitCroston(sizes, {});
    double least = kInfinity;
    for (int i = 0; i <= 9900; ++i) least = std::min(least, SumOfSquares(sizes, 0.01 + i * 1e-4));
    EXPECT_LE(fit.summary.sizes.sse, least * (1 + 1e-12)) << run;
    EXPECT_NEAR(fit.summary.sizes.sse, SumOfSquares(sizes, Weight(fit, 0)), 1e-10 * least);
  }
}

TEST(CrostonNumbers, OfWildSeriesAreFiniteOrMissing) {
  const auto expectDefined = [](double value) {
    EXPECT_TRUE(std::isfinite(value)) << value;  // the missing value is finite too
  };
  std::mt19937 random(7);
  const double wild[] = {0, 0, 0, 5e-324, 1e-300, 1, 1e150, 1e300, kMissing};
  for (int run = 0; run < 300; ++run) {
    Values series;
    for (unsigned i = 0; i < 1 + random() % 30; ++i) series.push_back(wild[random() % 9]);
    CrostonOptions options;
    options.function_type = static_cast<int>(random() % 3);
    const CrostonFit fit = FitCroston(series, options);
    if (fit.status != FitStatus::kOk) continue;
    for (int i = 0; i < 3; ++i) {
      expectDefined(Level(fit, i));
      expectDefined(Weight(fit, i));
      expectDefined(StdError(fit, i));
    }
    expectDefined(Info(fit).GetErrorVariance());
    for (int code = 0; code < BFSharedConst::kGOFStatCount; ++code) {
      expectDefined(Info(fit).GetGOFStat(static_cast<BFSharedConst::GOFStatType>(code)));
    }
    const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 2);
    ASSERT_EQ(forecasts.value.size(), 2U);
    EXPECT_GE(forecasts.value[1], 0);
    expectDefined(forecasts.value[1]);
  }
}

TEST(CrostonForecast, IsTheSameForEveryPeriod) {
  const CrostonFit fit = FitCroston(kWorked, Weights(0.5));
  ExpectValues(tsffit::Forecast(fit.model, 3).value, {13.0 / 9, 13.0 / 9, 13.0 / 9});
}

TEST(CrostonForecast, BiasCorrectionTakesHalfTheIntervalWeightOff) {
  CrostonOptions options = Weights(0.5);
  options.size_weight = 0.25;
  const CrostonFit fit = FitCroston(kWorked, options);
  const double plain = tsffit::Forecast(fit.model, 1).value[0];
  ExpectValues(tsffit::Forecast(fit.model, 2, 0.95, CrostonRate::kSyntetosBoylan).value,
               {0.75 * plain, 0.75 * plain});
}
// The level of the absolute errors is 2; the quantile of 0.95 is 1.6448536269514722.
TEST(CrostonForecast, LimitsComeFromTheAbsoluteErrorsAndDoNotGoBelowZero) {
  const CrostonFit fit = FitCroston(kWorked, Weights(0.5));
  const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 1, 0.9);
  const double error = 2 * std::sqrt(std::numbers::pi / 2);
  EXPECT_DOUBLE_EQ(forecasts.std_error[0], error);
  EXPECT_DOUBLE_EQ(forecasts.upper[0], 13.0 / 9 + 1.6448536269514722 * error);
  EXPECT_EQ(forecasts.lower[0], 0);
}

TEST(CrostonForecast, LowerLimitIsBelowTheRateWhereErrorsAreSmall) {
  const CrostonFit fit = FitCroston(Values{8, 9, 8, 9}, Weights(0.5));
  const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 1);
  EXPECT_GT(forecasts.lower[0], 0);
  EXPECT_NEAR(forecasts.value[0] - forecasts.lower[0], forecasts.upper[0] - forecasts.value[0],
              1e-12);
}

TSFCrModel ModelOf(double size, double interval, double error, int function = 0) {
  TSFCrModelImp::Fields fields;
  fields.function_type = function;
  const double levels[] = {size, interval, error};
  for (std::size_t i = 0; i < 3; ++i) {
    fields.states[i] =
        ESForecastState({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1)),
                         .smoothed = {.level = levels[i]}});
  }
  return TSFCrModel(new TSFCrModelImp(std::move(fields)));
}

// The normal quantile of 1 - 2^-54 is 8.2924.
TEST(CrostonForecast, LimitsHoldUpToTheLastConfidenceBelowOne) {
  const CrostonFit fit = FitCroston(kWorked, Weights(0.5));
  const auto forecasts = tsffit::Forecast(fit.model, 1, std::nextafter(1.0, 0.0));
  ASSERT_EQ(forecasts.upper.size(), 1U);
  EXPECT_NEAR((forecasts.upper[0] - forecasts.value[0]) / forecasts.std_error[0], 8.2924, 1e-4);
}

TEST(CrostonForecast, ThereIsNoneWithoutUsableLevels) {
  EXPECT_TRUE(tsffit::Forecast(TSFCrModel(), 3).value.empty());
  EXPECT_TRUE(tsffit::Forecast(ModelOf(kMissing, 2, 1), 3).value.empty());
  EXPECT_TRUE(tsffit::Forecast(ModelOf(3, kMissing, 1), 3).value.empty());
  EXPECT_TRUE(tsffit::Forecast(ModelOf(3, 0, 1), 3).value.empty());
  EXPECT_TRUE(tsffit::Forecast(ModelOf(3, 2, 1, 9), 3).value.empty());
  EXPECT_TRUE(tsffit::Forecast(ModelOf(3, 2, 1), 3, 1.0).value.empty());
  EXPECT_TRUE(
      tsffit::Forecast(ModelOf(3, 2, 1), 3, 0.95, CrostonRate::kSyntetosBoylan).value.empty());
}

TEST(CrostonForecast, HasNoLimitsWithoutALevelOfTheErrors) {
  const tsffit::Forecasts forecasts = tsffit::Forecast(ModelOf(3, 2, kMissing), 1);
  ExpectValues(forecasts.value, {1.5});
  ExpectValues(forecasts.std_error, {kMissing});
  ExpectValues(forecasts.lower, {kMissing});
  ExpectValues(forecasts.upper, {kMissing});
}

// tests/reference/croston.csv, made by croston.R beside it.
struct Reference {
  std::string series, quantity;
  double weight = 0;
  double value = 0;
};

std::vector<Reference> References() {
  std::vector<Reference> references;
  for (const auto& row : test::ReadRows("reference/croston.csv")) {
    references.push_back({row.at(0), row.at(1), std::stod(row.at(2)), std::stod(row.at(3))});
  }
  return references;
}

// The sum of the one-step forecasts after the first demand.
double FittedSum(const Values& series, const Values& fitted) {
  const auto first = std::find_if(series.begin(), series.end(), [](double y) { return y > 0; });
  double sum = 0;
  for (auto t = static_cast<std::size_t>(first - series.begin()) + 1; t < fitted.size(); ++t) {
    sum += fitted[t];
  }
  return sum;
}

TEST(CrostonReference, FixedWeightsGiveTheLevelsOfR) {
  int compared = 0;
  for (const Reference& row : References()) {
    if (row.quantity.ends_with("_sse")) continue;
    const Values series = test::DataColumn(row.series + ".csv");
    const CrostonFit fit = FitCroston(series, Weights(row.weight));
    double actual = Level(fit, 2);
    if (row.quantity == "size_level") actual = Level(fit, 0);
    if (row.quantity == "interval_level") actual = Level(fit, 1);
    if (row.quantity == "rate") actual = tsffit::Forecast(fit.model, 1).value[0];
    if (row.quantity == "fitted_sum") actual = FittedSum(series, fit.fitted);
    EXPECT_NEAR(actual, row.value, 1e-8) << row.series << " " << row.quantity << " " << row.weight;
    ++compared;
  }
  EXPECT_EQ(compared, 40);
}

TEST(CrostonReference, EstimatedWeightsReachTheSumsOfSquaresOfR) {
  int compared = 0;
  for (const Reference& row : References()) {
    if (!row.quantity.ends_with("_sse")) continue;
    CrostonOptions options;
    if (row.quantity == "errors_sse") options.size_weight = options.interval_weight = 0.1;
    const auto summary = FitCroston(test::DataColumn(row.series + ".csv"), options).summary;
    tsffit::CrostonSubmodel actual = summary.errors;
    if (row.quantity == "sizes_sse") actual = summary.sizes;
    if (row.quantity == "intervals_sse") actual = summary.intervals;
    EXPECT_NEAR(actual.sse, row.value, 1e-9 * row.value) << row.series << " " << row.quantity;
    EXPECT_NEAR(actual.weight, row.weight, 1e-5) << row.series << " " << row.quantity;
    EXPECT_TRUE(actual.estimated);
    ++compared;
  }
  EXPECT_EQ(compared, 6);
}

}  // namespace
