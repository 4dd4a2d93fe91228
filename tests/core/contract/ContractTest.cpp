#include <gtest/gtest.h>
#include <limits>

#include <tsfcore/tsfcore.h>

namespace {

TEST(MissingValue, IsTheMostNegativeFiniteDouble) {
  EXPECT_EQ(MV::gMissingValue, -std::numeric_limits<double>::max());
}

TEST(Status, DefaultIsSuccessWithCodeZero) {
  const MCTime::MCStatus status;
  EXPECT_EQ(status.GetCode(), 0U);
  EXPECT_FALSE(status.IsError());
}

TEST(Status, AnyOtherCodeSetsTheFlag) {
  const MCTime::MCStatus status(40201);
  EXPECT_EQ(status.GetCode(), 40201U);
  EXPECT_TRUE(status.IsError());
}

struct Counted : TSRCObject {
  explicit Counted(int& count) : deaths(count) {}
  ~Counted() override { ++deaths; }
  Counted(const Counted&) = default;
  Counted& operator=(const Counted&) = delete;
  int& deaths;
};

TEST(ReferenceCount, LastRemovalDestroys) {
  int deaths = 0;
  auto* object = new Counted(deaths);
  object->addReference();
  object->addReference();
  object->removeReference();
  EXPECT_EQ(deaths, 0);
  EXPECT_EQ(object->referenceCount(), 1);
  object->removeReference();
  EXPECT_EQ(deaths, 1);
}

TEST(ReferenceCount, CopyStartsWithoutReferences) {
  int deaths = 0;
  Counted original(deaths);
  original.addReference();
  EXPECT_EQ(Counted(original).referenceCount(), 0);
}

TEST(SmoothingSpec, WeightsStandInTheOrderLevelTrendSeasonDamping) {
  const ESModelSpec winters(ESModelSpec::ForKind(ESModelSpec::kMultiplicativeWinters, 12));
  EXPECT_EQ(winters.GetParameterCount(true), 3U);
  EXPECT_EQ(winters.GetParameterIndex(ESModelSpec::kLevel), 0);
  EXPECT_EQ(winters.GetParameterIndex(ESModelSpec::kTrend), 1);
  EXPECT_EQ(winters.GetParameterIndex(ESModelSpec::kSeason), 2);
  EXPECT_EQ(winters.GetParameterIndex(ESModelSpec::kDamping), -1);

  const ESModelSpec damped(ESModelSpec::ForKind(ESModelSpec::kDampedTrend, 1));
  EXPECT_EQ(damped.GetParameterIndex(ESModelSpec::kSeason), -1);
  EXPECT_EQ(damped.GetParameterIndex(ESModelSpec::kDamping), 2);
}

TEST(SmoothingSpec, KindWithoutSeasonUsesSeasonLengthOne) {
  const ESModelSpec holt(ESModelSpec::ForKind(ESModelSpec::kHolt, 12));
  EXPECT_EQ(holt.GetSeasonLength(true), 1U);
  EXPECT_EQ(holt.GetSeasonLength(false), 12U);
}

TEST(SmoothingSpec, FixedWeightsAreNotCountedAsEstimated) {
  ESModelSpec::Fields fields = ESModelSpec::ForKind(ESModelSpec::kHolt, 1);
  fields.fixed_count = 1;
  EXPECT_EQ(ESModelSpec(fields).GetParameterCount(true), 2U);
  EXPECT_EQ(ESModelSpec(fields).GetParameterCount(false), 1U);
}

// Constant at 0; AR (1, 3)(12) at 1 to 3; MA (1) at 4; predictor 0: numerator zero lag and lag 1
// at 5 and 6, denominator lag 1 at 7; predictor 1: zero lag at 8; outliers from 9.
AMModelSpec FullArima() {
  AMModelSpec::Fields fields;
  fields.has_constant = true;
  fields.ar = {.non_seasonal = {1, 3}, .seasonal = {12}};
  fields.ma = {.non_seasonal = {1}, .seasonal = {}};
  fields.predictors.resize(2);
  fields.predictors[0].numerator.non_seasonal = {1};
  fields.predictors[0].denominator.non_seasonal = {1};
  fields.outliers = TSOutlierSpecList({{TSOutlierSpec::kAdditive, 4},
                                       {TSOutlierSpec::kTransient, 9},
                                       {TSOutlierSpec::kNone, 0},
                                       {TSOutlierSpec::kLevel, 20}});
  return AMModelSpec(fields);
}

TEST(ArimaSpec, PositionsFollowTheDocumentedOrder) {
  const AMModelSpec spec = FullArima();
  AMPowers nonSeasonal;
  AMPowers seasonal;
  bool constant = false;
  EXPECT_EQ(spec.GetMeanYPresent(constant), 0U);
  EXPECT_TRUE(constant);
  EXPECT_EQ(spec.GetARStruct(nonSeasonal, seasonal), 1U);
  EXPECT_EQ(nonSeasonal.GetPower(1), 3U);
  EXPECT_EQ(seasonal.GetPower(0), 12U);
  EXPECT_EQ(spec.GetMAStruct(nonSeasonal, seasonal), 4U);
  EXPECT_EQ(spec.GetXRegressionCoeff(0), 5U);
  EXPECT_EQ(spec.GetXDenominator(0, nonSeasonal, seasonal), 7U);
  EXPECT_EQ(spec.GetXRegressionCoeff(1), 8U);
  EXPECT_EQ(spec.GetOutlierParmIndex(), 9U);
  EXPECT_EQ(spec.GetParameterCount(true), 13U);
}

TEST(ArimaSpec, TransientOutlierHasTwoParameters) {
  const AMModelSpec spec = FullArima();
  const TSOutlierSpecList& outliers = spec.GetOutliers();
  EXPECT_EQ(outliers.ParameterVectorIndex(1, 0), 1U);
  EXPECT_EQ(outliers.ParameterVectorIndex(3, 0), 3U);
  EXPECT_EQ(outliers.GetOutlierSpecCount(false), 4U);
  EXPECT_EQ(outliers.GetOutlierSpecCount(true), 3U);
}

TEST(EstimationRecord, EverythingIsMissingUntilSet) {
  const EstimationInfo info;
  double statistic = 0;
  double pValue = 0;
  unsigned long k = 1;
  unsigned long df = 1;
  info.GetLBStat(statistic, k, df, pValue);
  EXPECT_EQ(statistic, MV::gMissingValue);
  EXPECT_EQ(pValue, MV::gMissingValue);
  EXPECT_EQ(k, 0U);
  EXPECT_EQ(df, 0U);
  EXPECT_EQ(info.GetErrorVariance(), MV::gMissingValue);
  for (int code = 0; code < BFSharedConst::kGOFStatCount; ++code) {
    EXPECT_EQ(info.GetGOFStat(static_cast<BFSharedConst::GOFStatType>(code)), MV::gMissingValue);
  }
}

TSFModel HoltModel() {
  EstimationInfo::Fields info;
  info.statistics[BFSharedConst::kRootMeanSqrErr] = 2.5;
  return TSFModel(
      new TSFModelImp({.state = std::make_unique<ESForecastState>(ESForecastState::Fields{
                           .spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kHolt, 1)),
                           .estimates = {0.5, 0.25},
                           .std_errors = {0.1},
                           .smoothed = {.level = 10, .trend = 1, .phase = 0, .season = {}}}),
                       .info = EstimationInfo(info),
                       .history = {1, 2, 3},
                       .predictor_count = 0}));
}

TEST(Model, StatisticsGoByName) {
  const TSFModel model = HoltModel();
  EXPECT_EQ(model.GetGOFStat("RMSE"), 2.5);
  EXPECT_EQ(model.GetGOFStat("MSE"), MV::gMissingValue);
  EXPECT_EQ(model.GetGOFStat("no such name"), MV::gMissingValue);
}

TEST(Model, PropertiesNumberKindsFromOne) {
  const TSFESModelProp properties = HoltModel().GetModelProperties();
  EXPECT_EQ(properties.GetKind(), 4);
  EXPECT_EQ(properties.GetWeight(TSFESModelProp::kTrend), 0.25);
  EXPECT_EQ(properties.GetStdError(TSFESModelProp::kLevel), 0.1);
  EXPECT_EQ(properties.GetStdError(TSFESModelProp::kTrend), MV::gMissingValue);
  EXPECT_EQ(properties.GetWeight(TSFESModelProp::kSeason), MV::gMissingValue);
}

TEST(Model, EmptyHandleAnswersWithNothing) {
  const TSFModel empty;
  EXPECT_TRUE(empty.IsEmpty());
  EXPECT_EQ(empty.GetImp(), nullptr);
  EXPECT_EQ(empty.GetPredictorCount(), 0U);
  EXPECT_EQ(empty.GetGOFStat("MSE"), MV::gMissingValue);
  EXPECT_EQ(empty.GetModelProperties().GetKind(), 0);
}

TEST(Model, CopiesShareOneImplementation) {
  TSFModel copy;
  {
    const TSFModel model = HoltModel();
    copy = model;
    EXPECT_EQ(copy.GetImp(), model.GetImp());
    EXPECT_EQ(copy.GetImp()->referenceCount(), 2);
  }
  EXPECT_EQ(copy.GetImp()->referenceCount(), 1);
  EXPECT_EQ(copy.GetImp()->GetHistoryData().size(), 3U);
}

TEST(Model, MovedHandleLeavesItsSourceEmpty) {
  TSFModel source = HoltModel();
  const TSFModelImp* const imp = source.GetImp();
  const TSFModel target(std::move(source));
  EXPECT_EQ(target.GetImp(), imp);
  EXPECT_EQ(imp->referenceCount(), 1);
  EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move): a moved handle is empty
}

// P(T <= t) from printed tables of Student's t (0.975 and 0.95 quantiles).
TEST(StudentsT, AgreesWithPrintedQuantiles) {
  EXPECT_NEAR(TSStatUtil::CDFStudentsT(12.7062, 1), 0.975, 1e-6);
  EXPECT_NEAR(TSStatUtil::CDFStudentsT(2.22814, 10), 0.975, 1e-6);
  EXPECT_NEAR(TSStatUtil::CDFStudentsT(-1.81246, 10), 0.05, 1e-6);
  EXPECT_EQ(TSStatUtil::CDFStudentsT(0, 7), 0.5);
}

TEST(StudentsT, UndefinedArgumentsAreMissing) {
  EXPECT_EQ(TSStatUtil::CDFStudentsT(1, 0), MV::gMissingValue);
  EXPECT_EQ(TSStatUtil::CDFStudentsT(1, -3), MV::gMissingValue);
  EXPECT_EQ(TSStatUtil::CDFStudentsT(MV::gMissingValue, 3), MV::gMissingValue);
  EXPECT_EQ(TSStatUtil::CDFStudentsT(std::numeric_limits<double>::quiet_NaN(), 3),
            MV::gMissingValue);
  EXPECT_EQ(TSStatUtil::CDFStudentsT(std::numeric_limits<double>::infinity(), 3), 1.0);
}

}  // namespace
