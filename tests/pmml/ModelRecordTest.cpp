#include <gtest/gtest.h>
#include <memory>

#include "pmml/TSXPMMLModelRecord.h"
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

TEST(PmmlModelRecord, EmptyModelChangesTheNamesAlone) {
  TSXPMMLModelRecord record;
  record.Fill(Holt(), Refs(), {});
  record.Fill(TSFModel(), TSXDictionaryRefs("other", "text", "z"), {});
  EXPECT_EQ(record.model_name, "other");
  EXPECT_EQ(record.model_descriptor, "text");
  EXPECT_EQ(record.dependent_var_id, "z");
  EXPECT_EQ(record.parameter_types, (Types{kLevel, kTrend}));
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

}  // namespace
