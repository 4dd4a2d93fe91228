// One model as a "TimeSeriesModel" of PMML.

#include <gtest/gtest.h>
#include <memory>

#include "pmml/write/TimeSeriesModel.h"
#include "support/FailingAllocation.h"
#include "support/Golden.h"
#include "support/Models.h"
#include "support/XmlText.h"

namespace {

using test::kMissing;
using tsx::pmml::TimeField;
using tsx::pmml::TSXPMMLModelRecord;

EstimationInfo Info() {
  EstimationInfo::Fields fields;
  fields.span = {.start = 2, .length = 24};
  fields.degrees_of_freedom = 21;
  fields.error_variance = 6.25;
  fields.statistics[BFSharedConst::kRootMeanSqrErr] = 2.5;
  return EstimationInfo(fields);
}

std::string Encode(const ESForecastState::Fields& state, const std::valarray<double>& history = {},
                   const TimeField& time = {}) {
  const TSXDictionaryRefs refs("m", "d", "y");
  const TSFModel model(new TSFModelImp(
      {.state = std::make_unique<ESForecastState>(state), .info = Info(), .history = history}));
  TSXPMMLModelRecord record;
  record.Fill(model, refs, history);
  return test::Indented(*tsx::pmml::MakeTimeSeriesModel(record, refs, time, history));
}

void ExpectEncodes(const std::string& golden, const std::string& text) {
  test::ExpectGolden("pmml/golden/" + golden, text);
  test::ExpectWellFormed(text);
}

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

ESModelSpec Spec(int kind) { return ESModelSpec(ESModelSpec::ForKind(kind, 4)); }

ESForecastState::Fields Winters(int kind) {
  return {.spec = Spec(kind),
          .estimates = {0.5, 0.125, 0.75},
          .smoothed = {.level = 100, .trend = 2, .phase = 3, .season = {0.5, 1.5, 0.75, 1.25}}};
}

ESForecastState::Fields Brown(double alpha) {
  return {.spec = Spec(ESModelSpec::kBrown),
          .estimates = {alpha},
          .smoothed = {.level = 7, .trend = -1}};
}

TEST(TimeSeriesModel, SimpleHasALevelAlone) {
  ExpectEncodes("simple.xml", Encode({.spec = Spec(ESModelSpec::kSimple),
                                      .estimates = {0.25},
                                      .smoothed = {.level = 10, .trend = kMissing}}));
}

TEST(TimeSeriesModel, HoltHasLevelAndAdditiveTrend) {
  ExpectEncodes("holt.xml", Encode({.spec = Spec(ESModelSpec::kHolt),
                                    .estimates = {0.5, 0.125},
                                    .smoothed = {.level = 20, .trend = 0.5}}));
}

// 7 + -1 / 0.25 - -1 = 4.
TEST(TimeSeriesModel, BrownHasItsTrendAfterTheWalkWithInterceptAndSlope) {
  ExpectEncodes("brown.xml", Encode(Brown(0.25)));
}

// From the left: 1 + 1e16 is 1e16, for want of digits, and less 1e16 that is 0.
TEST(TimeSeriesModel, InterceptOfBrownIsComputedFromLeftToRight) {
  ESForecastState::Fields state = Brown(1);
  state.smoothed.level = 1;
  state.smoothed.trend = 1e16;
  EXPECT_TRUE(Contains(Encode(state), "type=\"real\">0 1e+16</Array>"));
}

TEST(TimeSeriesModel, BrownLeavesTheArrayOutWhenItsWeightIsTooSmall) {
  EXPECT_FALSE(Contains(Encode(Brown(1e-7)), "<Array"));
  EXPECT_TRUE(Contains(Encode(Brown(1e-7)), "trend=\"polynomial_exponential\"/>"));
  EXPECT_TRUE(Contains(Encode(Brown(1.0000001e-7)), "<Array"));
}

TEST(TimeSeriesModel, DampedTrendCarriesPhi) {
  ExpectEncodes("damped_trend.xml", Encode({.spec = Spec(ESModelSpec::kDampedTrend),
                                            .estimates = {0.5, 0.25, 0.9375},
                                            .smoothed = {.level = 7, .trend = 1e-5}}));
}

TEST(TimeSeriesModel, PhiIsZeroWhereTheEstimatesEndBeforeIt) {
  EXPECT_TRUE(Contains(Encode({.spec = Spec(ESModelSpec::kDampedTrend),
                               .estimates = {0.5, 0.25},
                               .smoothed = {.level = 7, .trend = 1}}),
                       "phi=\"0\""));
}

TEST(TimeSeriesModel, SimpleSeasonalHasNoTrend) {
  ExpectEncodes(
      "simple_seasonal.xml",
      Encode({.spec = Spec(ESModelSpec::kSimpleSeasonal),
              .estimates = {0.5, 0.25},
              .smoothed = {.level = 50, .trend = 9, .phase = 1, .season = {-3, 1, 4, -2}}}));
}

TEST(TimeSeriesModel, AdditiveWintersHasAnAdditiveSeason) {
  ExpectEncodes("winters_additive.xml", Encode(Winters(ESModelSpec::kAdditiveWinters)));
}

TEST(TimeSeriesModel, MultiplicativeWintersWithHistoryAndTimeField) {
  ExpectEncodes("winters_multiplicative.xml",
                Encode(Winters(ESModelSpec::kMultiplicativeWinters), {98, 99.5, kMissing},
                       {.name = "Quarter", .kind = "date"}));
}

TEST(TimeSeriesModel, EmptyHistoryHasNoTimeSeries) {
  EXPECT_FALSE(Contains(Encode(Brown(0.5)), "<TimeSeries\n"));
}

TEST(TimeSeriesModel, OneValueOfHistoryHasIndexOne) {
  EXPECT_TRUE(Contains(Encode(Brown(0.5), {12.5}),
                       "\n\t<TimeSeries\n\t\tusage=\"logical\"\n\t\tstartTime=\"1\"\n"
                       "\t\tendTime=\"1\"\n\t\tinterpolationMethod=\"none\">\n"
                       "\t\t<TimeAnchor/>\n\t\t<TimeValue\n\t\t\tindex=\"1\"\n"
                       "\t\t\tvalue=\"12.5\"/>\n\t</TimeSeries>"));
}

TEST(TimeSeriesModel, TimeFieldCountsOnlyWhenNameAndKindAreBothThere) {
  EXPECT_TRUE(Contains(Encode(Brown(0.5), {}, {.name = "Hour", .kind = ""}), "name=\"Month\""));
  EXPECT_TRUE(Contains(Encode(Brown(0.5), {}, {.name = "", .kind = "time"}), "name=\"Month\""));
  EXPECT_TRUE(Contains(Encode(Brown(0.5), {}, {.name = "Hour", .kind = "time"}), "name=\"Hour\""));
}

TEST(TimeSeriesModel, OneSeasonalValueMissingLeavesPhaseAndArrayOut) {
  ESForecastState::Fields state = Winters(ESModelSpec::kMultiplicativeWinters);
  state.smoothed.season[1] = kMissing;
  const std::string text = Encode(state);
  EXPECT_TRUE(Contains(text,
                       "\t\t<Seasonality_ExpoSmooth\n\t\t\tdelta=\"0.75\"\n\t\t\tperiod=\"4\"\n"
                       "\t\t\tunit=\"month\"\n\t\t\ttype=\"multiplicative\"/>\n"));
  EXPECT_TRUE(Contains(text, "smoothedValue=\"100\""));
  EXPECT_TRUE(Contains(text, "smoothedValue=\"2\""));
}

TEST(TimeSeriesModel, MissingLevelSuppressesEverySmoothedValueThePhaseAndTheArray) {
  ESForecastState::Fields state = Winters(ESModelSpec::kAdditiveWinters);
  state.smoothed.level = kMissing;
  const std::string text = Encode(state);
  EXPECT_FALSE(Contains(text, "smoothedValue"));
  EXPECT_FALSE(Contains(text, "phase"));
  EXPECT_FALSE(Contains(text, "<Array"));
  EXPECT_TRUE(Contains(text, "gamma=\"0.125\""));
  EXPECT_TRUE(Contains(text, "trend=\"additive\""));
}

TEST(TimeSeriesModel, MissingTrendSuppressesTheSeasonTooButNotTheLevel) {
  ESForecastState::Fields state = Winters(ESModelSpec::kAdditiveWinters);
  state.smoothed.trend = kMissing;
  const std::string text = Encode(state);
  EXPECT_TRUE(Contains(text, "alpha=\"0.5\"\n\t\t\tsmoothedValue=\"100\""));
  EXPECT_FALSE(Contains(text, "phase"));
  EXPECT_FALSE(Contains(text, "<Array"));
}

TEST(TimeSeriesModel, NoSeasonalValuesMakeAPeriodOfOne) {
  ESForecastState::Fields state = Winters(ESModelSpec::kAdditiveWinters);
  state.smoothed.season = std::valarray<double>();
  const std::string text = Encode(state);
  EXPECT_TRUE(Contains(text, "period=\"1\""));
  EXPECT_FALSE(Contains(text, "phase"));
}

TEST(TimeSeriesModel, BrownWithMissingTrendHasNoTrendElement) {
  ESForecastState::Fields state = Brown(0.5);
  state.smoothed.trend = kMissing;
  EXPECT_FALSE(Contains(Encode(state), "Trend_ExpoSmooth"));
}

TEST(TimeSeriesModel, CodeThatIsNoKindHasNoParametersAndItsTrendAfterTheWalk) {
  EXPECT_TRUE(Contains(Encode({.spec = Spec(7), .smoothed = {.level = 1, .trend = 2}}),
                       "\t<ExponentialSmoothing\n\t\tRMSE=\"2.5\">\n\t\t<Trend_ExpoSmooth\n"
                       "\t\t\tsmoothedValue=\"2\"/>\n\t</ExponentialSmoothing>\n"));
}

TEST(TimeSeriesModel, EmptyModelNameIsLeftOut) {
  const TSXDictionaryRefs refs("", "", "y");
  TSXPMMLModelRecord record;
  record.Fill(test::SimpleModel(), refs, {});
  const std::string text = test::Indented(*tsx::pmml::MakeTimeSeriesModel(record, refs, {}, {}));
  EXPECT_TRUE(Contains(text, "\n<TimeSeriesModel\n\tfunctionName=\"timeSeries\""));
}

TEST(TimeSeriesModel, LeavesNothingBehindWhereverMemoryRunsOut) {
  const TSXDictionaryRefs refs("a model name beyond any small buffer", "d", "y");
  const std::valarray<double> history = {1, 2, 3};
  const TSFModel model(new TSFModelImp(
      {.state = std::make_unique<ESForecastState>(Winters(ESModelSpec::kAdditiveWinters)),
       .info = Info(),
       .history = history}));
  test::WithEveryAllocationFailing([&] {
    TSXPMMLModelRecord record;
    record.Fill(model, refs, history);
    const tsx::ElementPtr e = tsx::pmml::MakeTimeSeriesModel(record, refs, {}, history);
  });
}

}  // namespace
