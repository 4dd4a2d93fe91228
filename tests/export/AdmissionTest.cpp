#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <sstream>

#include <tsxport/TSXMLTree.h>

#include "export/TSXMLTreeImp.h"
#include "support/ArimaModels.h"
#include "support/Calendars.h"
#include "support/FailingAllocation.h"
#include "support/Models.h"

namespace {

using test::ArimaModel;
using test::SimpleModel;

TSXDictionaryRefs Refs() { return {"m", "", "y"}; }

// A smoothing state in a model that claims predictors: enough to put the check to the test.
TSFModel ModelWithPredictors(unsigned count) {
  return test::ModelOf(std::make_unique<ESForecastState>(test::SimpleState()), count);
}

TSFModel FullArimaModel() {
  return test::ModelOf(std::make_unique<ARMAMLSpForecastState>(test::FullMLSpState()), 2);
}

TEST(Admission, ModelWithItsNamesIsTaken) {
  TSXMLTree tree;
  EXPECT_TRUE(tree.AddModelTree(SimpleModel(), Refs()));
  EXPECT_EQ(tree.GetModelCount(), 1U);
}

TEST(Admission, EmptyModelNameIsRefused) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(SimpleModel(), TSXDictionaryRefs("", "d", "y")));
  EXPECT_EQ(tree.GetModelCount(), 0U);
}

TEST(Admission, EmptyDependentVariableIsRefused) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(SimpleModel(), TSXDictionaryRefs("m", "d", "")));
}

TEST(Admission, DateSpecificationNeverRegisteredIsRefused) {
  TSXMLTree tree;
  TSXDictionaryRefs refs = Refs();
  refs.SetDateSpecID(1);
  EXPECT_FALSE(tree.AddModelTree(SimpleModel(), refs));
  refs.SetDateSpecID(-1);
  EXPECT_FALSE(tree.AddModelTree(SimpleModel(), refs));
}

TEST(Admission, DateSpecificationGoneWithAWriteIsRefused) {
  TSXMLTree tree;
  TSXDictionaryRefs refs = Refs();
  refs.SetDateSpecID(tree.AddDateSpec(test::Yearly(), ""));
  ASSERT_TRUE(tree.AddModelTree(SimpleModel(), refs));
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  EXPECT_FALSE(tree.AddModelTree(SimpleModel(), refs));
}

TEST(Admission, NoDateSpecificationNeedsNoEntry) {
  TSXMLTree tree;
  ASSERT_TRUE(tree.AddModelTree(SimpleModel(), Refs()));
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  EXPECT_EQ(out.str().find("DateSpecification"), std::string::npos);
}

TEST(Admission, OnePredictorIDForTwoPredictorsIsRefused) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(ModelWithPredictors(2), {"m", "", "y", {"x1"}}));
  EXPECT_TRUE(tree.AddModelTree(ModelWithPredictors(2), {"m", "", "y", {"x1", "x2"}}));
}

TEST(Admission, EmptySecondPredictorIDIsRefused) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(ModelWithPredictors(2), {"m", "", "y", {"x1", ""}}));
}

TEST(Admission, PredictorIDForAModelWithoutPredictorsIsRefused) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(SimpleModel(), {"m", "", "y", {"x1"}}));
}

TEST(Admission, CheckTellsThePositionOfTheDateSpecification) {
  TSXMLTreeImp imp;
  imp.AddDateSpec(test::Yearly(), "");
  TSXDictionaryRefs refs = Refs();
  refs.SetDateSpecID(imp.AddDateSpec(test::Monthly(), ""));
  unsigned index = 77;
  EXPECT_TRUE(imp.CheckDictRefs(nullptr, refs, index));
  EXPECT_EQ(index, 1U);
  refs.SetDateSpecID(9);
  EXPECT_FALSE(imp.CheckDictRefs(nullptr, refs, index));
  EXPECT_EQ(index, 0U);
}

TEST(Admission, CheckWithoutAModelExpectsNoPredictors) {
  const TSXMLTreeImp imp;
  unsigned index = 0;
  EXPECT_TRUE(imp.CheckDictRefs(nullptr, Refs(), index));
  EXPECT_FALSE(imp.CheckDictRefs(nullptr, {"m", "", "y", {"x1"}}, index));
}

TEST(Admission, ModelWithoutForecastStateIsRefused) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(test::ModelOf(nullptr), Refs()));
  EXPECT_FALSE(tree.AddModelTree(TSFModel(), Refs()));
  EXPECT_EQ(tree.GetModelCount(), 0U);
}

TEST(Admission, ModelThatCannotBeEncodedIsRefusedAndLeavesItsDateSpecificationUnmarked) {
  TSXMLTree tree;
  TSXDictionaryRefs refs = Refs();
  refs.SetDateSpecID(tree.AddDateSpec(test::Yearly(), ""));
  const TSFModel holed =
      test::ModelOf(std::make_unique<ESForecastState>(test::HoltState(test::kMissing)));
  EXPECT_FALSE(tree.AddModelTree(holed, refs));
  ASSERT_TRUE(tree.AddModelTree(SimpleModel(), Refs()));
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  EXPECT_EQ(out.str().find("DateSpecification"), std::string::npos);
}

TEST(Admission, ArimaModelOfEachKindIsTaken) {
  TSXMLTree tree;
  EXPECT_TRUE(tree.AddModelTree(test::ModelOf(std::make_unique<ARMAMLSpForecastState>()), Refs()));
  EXPECT_TRUE(tree.AddModelTree(test::ModelOf(std::make_unique<ARMAMLForecastState>()), Refs()));
  EXPECT_TRUE(tree.AddModelTree(test::ModelOf(std::make_unique<ARMACLSForecastState>()), Refs()));
  EXPECT_EQ(tree.GetModelCount(), 3U);
}

TEST(Admission, ArimaModelMarksItsDateSpecification) {
  TSXMLTree tree;
  TSXDictionaryRefs refs = Refs();
  refs.SetDateSpecID(tree.AddDateSpec(test::Yearly(), ""));
  ASSERT_TRUE(tree.AddModelTree(ArimaModel(), refs));
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  EXPECT_NE(out.str().find("<Year"), std::string::npos);
}

TEST(Admission, ArimaModelWithTwoPredictorsWantsTwoIDs) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(FullArimaModel(), {"m", "", "y", {"x1"}}));
  EXPECT_FALSE(tree.AddModelTree(FullArimaModel(), {"m", "", "y", {"x1", ""}}));
  EXPECT_EQ(tree.GetModelCount(), 0U);
  EXPECT_TRUE(tree.AddModelTree(FullArimaModel(), {"m", "", "y", {"x1", "x2"}}));
  EXPECT_EQ(tree.GetModelCount(), 1U);
}

// The model says one predictor, its specification two: the names pass the check and then have no
// element.
TEST(Admission, ArimaModelAtOddsWithItsSpecificationIsRefusedAndLeavesTheTreeAsItWas) {
  TSXMLTree tree;
  TSXDictionaryRefs refs("m", "", "y", {"x1"});
  refs.SetDateSpecID(tree.AddDateSpec(test::Yearly(), ""));
  const TSFModel atOdds =
      test::ModelOf(std::make_unique<ARMAMLSpForecastState>(test::FullMLSpState()), 1);
  EXPECT_FALSE(tree.AddModelTree(atOdds, refs));
  EXPECT_EQ(tree.GetModelCount(), 0U);
  ASSERT_TRUE(tree.AddModelTree(SimpleModel(), Refs()));
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  EXPECT_EQ(out.str().find("DateSpecification"), std::string::npos);
}

TSFCrModel CrostonModel() { return TSFCrModel(new TSFCrModelImp({})); }

TEST(Admission, CrostonModelIsTaken) {
  TSXMLTree tree;
  EXPECT_TRUE(tree.AddModelTree(CrostonModel(), Refs()));
  EXPECT_EQ(tree.GetModelCount(), 1U);
}

TEST(Admission, CrostonModelWithAnyPredictorIDIsRefused) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(CrostonModel(), {"m", "", "y", {"x1"}}));
  EXPECT_EQ(tree.GetModelCount(), 0U);
}

TEST(Admission, EmptyCrostonModelIsRefused) {
  TSXMLTree tree;
  EXPECT_FALSE(tree.AddModelTree(TSFCrModel(), Refs()));
}

TEST(Admission, CrostonModelMarksItsDateSpecification) {
  TSXMLTree tree;
  TSXDictionaryRefs refs = Refs();
  refs.SetDateSpecID(tree.AddDateSpec(test::Yearly(), ""));
  ASSERT_TRUE(tree.AddModelTree(CrostonModel(), refs));
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  EXPECT_NE(out.str().find("<Year"), std::string::npos);
  EXPECT_NE(out.str().find("<CrostonModel"), std::string::npos);
}

TEST(Admission, SmoothingModelUnderPMMLIsTakenAndNotCounted) {
  TSXMLTreeImp imp;
  imp.SetPMMLOutputFlag(true);
  EXPECT_TRUE(imp.AddModelTree(SimpleModel(), Refs()));
  EXPECT_TRUE(imp.GetPMMLOutputFlag());
  EXPECT_EQ(imp.GetModelCount(), 0U);
}

TEST(Admission, PMMLWriteLeavesTheModelsOfTheOtherDialectAlone) {
  TSXMLTree tree;
  ASSERT_TRUE(tree.AddModelTree(SimpleModel(), Refs()));
  tree.SetPMMLOutput(true);
  std::ostringstream out;
  EXPECT_TRUE(tree.WriteToStream(out));
  EXPECT_NE(out.str().find("<PMML"), std::string::npos);
  EXPECT_EQ(out.str().find("TimeSeriesModel"), std::string::npos);
  EXPECT_EQ(tree.GetModelCount(), 1U);
}

TEST(Admission, ArimaModelTurnsPMMLOffAndTheTreeWritesTimeSeriesXML) {
  TSXMLTree tree;
  tree.SetPMMLOutput(true);
  EXPECT_TRUE(tree.AddModelTree(ArimaModel(), Refs()));
  EXPECT_TRUE(tree.AddModelTree(SimpleModel(), Refs()));
  EXPECT_EQ(tree.GetModelCount(), 2U);
  std::ostringstream out;
  EXPECT_TRUE(tree.WriteToStream(out));
  EXPECT_NE(out.str().find("<TSCXML"), std::string::npos);
  EXPECT_NE(out.str().find("<ARIMAModel"), std::string::npos);
}

TEST(Admission, ModelRefusedForItsNamesTurnsPMMLOffAllTheSame) {
  TSXMLTreeImp imp;
  imp.SetPMMLOutputFlag(true);
  EXPECT_FALSE(imp.AddModelTree(ArimaModel(), TSXDictionaryRefs()));
  EXPECT_FALSE(imp.GetPMMLOutputFlag());
}

TEST(Admission, ModelWithoutForecastStateTurnsPMMLOff) {
  TSXMLTreeImp imp;
  imp.SetPMMLOutputFlag(true);
  EXPECT_FALSE(imp.AddModelTree(TSFModel(), Refs()));
  EXPECT_FALSE(imp.GetPMMLOutputFlag());
}

TEST(Admission, ModelThatMemoryDoesNotSufficeForTurnsPMMLOffAllTheSame) {
  const TSFModel model = FullArimaModel();
  const TSXDictionaryRefs refs("m", "", "y", {"x1", "x2"});
  test::WithEveryAllocationFailing([&] {
    TSXMLTreeImp imp;
    imp.SetPMMLOutputFlag(true);
    try {
      imp.AddModelTree(model, refs);
    } catch (const std::bad_alloc&) {
      const test::AllocationsSucceed look;
      EXPECT_FALSE(imp.GetPMMLOutputFlag());
      throw;
    }
  });
}

TEST(Admission, CrostonModelLeavesPMMLOn) {
  TSXMLTreeImp imp;
  imp.SetPMMLOutputFlag(true);
  imp.AddModelTree(TSFCrModel(), Refs());
  EXPECT_TRUE(imp.GetPMMLOutputFlag());
}

TEST(Admission, HostMaySwitchPMMLOnAgainAfterAFallBack) {
  TSXMLTreeImp imp;
  imp.SetPMMLOutputFlag(true);
  imp.AddModelTree(ArimaModel(), Refs());
  imp.SetPMMLOutputFlag(true);
  EXPECT_TRUE(imp.GetPMMLOutputFlag());
}

void ExpectTreeUnchangedWhereverMemoryRunsOut(const TSFModel& model,
                                              const std::vector<std::string>& predictorIDs) {
  const TSXDateSpec monthly = test::Monthly();
  test::WithEveryAllocationFailing([&] {
    TSXMLTreeImp imp;
    TSXDictionaryRefs refs;
    {
      const test::AllocationsSucceed setUp;
      refs =
          TSXDictionaryRefs("a model name beyond any small buffer", "described", "y", predictorIDs);
      refs.SetDateSpecID(imp.AddDateSpec(monthly, ""));
    }
    try {
      imp.AddModelTree(model, refs);
    } catch (const std::bad_alloc&) {
      const test::AllocationsSucceed look;
      EXPECT_EQ(imp.GetModelCount(), 0U);
      std::ostringstream out;
      EXPECT_FALSE(imp.WriteToStream(out, true));
      const TSXDictionaryRefs undated("m", "", "y", predictorIDs);
      EXPECT_TRUE(imp.AddModelTree(model, undated));
      EXPECT_TRUE(imp.WriteToStream(out, true));
      EXPECT_EQ(out.str().find("DateSpecification"), std::string::npos) << "marked";
      throw;
    }
  });
}

TEST(Admission, TreeIsUnchangedWhereverMemoryRunsOut) {
  ExpectTreeUnchangedWhereverMemoryRunsOut(
      test::ModelOf(std::make_unique<ESForecastState>(test::WintersState())), {});
}

TEST(Admission, TreeIsUnchangedWhereverMemoryRunsOutOverAnArimaModel) {
  ExpectTreeUnchangedWhereverMemoryRunsOut(FullArimaModel(), {"x1", "x2"});
}

}  // namespace
