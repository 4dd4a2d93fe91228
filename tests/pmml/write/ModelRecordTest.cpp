#include <array>
#include <gtest/gtest.h>
#include <memory>

#include "pmml/write/TSXPMMLModelRecord.h"
#include "support/Models.h"

namespace {

using tsx::pmml::TSXPMMLModelRecord;

TSXDictionaryRefs Refs() { return {"m", "d", "y"}; }

TSFModel Holt() { return test::ModelOf(std::make_unique<ESForecastState>(test::HoltState())); }

std::vector<TSFESModelProp::TSFESParmType> ParametersOf(int kind) {
  TSXPMMLModelRecord record;
  record.Fill(test::ModelOf(std::make_unique<ESForecastState>(
                  ESForecastState::Fields{.spec = ESModelSpec(ESModelSpec::ForKind(kind, 4))})),
              Refs(), {});
  return record.parameter_types;
}

using Types = std::vector<TSFESModelProp::TSFESParmType>;
constexpr auto kLevel = TSFESModelProp::kLevel;
constexpr auto kTrend = TSFESModelProp::kTrend;
constexpr auto kSeason = TSFESModelProp::kSeason;
constexpr auto kDamping = TSFESModelProp::kDamping;

TEST(PmmlModelRecord, ParametersStandInTheOrderOfTheirKind) {
  EXPECT_EQ(ParametersOf(ESModelSpec::kAdditiveWinters), (Types{kLevel, kTrend, kSeason}));
  EXPECT_EQ(ParametersOf(ESModelSpec::kBrown), (Types{kLevel}));
  EXPECT_EQ(ParametersOf(ESModelSpec::kDampedTrend), (Types{kLevel, kTrend, kDamping}));
  EXPECT_EQ(ParametersOf(ESModelSpec::kHolt), (Types{kLevel, kTrend}));
  EXPECT_EQ(ParametersOf(ESModelSpec::kMultiplicativeWinters), (Types{kLevel, kTrend, kSeason}));
  EXPECT_EQ(ParametersOf(ESModelSpec::kSimpleSeasonal), (Types{kLevel, kSeason}));
  EXPECT_EQ(ParametersOf(ESModelSpec::kSimple), (Types{kLevel}));
}

TEST(PmmlModelRecord, CodeThatIsNoKindHasNoParameters) {
  EXPECT_TRUE(ParametersOf(7).empty());
  EXPECT_TRUE(ParametersOf(-1).empty());
}

// The p value of t = 5 with 23 degrees of freedom is from integrating the density by Simpson's
// rule.
TEST(PmmlModelRecord, ParameterKeepsEstimateErrorTAndP) {
  TSXPMMLModelRecord record;
  record.Fill(Holt(), Refs(), {});
  ASSERT_EQ(record.parameter_values.size(), 2U);
  EXPECT_EQ(record.parameter_values[0][0], 0.5);
  EXPECT_EQ(record.parameter_values[0][1], 0.1);
  EXPECT_EQ(record.parameter_values[0][2], 5);
  EXPECT_NEAR(record.parameter_values[0][3], 4.6643331542e-05, 1e-14);
}

TEST(PmmlModelRecord, MissingStandardErrorLeavesTAndPMissing) {
  TSXPMMLModelRecord record;
  record.Fill(Holt(), Refs(), {});
  EXPECT_EQ(record.parameter_values[1],
            (std::vector<double>{0.125, test::kMissing, test::kMissing, test::kMissing}));
}

TEST(PmmlModelRecord, StandardErrorOfZeroLeavesTAndPMissing) {
  ESForecastState::Fields state = {
      .spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1)),
      .estimates = {0.5},
      .std_errors = {0}};
  TSXPMMLModelRecord record;
  record.Fill(test::ModelOf(std::make_unique<ESForecastState>(state)), Refs(), {});
  EXPECT_EQ(record.parameter_values[0],
            (std::vector<double>{0.5, 0, test::kMissing, test::kMissing}));
}

// A model of Holt's kind with a statistic of its own for every code.
TSFModel ModelWithStatistics() {
  EstimationInfo::Fields info;
  info.degrees_of_freedom = 23;
  for (int code = 0; code < BFSharedConst::kGOFStatCount; ++code) {
    info.statistics[static_cast<BFSharedConst::GOFStatType>(code)] = code + 0.5;
  }
  info.ljung_box = {.statistic = 17.25, .k = 18, .degrees_of_freedom = 16, .p_value = 0.375};
  return TSFModel(new TSFModelImp({.state = std::make_unique<ESForecastState>(test::HoltState()),
                                   .info = EstimationInfo(info)}));
}

TEST(PmmlModelRecord, StatisticsStandInTheirOrder) {
  TSXPMMLModelRecord record;
  record.Fill(ModelWithStatistics(), Refs(), {});
  // The normalised BIC is the eighth; behind the log-likelihood the codes leave a space.
  EXPECT_EQ(record.statistics,
            (std::array{0.5, 1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5, 15.5, 13.5, 14.5}));
  EXPECT_EQ(record.statistics[TSXPMMLModelRecord::kRMSE], 1.5);
}

TEST(PmmlModelRecord, LjungBoxKeepsItsDegreesOfFreedomAsADouble) {
  TSXPMMLModelRecord record;
  record.Fill(ModelWithStatistics(), Refs(), {});
  EXPECT_EQ(record.ljung_box.statistic, 17.25);
  EXPECT_EQ(record.ljung_box.degrees_of_freedom, 16);
  EXPECT_EQ(record.ljung_box.significance, 0.375);
}

TEST(PmmlModelRecord, EmptyModelChangesTheNamesAlone) {
  TSXPMMLModelRecord record;
  record.history = {0, 0};
  record.Fill(ModelWithStatistics(), Refs(), {1, 2});
  record.Fill(TSFModel(), TSXDictionaryRefs("other", "text", "z"), {3, 4});
  EXPECT_EQ(record.model_name, "other");
  EXPECT_EQ(record.model_descriptor, "text");
  EXPECT_EQ(record.dependent_var_id, "z");
  EXPECT_EQ(record.parameter_types, (Types{kLevel, kTrend}));
  EXPECT_EQ(record.parameter_values.size(), 2U);
  EXPECT_EQ(record.statistics[TSXPMMLModelRecord::kRMSE], 1.5);
  EXPECT_EQ(record.ljung_box.statistic, 17.25);
  EXPECT_EQ(record.history[0], 1);
  EXPECT_FALSE(record.model.IsEmpty());
}

TEST(PmmlModelRecord, HistoryBufferIsNotResized) {
  TSXPMMLModelRecord record;
  record.history = {0, 0};
  record.Fill(Holt(), Refs(), {1, 2, 3});
  ASSERT_EQ(record.history.size(), 2U);
  EXPECT_EQ(record.history[0], 1);
  EXPECT_EQ(record.history[1], 2);
}

TEST(PmmlModelRecord, HistoryShorterThanTheBufferLeavesItsEnd) {
  TSXPMMLModelRecord record;
  record.history = {7, 8, 9};
  record.Fill(Holt(), Refs(), {1, 2});
  ASSERT_EQ(record.history.size(), 3U);
  EXPECT_EQ(record.history[1], 2);
  EXPECT_EQ(record.history[2], 9);
}

}  // namespace
