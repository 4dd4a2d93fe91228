// The specification and the estimates of an ARIMA model. Estimates tell their position: p + 0.5,
// standard error p + 0.25.

#include <gtest/gtest.h>

#include "support/ArimaModels.h"
#include "support/FailingAllocation.h"
#include "support/Models.h"
#include "support/XmlText.h"
#include "tsxml/write/ArimaModel.h"
#include "tsxml/write/OutlierEffect.h"

namespace {

using test::CountedErrors;
using test::CountedValues;
using test::kMissing;

TSXDictionaryRefs Refs(const std::vector<std::string>& predictorIDs = {}) {
  return {"m", "", "y", predictorIDs};
}

// The element without its outermost tags; "none" when there is no element.
std::string Content(const AMModelSpec& spec, const std::valarray<double>& values = {},
                    const std::valarray<double>& stdErrors = {},
                    const std::vector<std::string>& predictorIDs = {}) {
  const tsx::ElementPtr e = tsx::MakeArimaModel(spec, Refs(predictorIDs), values, stdErrors);
  if (!e) return "none";
  const std::string text = test::Compact(*e);
  const std::string start = R"(<ARIMAModel modelName="m" variableID="y">)";
  const std::string end = "</ARIMAModel>";
  if (text == R"(<ARIMAModel modelName="m" variableID="y"/>)") return "";
  EXPECT_EQ(text.substr(0, start.size()), start);
  EXPECT_EQ(text.substr(text.size() - end.size()), end);
  return text.substr(start.size(), text.size() - start.size() - end.size());
}

std::string Content(const AMModelSpec::Fields& fields, const std::valarray<double>& values = {},
                    const std::valarray<double>& stdErrors = {},
                    const std::vector<std::string>& predictorIDs = {}) {
  return Content(AMModelSpec(fields), values, stdErrors, predictorIDs);
}

std::string EncodedWhole(const AMModelSpec& spec) {
  return test::Compact(*tsx::MakeArimaModel(spec, Refs(), {}, {}));
}

std::string Parameter(const std::string& text) {
  return "<EstimatedParameter>" + text + "</EstimatedParameter>";
}

std::string LagTerm(const std::string& lag, const std::string& parameter) {
  return "<LagTerm lag=\"" + lag + "\">" + Parameter(parameter) + "</LagTerm>";
}

// A specification that answers otherwise for parameters that are not estimated, and for a season
// that is declared and not in use; as another core's may.
class TwofoldSpec : public AMModelSpec {
 public:
  explicit TwofoldSpec(Fields fields) : AMModelSpec(std::move(fields)) {}
  unsigned GetParameterCount(bool all) const override { return all ? 2 : 1; }
  unsigned GetSeasonLength(bool effective) const override { return effective ? 1 : 12; }
};

TEST(ArimaModel, IdentityComesFirstAndTheSeasonLengthAfterIt) {
  TSXDictionaryRefs refs("airline", "monthly", "y");
  refs.SetDateSpecID(3);
  const tsx::ElementPtr e = tsx::MakeArimaModel(AMModelSpec({.season_length = 12}), refs, {}, {});
  EXPECT_EQ(test::Compact(*e),
            "<ARIMAModel modelName=\"airline\" modelDescriptor=\"monthly\" variableID=\"y\""
            " dateSpecID=\"3\" seasonLength=\"12\"/>");
}

TEST(ArimaModel, SeasonLengthOfOneIsNotWritten) {
  EXPECT_EQ(EncodedWhole(AMModelSpec({.season_length = 1})),
            "<ARIMAModel modelName=\"m\" variableID=\"y\"/>");
}

TEST(ArimaModel, SeasonLengthOfTwoIsWritten) {
  EXPECT_EQ(EncodedWhole(AMModelSpec({.season_length = 2})),
            "<ARIMAModel modelName=\"m\" variableID=\"y\" seasonLength=\"2\"/>");
}

TEST(ArimaModel, DeclaredSeasonThatIsNotInUseIsNotWritten) {
  EXPECT_EQ(EncodedWhole(TwofoldSpec({})), "<ARIMAModel modelName=\"m\" variableID=\"y\"/>");
}

TEST(ArimaModel, DependentSeriesLeftAsItIsHasNoTransformation) {
  EXPECT_EQ(Content(AMModelSpec::Fields{}), "");
}

TEST(ArimaModel, DependentSeriesHasFunctionAndOrdersAndNoDelay) {
  EXPECT_EQ(Content({.y_transform = TSTransformation(TSTransformation::kSquareRoot),
                     .non_seasonal_diff = 1,
                     .seasonal_diff = 2}),
            "<Transformation function=\"squareRoot\" nonSeasonalDiff=\"1\" seasonalDiff=\"2\"/>");
}

TEST(ArimaModel, DifferencingAloneIsATransformation) {
  EXPECT_EQ(Content({.seasonal_diff = 1}), "<Transformation seasonalDiff=\"1\"/>");
}

TEST(ArimaConstant, HoldsItsEstimateAndStandardError) {
  EXPECT_EQ(Content({.has_constant = true}, CountedValues(1), CountedErrors(1)),
            "<ConstantTerm>" + Parameter("0.5 0.25") + "</ConstantTerm>");
}

TEST(ArimaConstant, AbsentOneWritesNothingThoughThereAreEstimates) {
  EXPECT_EQ(Content({.has_constant = false}, CountedValues(1), CountedErrors(1)), "");
}

TEST(ArimaConstant, MissingValueLeavesItEmpty) {
  EXPECT_EQ(Content({.has_constant = true}, {kMissing}, {0.25}), "<ConstantTerm/>");
}

TEST(ArimaConstant, MissingStandardErrorIsLeftOut) {
  EXPECT_EQ(Content({.has_constant = true}, {0.5}, {kMissing}),
            "<ConstantTerm>" + Parameter("0.5") + "</ConstantTerm>");
}

// Three parameters: the constant is in reach of two values, and is left out all the same.
TEST(ArimaConstant, NeedsValuesForTheWholeModel) {
  const AMModelSpec::Fields fields{.has_constant = true, .ar = {{1}, {}}, .ma = {{1}, {}}};
  EXPECT_EQ(Content(fields, CountedValues(2)),
            "<ConstantTerm/>"
            "<Autoregression><NonSeasonalFactor>" +
                LagTerm("1", "1.5") +
                "</NonSeasonalFactor></Autoregression>"
                "<MovingAverage><NonSeasonalFactor><LagTerm lag=\"1\"/></NonSeasonalFactor>"
                "</MovingAverage>");
}

TEST(ArimaConstant, NeedsStandardErrorsForTheWholeModel) {
  const AMModelSpec::Fields fields{.has_constant = true, .ar = {{1}, {}}};
  EXPECT_EQ(Content(fields, CountedValues(2), CountedErrors(1)),
            "<ConstantTerm>" + Parameter("0.5") +
                "</ConstantTerm>"
                "<Autoregression><NonSeasonalFactor>" +
                LagTerm("1", "1.5") + "</NonSeasonalFactor></Autoregression>");
}

TEST(ArimaConstant, MoreValuesThanParametersAreNoObstacle) {
  EXPECT_EQ(Content({.has_constant = true}, CountedValues(5), CountedErrors(4)),
            "<ConstantTerm>" + Parameter("0.5 0.25") + "</ConstantTerm>");
}

TEST(ArimaConstant, FixedParametersCountAmongThoseOfTheModel) {
  EXPECT_EQ(Content(TwofoldSpec({.has_constant = true}), CountedValues(1)), "<ConstantTerm/>");
}

TEST(ArimaModel, WithoutARAndMATermsHasNeitherElement) {
  const std::string text = Content({.has_constant = true}, CountedValues(1));
  EXPECT_EQ(text.find("Autoregression"), std::string::npos);
  EXPECT_EQ(text.find("MovingAverage"), std::string::npos);
}

TEST(ArimaModel, SeasonalARLagAloneHasOnlyASeasonalFactor) {
  EXPECT_EQ(Content({.ar = {.non_seasonal = {}, .seasonal = {12}}}, CountedValues(1)),
            "<Autoregression><SeasonalFactor>" + LagTerm("12", "0.5") +
                "</SeasonalFactor></Autoregression>");
}

TEST(ArimaModel, MovingAverageFollowsTheAutoregressionAndItsPositions) {
  EXPECT_EQ(Content({.ar = {{1}, {4}}, .ma = {{2, 3}, {8}}}, CountedValues(5), CountedErrors(5)),
            "<Autoregression><NonSeasonalFactor>" + LagTerm("1", "0.5 0.25") +
                "</NonSeasonalFactor><SeasonalFactor>" + LagTerm("4", "1.5 1.25") +
                "</SeasonalFactor></Autoregression>"
                "<MovingAverage><NonSeasonalFactor>" +
                LagTerm("2", "2.5 2.25") + LagTerm("3", "3.5 3.25") +
                "</NonSeasonalFactor><SeasonalFactor>" + LagTerm("8", "4.5 4.25") +
                "</SeasonalFactor></MovingAverage>");
}

// Short vectors are judged polynomial by polynomial.
TEST(ArimaModel, ShortEstimatesKeepThePolynomialsTheyReach) {
  EXPECT_EQ(Content({.ar = {{1}, {4}}, .ma = {{1, 2}, {}}}, CountedValues(3), CountedErrors(1)),
            "<Autoregression><NonSeasonalFactor>" + LagTerm("1", "0.5") +
                "</NonSeasonalFactor><SeasonalFactor>" + LagTerm("4", "1.5") +
                "</SeasonalFactor></Autoregression>"
                "<MovingAverage><NonSeasonalFactor><LagTerm lag=\"1\"/><LagTerm lag=\"2\"/>"
                "</NonSeasonalFactor></MovingAverage>");
}

TEST(PredictorEffect, EmptyNumeratorStillHasItsZeroLag) {
  EXPECT_EQ(Content(test::SpecWithPredictors(1), CountedValues(1), CountedErrors(1), {"x"}),
            "<PredictorEffect variableID=\"x\"><Numerator><NonSeasonalFactor><ZeroLagTerm>" +
                Parameter("0.5 0.25") +
                "</ZeroLagTerm></NonSeasonalFactor></Numerator></PredictorEffect>");
}

TEST(PredictorEffect, TransformationHasTheDelayToo) {
  AMModelSpec::Fields fields;
  fields.predictors = {{.transform = TSTransformation(TSTransformation::kLogarithm),
                        .non_seasonal_diff = 1,
                        .seasonal_diff = 2,
                        .delay = 3}};
  EXPECT_EQ(Content(fields, {}, {}, {"x"}),
            "<PredictorEffect variableID=\"x\">"
            "<Transformation function=\"logarithm\" nonSeasonalDiff=\"1\" seasonalDiff=\"2\""
            " delay=\"3\"/>"
            "<Numerator><NonSeasonalFactor><ZeroLagTerm/></NonSeasonalFactor></Numerator>"
            "</PredictorEffect>");
}

TEST(PredictorEffect, DelayAloneIsATransformation) {
  AMModelSpec::Fields fields;
  fields.predictors = {{.delay = 2}};
  EXPECT_EQ(Content(fields, {}, {}, {"x"}),
            "<PredictorEffect variableID=\"x\"><Transformation delay=\"2\"/>"
            "<Numerator><NonSeasonalFactor><ZeroLagTerm/></NonSeasonalFactor></Numerator>"
            "</PredictorEffect>");
}

TEST(PredictorEffect, DenominatorHasNoZeroLagAndFollowsTheNumerator) {
  AMModelSpec::Fields fields;
  fields.predictors = {{.numerator = {{1}, {4}}, .denominator = {{2}, {8}}}};
  EXPECT_EQ(Content(fields, CountedValues(5), {}, {"x"}),
            "<PredictorEffect variableID=\"x\">"
            "<Numerator><NonSeasonalFactor><ZeroLagTerm>" +
                Parameter("0.5") + "</ZeroLagTerm>" + LagTerm("1", "1.5") +
                "</NonSeasonalFactor><SeasonalFactor>" + LagTerm("4", "2.5") +
                "</SeasonalFactor></Numerator>"
                "<Denominator><NonSeasonalFactor>" +
                LagTerm("2", "3.5") + "</NonSeasonalFactor><SeasonalFactor>" + LagTerm("8", "4.5") +
                "</SeasonalFactor></Denominator></PredictorEffect>");
}

TEST(PredictorEffect, SeasonalNumeratorAloneHasBothFactors) {
  AMModelSpec::Fields fields;
  fields.predictors = {{.numerator = {{}, {12}}}};
  EXPECT_EQ(Content(fields, CountedValues(2), {}, {"x"}),
            "<PredictorEffect variableID=\"x\">"
            "<Numerator><NonSeasonalFactor><ZeroLagTerm>" +
                Parameter("0.5") + "</ZeroLagTerm></NonSeasonalFactor><SeasonalFactor>" +
                LagTerm("12", "1.5") + "</SeasonalFactor></Numerator></PredictorEffect>");
}

TEST(PredictorEffect, EachHasItsVariableAndItsPositionsInPredictorOrder) {
  AMModelSpec::Fields fields;
  fields.predictors = {{.denominator = {{1}, {}}}, {}};
  EXPECT_EQ(
      Content(fields, CountedValues(3), {}, {"price", "promotion"}),
      "<PredictorEffect variableID=\"price\"><Numerator><NonSeasonalFactor><ZeroLagTerm>" +
          Parameter("0.5") +
          "</ZeroLagTerm></NonSeasonalFactor></Numerator><Denominator><NonSeasonalFactor>" +
          LagTerm("1", "1.5") +
          "</NonSeasonalFactor></Denominator></PredictorEffect>"
          "<PredictorEffect variableID=\"promotion\"><Numerator><NonSeasonalFactor><ZeroLagTerm>" +
          Parameter("2.5") + "</ZeroLagTerm></NonSeasonalFactor></Numerator></PredictorEffect>");
}

TEST(PredictorEffect, TwoIDsForThreePredictorsIsNoElementAtAll) {
  EXPECT_EQ(Content(test::SpecWithPredictors(3), CountedValues(3), {}, {"a", "b"}), "none");
}

TEST(PredictorEffect, ThreeIDsForTwoPredictorsIsNoElementAtAll) {
  EXPECT_EQ(Content(test::SpecWithPredictors(2), CountedValues(2), {}, {"a", "b", "c"}), "none");
}

TEST(PredictorEffect, EmptyIDIsWrittenAsItIs) {
  EXPECT_EQ(Content(test::SpecWithPredictors(1), {}, {}, {""}),
            "<PredictorEffect variableID=\"\"><Numerator><NonSeasonalFactor><ZeroLagTerm/>"
            "</NonSeasonalFactor></Numerator></PredictorEffect>");
}

std::string Outliers(const std::vector<TSOutlierSpec>& outliers,
                     const std::valarray<double>& values = {},
                     const std::valarray<double>& stdErrors = {}) {
  return Content({.outliers = TSOutlierSpecList(outliers)}, values, stdErrors);
}

TEST(OutlierEffect, EachTypeHasItsName) {
  EXPECT_EQ(
      Outliers({{1, 10}, {2, 11}, {3, 12}, {4, 13}, {5, 14}, {6, 15}, {7, 16}}, CountedValues(8)),
      "<OutlierEffect type=\"additive\" startIndex=\"10\">" + Parameter("0.5") +
          "</OutlierEffect>"
          "<OutlierEffect type=\"level\" startIndex=\"11\">" +
          Parameter("1.5") +
          "</OutlierEffect>"
          "<OutlierEffect type=\"transient\" startIndex=\"12\">" +
          Parameter("2.5") + Parameter("3.5") +
          "</OutlierEffect>"
          "<OutlierEffect type=\"seasonalAdditive\" startIndex=\"13\">" +
          Parameter("4.5") +
          "</OutlierEffect>"
          "<OutlierEffect type=\"trend\" startIndex=\"14\">" +
          Parameter("5.5") +
          "</OutlierEffect>"
          "<OutlierEffect type=\"innovational\" startIndex=\"15\">" +
          Parameter("6.5") +
          "</OutlierEffect>"
          "<OutlierEffect type=\"varianceChange\" startIndex=\"16\">" +
          Parameter("7.5") + "</OutlierEffect>");
}

TEST(OutlierEffect, TypeEightIsNotWrittenAndTheNextOneStillIs) {
  EXPECT_EQ(
      Outliers({{8, 3}, {TSOutlierSpec::kLevel, 5}}, CountedValues(2)),
      "<OutlierEffect type=\"level\" startIndex=\"5\">" + Parameter("1.5") + "</OutlierEffect>");
}

TEST(OutlierEffect, TypeZeroAndNegativeTypesAreNotWritten) {
  EXPECT_EQ(
      Outliers({{TSOutlierSpec::kNone, 3}, {-1, 4}, {TSOutlierSpec::kTrend, 5}}, CountedValues(2)),
      "<OutlierEffect type=\"trend\" startIndex=\"5\">" + Parameter("1.5") + "</OutlierEffect>");
}

TEST(OutlierEffect, StartIndexIsSigned) {
  EXPECT_EQ(Outliers({{TSOutlierSpec::kAdditive, -2}}),
            "<OutlierEffect type=\"additive\" startIndex=\"-2\"/>");
}

TEST(OutlierEffect, PositionsBeginBehindTheRestOfTheModel) {
  EXPECT_EQ(Content({.has_constant = true,
                     .predictors = {{}},
                     .outliers = TSOutlierSpecList({{TSOutlierSpec::kLevel, 7}})},
                    CountedValues(3), CountedErrors(3), {"x"}),
            "<ConstantTerm>" + Parameter("0.5 0.25") +
                "</ConstantTerm>"
                "<PredictorEffect variableID=\"x\"><Numerator><NonSeasonalFactor><ZeroLagTerm>" +
                Parameter("1.5 1.25") +
                "</ZeroLagTerm></NonSeasonalFactor></Numerator></PredictorEffect>"
                "<OutlierEffect type=\"level\" startIndex=\"7\">" +
                Parameter("2.5 2.25") + "</OutlierEffect>");
}

TEST(OutlierEffect, TooFewValuesLeaveItsAttributesOnly) {
  const std::vector<TSOutlierSpec> outliers = {{TSOutlierSpec::kLevel, 4},
                                               {TSOutlierSpec::kTransient, 9}};
  EXPECT_EQ(Outliers(outliers, CountedValues(2), CountedErrors(3)),
            "<OutlierEffect type=\"level\" startIndex=\"4\">" + Parameter("0.5 0.25") +
                "</OutlierEffect>"
                "<OutlierEffect type=\"transient\" startIndex=\"9\"/>");
}

TEST(OutlierEffect, TooFewStandardErrorsLeaveThemAllOut) {
  EXPECT_EQ(Outliers({{TSOutlierSpec::kTransient, 9}}, CountedValues(2), CountedErrors(1)),
            "<OutlierEffect type=\"transient\" startIndex=\"9\">" + Parameter("0.5") +
                Parameter("1.5") + "</OutlierEffect>");
}

TEST(OutlierEffect, MissingParameterIsLeftOut) {
  EXPECT_EQ(Outliers({{TSOutlierSpec::kTransient, 9}}, {kMissing, 1.5}, {0.25, 1.25}),
            "<OutlierEffect type=\"transient\" startIndex=\"9\">" + Parameter("1.5 1.25") +
                "</OutlierEffect>");
}

TEST(OutlierEffect, PositionsThatWrapAroundReadNothingBeyondTheVector) {
  const tsx::ElementPtr parent = tsx::MakeElement("M");
  const std::valarray<double> values = CountedValues(1);
  tsx::AppendOutlierEffect(*parent, {TSOutlierSpec::kTransient, 9}, 0xFFFFFFFF, {values, values});
  EXPECT_EQ(test::Compact(*parent), "<M><OutlierEffect type=\"transient\" startIndex=\"9\">" +
                                        Parameter("0.5 0.5") + "</OutlierEffect></M>");
}

TEST(ArimaModel, LeavesNothingBehindWhereverMemoryRunsOut) {
  const AMModelSpec spec = test::FullArimaSpec();
  const TSXDictionaryRefs refs("a model name beyond any small buffer", "described at length", "y",
                               {"a predictor beyond any small buffer", "x"});
  const auto values = CountedValues(23);
  const auto stdErrors = CountedErrors(23);
  test::WithEveryAllocationFailing(
      [&] { const tsx::ElementPtr e = tsx::MakeArimaModel(spec, refs, values, stdErrors); });
}

}  // namespace
