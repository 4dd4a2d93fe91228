#include <gtest/gtest.h>

#include "support/FailingAllocation.h"
#include "support/Golden.h"
#include "support/Models.h"
#include "support/XmlText.h"
#include "tsxml/write/CrostonModel.h"

namespace {

using test::kMissing;

ESForecastState Submodel(double weight, double stdError, double level) {
  return ESForecastState({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1)),
                          .estimates = {weight},
                          .std_errors = {stdError},
                          .smoothed = {.level = level}});
}

std::string Encode(const ESForecastState& time, int functionType = 0, int dateSpecID = 0) {
  TSXDictionaryRefs refs("m", "", "y");
  refs.SetDateSpecID(dateSpecID);
  return test::Indented(*tsx::MakeCrostonModel(Submodel(0.25, 0.125, 4.5), time,
                                               Submodel(0.1, kMissing, 0.75), refs, functionType,
                                               test::SmallInfo()));
}

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(CrostonModel, ThreeSubmodelsStandInAFixedOrder) {
  const std::string text = Encode(Submodel(0.5, 0.0625, 3));
  test::ExpectGolden("tsxml/golden/croston.xml", text);
  test::ExpectWellFormed(text);
}

TEST(CrostonModel, MissingLevelLeavesTheOtherSubmodelsWhole) {
  const std::string text = Encode(Submodel(0.5, 0.0625, kMissing));
  test::ExpectGolden("tsxml/golden/croston_missing_level.xml", text);
}

TEST(CrostonModel, MissingWeightLeavesTheLevel) {
  EXPECT_TRUE(Contains(Encode(Submodel(kMissing, kMissing, 3)),
                       "\t<ElapsedTimeSubmodel>\n\t\t<ESSimple>\n"
                       "\t\t\t<StateLevel>3</StateLevel>\n\t\t</ESSimple>\n"));
}

TEST(CrostonModel, SubmodelWithNothingToTellIsAnEmptyESSimple) {
  EXPECT_TRUE(Contains(Encode(Submodel(kMissing, kMissing, kMissing)),
                       "\t<ElapsedTimeSubmodel>\n\t\t<ESSimple/>\n\t</ElapsedTimeSubmodel>\n"));
}

TEST(CrostonModel, WeightBeyondTheEstimatesIsLeftOut) {
  const ESForecastState without(
      {.spec = Submodel(0, 0, 0).GetESModelSpec(), .smoothed = {.level = 3}});
  EXPECT_TRUE(Contains(Encode(without), "<ESSimple>\n\t\t\t<StateLevel>3</StateLevel>"));
}

TEST(CrostonModel, EstimatesTooFewForTheSpecificationAreNoObstacle) {
  const ESForecastState holt({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kHolt, 1)),
                              .estimates = {0.5},
                              .smoothed = {.level = 3, .trend = kMissing}});
  EXPECT_TRUE(Contains(Encode(holt),
                       "\t<ElapsedTimeSubmodel>\n\t\t<ESSimple>\n\t\t\t<ParmLevel>\n"
                       "\t\t\t\t<EstimatedParameter>0.5</EstimatedParameter>\n"
                       "\t\t\t</ParmLevel>\n\t\t</ESSimple>\n"));
}

TEST(CrostonModel, SubmodelWithoutAWeightHasItsLevelAlone) {
  const ESForecastState none({.estimates = {0.5}, .smoothed = {.level = 3}});
  EXPECT_TRUE(Contains(Encode(none), "<ESSimple>\n\t\t\t<StateLevel>3</StateLevel>"));
}

TEST(CrostonModel, SubmodelOfAnotherKindIsWrittenWithItsWholeState) {
  const std::string text = Encode(test::WintersState());
  EXPECT_TRUE(Contains(text,
                       "\t<ElapsedTimeSubmodel>\n\t\t<ESSimple>\n\t\t\t<ParmLevel>\n"
                       "\t\t\t\t<EstimatedParameter>0.5 0.1</EstimatedParameter>\n"
                       "\t\t\t</ParmLevel>\n\t\t\t<StateLevel>100</StateLevel>\n"
                       "\t\t\t<StateTrend>2</StateTrend>\n\t\t\t<StateSeason\n"
                       "\t\t\t\tphase=\"3\">0.5 1.5 0.75 1.25</StateSeason>\n"
                       "\t\t</ESSimple>\n"));
  EXPECT_FALSE(Contains(text, "seasonLength"));
}

TEST(CrostonModel, LogarithmIsTheOnlyAttributeOfItsTransformation) {
  EXPECT_TRUE(Contains(Encode(Submodel(0.5, 0.1, 3), TSTransformation::kLogarithm),
                       "\t<Transformation\n\t\tfunction=\"logarithm\"/>\n"));
}

TEST(CrostonModel, DateSpecificationIDOfZeroIsNotWritten) {
  EXPECT_FALSE(Contains(Encode(Submodel(0.5, 0.1, 3)), "dateSpecID"));
  EXPECT_TRUE(Contains(Encode(Submodel(0.5, 0.1, 3), 0, 2), "dateSpecID=\"2\""));
}

TEST(CrostonModel, LeavesNothingBehindWhereverMemoryRunsOut) {
  const ESForecastState state = Submodel(0.5, 0.1, 3);
  const EstimationInfo info = test::SmallInfo();
  const TSXDictionaryRefs refs("a model name beyond any small buffer", "d", "y");
  test::WithEveryAllocationFailing(
      [&] { const tsx::ElementPtr e = tsx::MakeCrostonModel(state, state, state, refs, 1, info); });
}

}  // namespace
