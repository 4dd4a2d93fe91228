// Fit statistics against R's own functions (tests/reference/statistics.R made the table), and where
// they are undefined.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "core/support/TestSeries.h"
#include "series/FitStatistics.h"
#include "series/LjungBox.h"

namespace tsffit {
namespace {

constexpr std::pair<const char*, BFSharedConst::GOFStatType> kNames[] = {
    {"MSE", BFSharedConst::kMeanSqrErr},
    {"RMSE", BFSharedConst::kRootMeanSqrErr},
    {"MAPE", BFSharedConst::kMeanAbsPctErr},
    {"MAE", BFSharedConst::kMeanAbsErr},
    {"MAXAPE", BFSharedConst::kMaxAbsPctErr},
    {"MAXAE", BFSharedConst::kMaxAbsErr},
    {"RSQ", BFSharedConst::kRSqr},
    {"NRMBIC", BFSharedConst::kNormBayesIC},
    {"LOGLK", BFSharedConst::kLogLikelihood},
    {"AIC", BFSharedConst::kAkaikeIC},
    {"BIC", BFSharedConst::kBayesIC},
    {"SRSQ", BFSharedConst::kStationaryRSqr}};

struct Case {
  const char* name;
  Differencing differencing;
};

void PrintTo(const Case& each, std::ostream* os) { *os << each.name; }

class AgainstR : public testing::TestWithParam<Case> {};

TEST_P(AgainstR, EveryStatisticAgrees) {
  const auto table = test::ReadReference("statistics.csv").at(GetParam().name);
  const FittedSeries fit{.observed = table.at("observed"),
                         .fitted = table.at("fitted"),
                         .modelled = table.at("modelled"),
                         .modelled_errors = table.at("errors")};
  const auto k = static_cast<unsigned>(table.at("k")[0]);
  const EstimationInfo info(FitStatistics(fit, k, GetParam().differencing, 18));
  const double variance = table.at("error_variance")[0];
  EXPECT_NEAR(info.GetErrorVariance(), variance, 1e-10 * variance);
  for (const auto& [name, code] : kNames) {
    const double expected = table.at(name)[0];
    EXPECT_NEAR(info.GetGOFStat(code), expected, 1e-10 * std::abs(expected)) << name;
  }
  if (table.count("ljung_box") == 0) return;
  double statistic = 0;
  double pValue = 0;
  unsigned long lags = 0;
  unsigned long df = 0;
  info.GetLBStat(statistic, lags, df, pValue);
  const auto& expected = table.at("ljung_box");
  EXPECT_NEAR(statistic, expected[0], 1e-10 * expected[0]);
  EXPECT_EQ(static_cast<double>(lags), expected[1]);
  EXPECT_EQ(static_cast<double>(df), expected[2]);
  EXPECT_NEAR(pValue, expected[3], 1e-9 * expected[3]);
}

std::string CaseName(const testing::TestParamInfo<Case>& each) {
  std::string name = each.param.name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Statistics, AgainstR,
                         testing::Values(Case{"simple", {.regular = 1}},
                                         Case{"log-winters",
                                              {.regular = 1, .seasonal = 1, .season_length = 12}},
                                         Case{"missing", {.regular = 2}}),
                         CaseName);

EstimationInfo Info(const std::vector<double>& observed, const std::vector<double>& fitted) {
  std::vector<double> errors;
  for (std::size_t t = 0; t < observed.size(); ++t) errors.push_back(observed[t] - fitted[t]);
  return EstimationInfo(FitStatistics(
      {.observed = observed, .fitted = fitted, .modelled = observed, .modelled_errors = errors}, 1,
      {.regular = 1}, 18));
}

TEST(Statistics, PerfectFitHasNoLogarithms) {
  const EstimationInfo info = Info({1, 2, 4, 3}, {1, 2, 4, 3});
  EXPECT_EQ(info.GetErrorVariance(), 0);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kMeanSqrErr), 0);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kRSqr), 1);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kNormBayesIC), MV::gMissingValue);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kLogLikelihood), MV::gMissingValue);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kAkaikeIC), MV::gMissingValue);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kBayesIC), MV::gMissingValue);
}

TEST(Statistics, ConstantSeriesExplainsNothing) {
  const EstimationInfo info = Info({5, 5, 5, 5}, {4, 5, 5, 5});
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kRSqr), MV::gMissingValue);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kStationaryRSqr), MV::gMissingValue);
}

TEST(Statistics, PercentErrorsPassOverZeros) {
  const EstimationInfo info = Info({0, 2, 4}, {1, 1, 3});
  EXPECT_DOUBLE_EQ(info.GetGOFStat(BFSharedConst::kMeanAbsPctErr), 37.5);  // (50 + 25) / 2
  EXPECT_DOUBLE_EQ(info.GetGOFStat(BFSharedConst::kMaxAbsPctErr), 50);
  EXPECT_EQ(Info({0, 0, 0}, {1, 1, 1}).GetGOFStat(BFSharedConst::kMeanAbsPctErr),
            MV::gMissingValue);
}

TEST(Statistics, SumsThatOverflowAreMissing) {
  const EstimationInfo info = Info({1e200, -1e200, 1e200}, {0, 0, 0});
  EXPECT_EQ(info.GetErrorVariance(), MV::gMissingValue);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kMeanSqrErr), MV::gMissingValue);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kLogLikelihood), MV::gMissingValue);
  EXPECT_EQ(info.GetGOFStat(BFSharedConst::kMaxAbsErr), 1e200);
}

TEST(LjungBox, IsMissingUpToAsManyErrorsAsLags) {
  const std::vector<double> errors = test::Generate(19, test::Noise);
  EXPECT_EQ(LjungBoxTest(std::span(errors).first(18), 18, 1).statistic, MV::gMissingValue);
  EXPECT_NE(LjungBoxTest(errors, 18, 1).statistic, MV::gMissingValue);
}

TEST(LjungBox, ConstantErrorsHaveNoTest) {
  const std::vector<double> errors(30, 0.1);
  EXPECT_EQ(LjungBoxTest(errors, 18, 1).statistic, MV::gMissingValue);
}

TEST(LjungBox, WithoutDegreesOfFreedomThereIsNoPValue) {
  const EstimationInfo::LjungBox box = LjungBoxTest(test::Generate(30, test::Noise), 2, 2);
  EXPECT_NE(box.statistic, MV::gMissingValue);
  EXPECT_EQ(box.degrees_of_freedom, 0U);
  EXPECT_EQ(box.p_value, MV::gMissingValue);
}

TEST(LjungBox, DoesNotDependOnTheUnit) {
  std::vector<double> errors = test::Generate(50, test::Noise);
  const double plain = LjungBoxTest(errors, 18, 1).statistic;
  for (double& e : errors) e *= 1e250;
  EXPECT_NEAR(LjungBoxTest(errors, 18, 1).statistic, plain, 1e-9 * plain);
}

}  // namespace
}  // namespace tsffit
