// What the dialects say to a model that is offered, beside what their facts say.

#include <gtest/gtest.h>
#include <memory>

#include "export/Dialects.h"
#include "support/ArimaModels.h"
#include "support/Models.h"

namespace {

using tsx::DialectContent;
using tsx::MethodOf;
using tsx::Offer;

const TSXDictionaryRefs kRefs("m", "", "y");

TSFCrModel CrostonModel() { return TSFCrModel(new TSFCrModelImp({})); }

class EveryDialect : public testing::TestWithParam<std::size_t> {
 protected:
  std::unique_ptr<tsx::Dialect> dialect_ = tsx::MakeDialect(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Places, EveryDialect, testing::Range<std::size_t>(0, tsx::kDialectCount),
                         [](const auto& place) { return tsx::kDialects[place.param].name; });

TEST_P(EveryDialect, StandsWhereItsFactsStand) {
  EXPECT_EQ(&dialect_->facts(), &tsx::kDialects[GetParam()]);
}

TEST_P(EveryDialect, AdmitsTheMethodsThatItsFactsHold) {
  const TSFModel smoothing = test::SimpleModel();
  const TSFModel arima = test::ArimaModel();
  const TSFCrModel croston = CrostonModel();
  const tsx::DialectFacts& facts = dialect_->facts();
  EXPECT_EQ(bool(dialect_->Admits(Offer(smoothing, kRefs))),
            facts.Holds(DialectContent::kSmoothing));
  EXPECT_EQ(bool(dialect_->Admits(Offer(arima, kRefs))), facts.Holds(DialectContent::kArima));
  EXPECT_EQ(bool(dialect_->Admits(Offer(croston, kRefs))), facts.Holds(DialectContent::kCroston));
}

TEST_P(EveryDialect, GivesTheReasonThatItsFactsGive) {
  const TSFModel arima = test::ArimaModel();
  EXPECT_STREQ(dialect_->Admits(Offer(arima, kRefs)).reason,
               dialect_->facts().Lack(DialectContent::kArima));
}

TEST_P(EveryDialect, AdmitsNothingWithoutAForecastState) {
  const TSFModel stateless = test::ModelOf(nullptr);
  EXPECT_FALSE(dialect_->Admits(Offer(stateless, kRefs)));
  EXPECT_FALSE(dialect_->Admits(Offer(TSFModel(), kRefs)));
  EXPECT_FALSE(dialect_->Admits(Offer(TSFCrModel(), kRefs)));
  EXPECT_NE(dialect_->Admits(Offer(stateless, kRefs)).reason, nullptr);
}

// The history of SimpleModel() has no hole; this one is nothing but holes.
TEST_P(EveryDialect, AdmitsByTheMethodAlone) {
  const TSFModel holed(
      new TSFModelImp({.state = std::make_unique<ESForecastState>(test::SimpleState()),
                       .info = test::SmallInfo(),
                       .history = {test::kMissing, test::kMissing}}));
  EXPECT_TRUE(dialect_->Admits(Offer(holed, kRefs)));
}

TEST(FirstDialect, HasEveryModel) {
  for (const DialectContent method :
       {DialectContent::kSmoothing, DialectContent::kArima, DialectContent::kCroston}) {
    EXPECT_TRUE(tsx::kDialects[tsx::kFirstDialect].Holds(method));
  }
}

TEST(OfferedModel, TellsItsMethodByItsState) {
  const TSFModel smoothing = test::SimpleModel();
  EXPECT_EQ(MethodOf(Offer(smoothing, kRefs)), DialectContent::kSmoothing);
  const TSFModel mlsp = test::ModelOf(std::make_unique<ARMAMLSpForecastState>());
  EXPECT_EQ(MethodOf(Offer(mlsp, kRefs)), DialectContent::kArima);
  const TSFModel ml = test::ModelOf(std::make_unique<ARMAMLForecastState>());
  EXPECT_EQ(MethodOf(Offer(ml, kRefs)), DialectContent::kArima);
  const TSFModel cls = test::ModelOf(std::make_unique<ARMACLSForecastState>());
  EXPECT_EQ(MethodOf(Offer(cls, kRefs)), DialectContent::kArima);
  const TSFCrModel croston = CrostonModel();
  EXPECT_EQ(MethodOf(Offer(croston, kRefs)), DialectContent::kCroston);
  EXPECT_EQ(MethodOf(Offer(TSFCrModel(), kRefs)), std::nullopt);
}

TEST(OfferedModel, BringsItsHistoryAlong) {
  const TSFModel model = test::SimpleModel();
  ASSERT_NE(Offer(model, kRefs).history, nullptr);
  EXPECT_EQ(Offer(model, kRefs).history->size(), 3U);
  EXPECT_EQ(Offer(TSFModel(), kRefs).history, nullptr);
}

TEST(OfferedModel, OfCrostonsMethodHasNoPredictors) {
  const TSFModel explained =
      test::ModelOf(std::make_unique<ARMAMLSpForecastState>(test::FullMLSpState()), 2);
  EXPECT_EQ(PredictorCountOf(Offer(explained, kRefs)), 2U);
  const TSFCrModel croston = CrostonModel();
  EXPECT_EQ(PredictorCountOf(Offer(croston, kRefs)), 0U);
}

}  // namespace
