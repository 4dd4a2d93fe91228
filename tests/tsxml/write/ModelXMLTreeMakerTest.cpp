#include <gtest/gtest.h>
#include <memory>

#include <tsxport/ModelXMLTreeMaker.h>

#include "support/ArimaModels.h"
#include "support/FailingAllocation.h"
#include "support/Models.h"
#include "support/XmlText.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__ 1
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace {

using Tree = std::unique_ptr<TIMESERIESXML::XMLElement>;

// Lets the leak checker pass over what is allocated in one scope: a second visit forgets the tree
// of the first without freeing it.
class ForgottenOnPurpose {
 public:
#ifdef __SANITIZE_ADDRESS__
  ForgottenOnPurpose() { __lsan_disable(); }
  ~ForgottenOnPurpose() { __lsan_enable(); }
#else
  ForgottenOnPurpose() {}
#endif
  ForgottenOnPurpose(const ForgottenOnPurpose&) = delete;
  ForgottenOnPurpose& operator=(const ForgottenOnPurpose&) = delete;
};

class TreeMaker : public testing::Test {
 protected:
  const TSXDictionaryRefs refs_{"m", "", "y"};
  const EstimationInfo info_ = test::SmallInfo();
  ModelXMLTreeMaker maker_{refs_, info_};
};

TEST_F(TreeMaker, HasNoTreeBeforeAVisit) { EXPECT_EQ(maker_.ReleaseTree(), nullptr); }

TEST_F(TreeMaker, SmoothingStateBecomesAModelWithItsEstimationRecord) {
  test::SimpleState().Accept(maker_);
  const Tree tree(maker_.ReleaseTree());
  ASSERT_NE(tree, nullptr);
  EXPECT_EQ(test::Compact(*tree),
            "<ExpSmoothingModel modelName=\"m\" variableID=\"y\"><ESSimple>"
            "<ParmLevel><EstimatedParameter>0.25 0.0625</EstimatedParameter></ParmLevel>"
            "<StateLevel>10</StateLevel></ESSimple>"
            "<EstimationInfo periodStartIndex=\"0\" periodLength=\"24\" degreesOfFreedom=\"23\">"
            "<Statistic type=\"errVariance\">1.5</Statistic></EstimationInfo>"
            "</ExpSmoothingModel>");
}

TEST_F(TreeMaker, TreeIsHandedOverOnce) {
  test::SimpleState().Accept(maker_);
  const Tree tree(maker_.ReleaseTree());
  EXPECT_NE(tree, nullptr);
  EXPECT_EQ(maker_.ReleaseTree(), nullptr);
}

TEST_F(TreeMaker, RefusedModelLeavesNoTree) {
  test::HoltState(test::kMissing).Accept(maker_);
  EXPECT_EQ(maker_.ReleaseTree(), nullptr);
}

TEST_F(TreeMaker, RefusedModelReplacesTheTreeOfAnEarlierVisit) {
  {
    const ForgottenOnPurpose forgotten;
    test::SimpleState().Accept(maker_);
  }
  test::HoltState(test::kMissing).Accept(maker_);
  EXPECT_EQ(maker_.ReleaseTree(), nullptr);
}

TEST_F(TreeMaker, RefusedArimaModelReplacesTheTreeOfAnEarlierVisit) {
  {
    const ForgottenOnPurpose forgotten;
    test::SimpleState().Accept(maker_);
  }
  ARMACLSForecastState({.common = {.spec = test::SpecWithPredictors(1)}}).Accept(maker_);
  EXPECT_EQ(maker_.ReleaseTree(), nullptr);
}

TEST_F(TreeMaker, TreeThatNobodyTookDiesWithTheMaker) {
  const ESForecastState state = test::SimpleState();
  const long before = test::LiveBlocks();
  {
    ModelXMLTreeMaker maker(refs_, info_);
    state.Accept(maker);
    EXPECT_GT(test::LiveBlocks(), before);
  }
  EXPECT_EQ(test::LiveBlocks(), before);
}

std::string TextOfVisit(ModelXMLTreeMaker& maker, const ForecastState& state) {
  state.Accept(maker);
  const Tree tree(maker.ReleaseTree());
  return tree ? test::Compact(*tree) : "none";
}

TEST_F(TreeMaker, EachArimaStateBecomesAModelWithTheStateOfItsKind) {
  const std::string start = "<ARIMAModel modelName=\"m\" variableID=\"y\">";
  const std::string end =
      "<EstimationInfo periodStartIndex=\"0\" periodLength=\"24\" degreesOfFreedom=\"23\">"
      "<Statistic type=\"errVariance\">1.5</Statistic></EstimationInfo></ARIMAModel>";
  EXPECT_EQ(TextOfVisit(maker_, ARMACLSForecastState()),
            start + "<ARIMACLSState periodDeficit=\"0\"><NoiseState/></ARIMACLSState>" + end);
  EXPECT_EQ(TextOfVisit(maker_, ARMAMLForecastState()),
            start + "<ARIMAMLState periodDeficit=\"0\"><KalmanState/></ARIMAMLState>" + end);
  EXPECT_EQ(TextOfVisit(maker_, ARMAMLSpForecastState()),
            start +
                "<ARIMAMLSpState periodDeficit=\"0\"><NoiseState/>"
                "<ThetaRecursionState finalIterationNumber=\"0\"><FinalThetas/><FinalNu/>"
                "</ThetaRecursionState></ARIMAMLSpState>" +
                end);
}

TEST_F(TreeMaker, ArimaModelWithoutANameForItsPredictorLeavesNoTree) {
  const ARMAForecastState::Common common{.spec = test::SpecWithPredictors(1)};
  EXPECT_EQ(TextOfVisit(maker_, ARMACLSForecastState({.common = common})), "none");
  EXPECT_EQ(TextOfVisit(maker_, ARMAMLForecastState({.common = common})), "none");
  EXPECT_EQ(TextOfVisit(maker_, ARMAMLSpForecastState({.common = common})), "none");
}

}  // namespace
