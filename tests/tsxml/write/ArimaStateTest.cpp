// Whole ARIMA models: specification, state and estimation record.

#include <gtest/gtest.h>
#include <limits>

#include "support/ArimaModels.h"
#include "support/FailingAllocation.h"
#include "support/Golden.h"
#include "support/Models.h"
#include "support/XmlText.h"
#include "tsxml/write/ArimaState.h"

namespace {

using test::kMissing;

constexpr double kInf = std::numeric_limits<double>::infinity();

TSXDictionaryRefs Refs(const std::vector<std::string>& predictorIDs = {}) {
  return {"m", "", "y", predictorIDs};
}

template <typename State>
void ExpectEncodes(const std::string& golden, const State& state, const TSXDictionaryRefs& refs) {
  const tsx::ElementPtr e = tsx::MakeArimaModel(state, refs, test::SmallInfo());
  ASSERT_NE(e, nullptr);
  const std::string text = test::Indented(*e);
  test::ExpectGolden("tsxml/golden/" + golden, text);
  test::ExpectWellFormed(text);
}

// The state's element alone: what stands between the predictors' effects, or the model's start
// tag, and the estimation record.
template <typename State>
std::string StateText(const State& state, const std::vector<std::string>& predictorIDs = {}) {
  const tsx::ElementPtr e = tsx::MakeArimaModel(state, Refs(predictorIDs), EstimationInfo());
  if (!e) return "none";
  const std::string text = test::Compact(*e);
  const std::size_t begin = text.find("<ARIMA", 1);
  return text.substr(begin, text.find("<EstimationInfo") - begin);
}

ARMAForecastState::Common WithPredictors(unsigned count) {
  return test::CommonOf(test::SpecWithPredictors(count));
}

TEST(ArimaModelWithState, ThetaRecursionWithEverythingThatAModelCanHold) {
  ExpectEncodes("arima_mlsp.xml", test::FullMLSpState(), Refs({"price", "promotion"}));
}

TEST(ArimaModelWithState, KalmanFilterOfTheAirlineModel) {
  ExpectEncodes("arima_ml.xml", test::AirlineMLState(), Refs());
}

TEST(ArimaModelWithState, LeastSquaresWithARegressionOnOnePredictor) {
  ExpectEncodes("arima_cls.xml", test::RegressionCLSState(), Refs({"price"}));
}

TEST(ArimaModelWithState, EmptyEstimationRecordStandsLastAllTheSame) {
  const tsx::ElementPtr e =
      tsx::MakeArimaModel(ARMAMLForecastState(), Refs(), EstimationInfo(EstimationInfo::Fields{}));
  EXPECT_EQ(test::Compact(*e),
            "<ARIMAModel modelName=\"m\" variableID=\"y\">"
            "<ARIMAMLState periodDeficit=\"0\"><KalmanState/></ARIMAMLState>"
            "<EstimationInfo periodStartIndex=\"0\" periodLength=\"0\" degreesOfFreedom=\"0\"/>"
            "</ARIMAModel>");
}

TEST(ArimaModelWithState, PredictorCountThatDiffersFromTheNamesIsNoElementAtAll) {
  const auto common = WithPredictors(2);
  const EstimationInfo info = test::SmallInfo();
  for (const auto& refs : {Refs(), Refs({"a"}), Refs({"a", "b", "c"})}) {
    EXPECT_EQ(tsx::MakeArimaModel(ARMAMLSpForecastState({.common = common}), refs, info), nullptr);
    EXPECT_EQ(tsx::MakeArimaModel(ARMAMLForecastState({.common = common}), refs, info), nullptr);
    EXPECT_EQ(tsx::MakeArimaModel(ARMACLSForecastState({.common = common}), refs, info), nullptr);
  }
}

TEST(ArimaState, PeriodDeficitIsWrittenAlsoWhenItIsZero) {
  ARMAForecastState::Common common;
  common.period = {.start_index = 1, .length = 2, .period_deficit = 3};
  EXPECT_EQ(StateText(ARMACLSForecastState({.common = common})),
            "<ARIMACLSState periodDeficit=\"3\"><NoiseState/></ARIMACLSState>");
  common.period.period_deficit = 0;
  EXPECT_EQ(StateText(ARMACLSForecastState({.common = common})),
            "<ARIMACLSState periodDeficit=\"0\"><NoiseState/></ARIMACLSState>");
}

// The 64-bit count prints through the number format, like every number.
TEST(ArimaState, LargestPeriodDeficitIsRoundedToFifteenDigits) {
  ARMAForecastState::Common common;
  common.period.period_deficit = std::numeric_limits<std::uint64_t>::max();
  EXPECT_EQ(StateText(ARMACLSForecastState({.common = common})),
            "<ARIMACLSState periodDeficit=\"1.84467440737096e+19\"><NoiseState/></ARIMACLSState>");
}

TEST(PredictorState, ModelWithoutPredictorsHasNone) {
  ARMAForecastState::Common common;
  common.x_history = {{.predictor = {1}, .transfer_function = {2}}};
  EXPECT_EQ(StateText(ARMACLSForecastState({.common = common})).find("PredictorState"),
            std::string::npos);
}

TEST(PredictorState, TwoPredictorsWithoutHistoryHaveTwoEmptyOnes) {
  const ARMACLSForecastState state({.common = WithPredictors(2)});
  EXPECT_EQ(StateText(state, {"a", "b"}),
            "<ARIMACLSState periodDeficit=\"0\"><PredictorState/><PredictorState/><NoiseState/>"
            "</ARIMACLSState>");
}

TEST(PredictorState, StandInPredictorOrderAndOneWithoutHistoryIsEmpty) {
  ARMAForecastState::Common common = WithPredictors(3);
  common.x_history = {{.predictor = {1, 2}, .transfer_function = {3}}, {}};
  EXPECT_EQ(
      StateText(ARMACLSForecastState({.common = common}), {"a", "b", "c"}),
      "<ARIMACLSState periodDeficit=\"0\"><PredictorState><FinalPredictor>1 2</FinalPredictor>"
      "<FinalTransferFunc>3</FinalTransferFunc></PredictorState><PredictorState/>"
      "<PredictorState/><NoiseState/></ARIMACLSState>");
}

TEST(PredictorState, EachVectorIsLeftOutWhenItIsEmpty) {
  ARMAForecastState::Common common = WithPredictors(2);
  common.x_history = {{.predictor = {}, .transfer_function = {3}},
                      {.predictor = {1}, .transfer_function = {}}};
  EXPECT_EQ(StateText(ARMACLSForecastState({.common = common}), {"a", "b"}),
            "<ARIMACLSState periodDeficit=\"0\">"
            "<PredictorState><FinalTransferFunc>3</FinalTransferFunc></PredictorState>"
            "<PredictorState><FinalPredictor>1</FinalPredictor></PredictorState>"
            "<NoiseState/></ARIMACLSState>");
}

TEST(PredictorState, StandsInEveryKindOfState) {
  ARMAForecastState::Common common = WithPredictors(1);
  common.x_history = {{.predictor = {1}, .transfer_function = {2}}};
  const std::string expected =
      " periodDeficit=\"0\"><PredictorState><FinalPredictor>1</FinalPredictor>"
      "<FinalTransferFunc>2</FinalTransferFunc></PredictorState>";
  EXPECT_NE(StateText(ARMAMLSpForecastState({.common = common}), {"a"}).find(expected),
            std::string::npos);
  EXPECT_NE(StateText(ARMAMLForecastState({.common = common}), {"a"}).find(expected),
            std::string::npos);
}

std::string ZText(const std::valarray<double>& actual, const std::valarray<double>& predicted) {
  ARMAForecastState::Common common;
  common.actual_z = actual;
  common.predicted_z = predicted;
  return StateText(ARMAMLForecastState({.common = common}));
}

TEST(ZState, WithoutBothSeriesIsAbsent) {
  EXPECT_EQ(ZText({}, {}), "<ARIMAMLState periodDeficit=\"0\"><KalmanState/></ARIMAMLState>");
}

TEST(ZState, OneSeriesIsEnough) {
  EXPECT_EQ(ZText({1}, {}),
            "<ARIMAMLState periodDeficit=\"0\"><ZState><FinalZ>1</FinalZ></ZState><KalmanState/>"
            "</ARIMAMLState>");
  EXPECT_EQ(ZText({}, {2}),
            "<ARIMAMLState periodDeficit=\"0\"><ZState><FinalPredictedZ>2</FinalPredictedZ>"
            "</ZState><KalmanState/></ARIMAMLState>");
}

TEST(ZState, MissingAndInfiniteValuesHaveTheTextsOfNumberLists) {
  EXPECT_EQ(ZText({1.5, kMissing, kInf, -kInf}, {kMissing}),
            "<ARIMAMLState periodDeficit=\"0\"><ZState><FinalZ>1.5 NaN INF -INF</FinalZ>"
            "<FinalPredictedZ>NaN</FinalPredictedZ></ZState><KalmanState/></ARIMAMLState>");
}

TEST(NoiseState, OfALeastSquaresStateIsThereAlsoWhenEmpty) {
  EXPECT_EQ(StateText(ARMACLSForecastState()),
            "<ARIMACLSState periodDeficit=\"0\"><NoiseState/></ARIMACLSState>");
}

TEST(NoiseState, OfAThetaRecursionIsThereAlsoWhenEmpty) {
  EXPECT_EQ(StateText(ARMAMLSpForecastState()),
            "<ARIMAMLSpState periodDeficit=\"0\"><NoiseState/>"
            "<ThetaRecursionState finalIterationNumber=\"0\"><FinalThetas/><FinalNu/>"
            "</ThetaRecursionState></ARIMAMLSpState>");
}

TEST(NoiseState, EachSeriesIsLeftOutWhenItIsEmpty) {
  EXPECT_EQ(StateText(ARMACLSForecastState({.actual_n = {1, kMissing}})),
            "<ARIMACLSState periodDeficit=\"0\"><NoiseState><FinalNoise>1 NaN</FinalNoise>"
            "</NoiseState></ARIMACLSState>");
  EXPECT_EQ(StateText(ARMACLSForecastState({.predicted_n = {2}})),
            "<ARIMACLSState periodDeficit=\"0\"><NoiseState>"
            "<FinalPredictedNoise>2</FinalPredictedNoise></NoiseState></ARIMACLSState>");
}

std::string ThetaText(const ARMAMLSpForecastState::Fields& fields) {
  const std::string text = StateText(ARMAMLSpForecastState(fields));
  const std::size_t begin = text.find("<ThetaRecursionState");
  return text.substr(begin, text.find("</ARIMAMLSpState>") - begin);
}

TEST(ThetaRecursionState, EmptyNuIsAnEmptyElement) {
  EXPECT_EQ(ThetaText({.final_iteration_count = 5, .final_thetas = {{0.5}}}),
            "<ThetaRecursionState finalIterationNumber=\"5\"><FinalThetas>"
            "<ThetaVec>0.5</ThetaVec></FinalThetas><FinalNu/></ThetaRecursionState>");
}

TEST(ThetaRecursionState, EmptyThetaIsAnEmptyElementInItsPlace) {
  EXPECT_EQ(ThetaText({.final_thetas = {{0.5, kMissing}, {}}, .final_nu = {1, kInf}}),
            "<ThetaRecursionState finalIterationNumber=\"0\"><FinalThetas>"
            "<ThetaVec>0.5 NaN</ThetaVec><ThetaVec/></FinalThetas><FinalNu>1 INF</FinalNu>"
            "</ThetaRecursionState>");
}

TEST(KalmanState, WithoutAStateVectorHasOmegaOnly) {
  EXPECT_EQ(StateText(ARMAMLForecastState({.final_omega = DSymMat(2, {1, 0.5, 2})})),
            "<ARIMAMLState periodDeficit=\"0\"><KalmanState><FinalOmega>1 0.5 2</FinalOmega>"
            "</KalmanState></ARIMAMLState>");
}

TEST(KalmanState, WithoutOmegaHasTheStateVectorOnly) {
  EXPECT_EQ(StateText(ARMAMLForecastState({.final_state = {3, kMissing}})),
            "<ARIMAMLState periodDeficit=\"0\"><KalmanState>"
            "<FinalStateVector>3 NaN</FinalStateVector></KalmanState></ARIMAMLState>");
}

// The order and the packing of the matrix are the core's: whatever it hands out is written.
TEST(KalmanState, OmegaIsWrittenInTheOrderOfItsArray) {
  EXPECT_EQ(StateText(ARMAMLForecastState({.final_omega = DSymMat(3, {6, 5, 4, 3, 2, 1})})),
            "<ARIMAMLState periodDeficit=\"0\"><KalmanState>"
            "<FinalOmega>6 5 4 3 2 1</FinalOmega></KalmanState></ARIMAMLState>");
}

template <typename State>
void ExpectNothingIsLeftBehind(const State& state, const std::vector<std::string>& predictorIDs) {
  const TSXDictionaryRefs refs("a model name beyond any small buffer", "described at length", "y",
                               predictorIDs);
  const EstimationInfo info = test::SmallInfo();
  test::WithEveryAllocationFailing(
      [&] { const tsx::ElementPtr e = tsx::MakeArimaModel(state, refs, info); });
}

TEST(ArimaModelWithState, LeavesNothingBehindWhereverMemoryRunsOut) {
  ExpectNothingIsLeftBehind(test::FullMLSpState(), {"a predictor beyond any small buffer", "x"});
  ExpectNothingIsLeftBehind(test::AirlineMLState(), {});
  ExpectNothingIsLeftBehind(test::RegressionCLSState(), {"x"});
}

}  // namespace
