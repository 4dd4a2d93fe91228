// The record of an ARIMA fit against R's own functions at R's own estimates:
// tests/reference/arima_statistics.R made the table.

#include <cmath>
#include <gtest/gtest.h>

#include "core/support/ArimaSeries.h"
#include "core/support/TestSeries.h"

namespace {

using tsffit::ArimaFit;

constexpr const char* kNames[] = {"MSE", "RMSE", "MAPE", "MAE",   "MAXAPE", "MAXAE",
                                  "RSQ", "AIC",  "BIC",  "LOGLK", "SRSQ",   "NRMBIC"};

void ExpectStatistics(const ArimaFit& fit, const std::string& name) {
  const auto table = test::ReadReference("arima_statistics.csv").at(name);
  ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << fit.message;
  for (const char* const statistic : kNames) {
    const double expected = table.at(statistic)[0];
    EXPECT_NEAR(fit.model.GetGOFStat(statistic), expected, 1e-5 * std::abs(expected)) << statistic;
  }
  const EstimationInfo& info = fit.model.GetImp()->GetEstimationInfo();
  const double n = table.at("n")[0];
  const double k = table.at("k")[0];
  EXPECT_EQ(static_cast<double>(info.GetDegreesOfFreedom()), n - k);
  EXPECT_EQ(static_cast<double>(fit.summary.residuals), n);
  EXPECT_EQ(fit.summary.estimated, k);
  const double variance = table.at("error_variance")[0];
  EXPECT_NEAR(info.GetErrorVariance(), variance, 1e-6 * variance);
  EXPECT_EQ(info.GetErrorVariance(), fit.summary.error_variance);
  EXPECT_NEAR(fit.summary.log_likelihood, table.at("LOGLK")[0], 1e-6);

  double statistic = 0;
  double pValue = 0;
  unsigned long lags = 0;
  unsigned long df = 0;
  fit.model.GetLBStat(statistic, lags, df, pValue);
  const auto& test = table.at("ljung_box");
  EXPECT_NEAR(statistic, test[0], 1e-5 * test[0]);
  EXPECT_EQ(static_cast<double>(lags), test[1]);
  EXPECT_EQ(static_cast<double>(df), test[2]);
  EXPECT_NEAR(pValue, test[3], 1e-4 * test[3]);
}

TEST(ArimaStatistics, OfTheAirlineModelAgreeWithR) {
  AMModelSpec::Fields spec = test::Airline();
  spec.y_transform = TSTransformation(TSTransformation::kLogarithm);
  const auto series = test::DataColumn("airpassengers.csv");
  ExpectStatistics(test::FitSpec(series, spec), "airline");
  ExpectStatistics(test::FitSpec(series, spec, tsffit::ArimaMethod::kMlTheta), "airline");
}

TEST(ArimaStatistics, OfAnArmaModelWithAConstantAgreeWithR) {
  const auto spec = test::SpecOf({.ar = {1}, .ma = {1}, .has_constant = true});
  ExpectStatistics(test::FitSpec(test::DataColumn("lakehuron.csv"), spec), "lakehuron");
}

TEST(ArimaStatistics, ResidualsAreTheErrorsOverTheRootsOfTheirVariances) {
  // Of AR(1) the first error has the variance 1 / (1 - phi^2), the others 1.
  const auto series = test::DataColumn("lakehuron.csv");
  const ArimaFit fit = test::FitSpec(series, test::SpecOf({.ar = {1}, .has_constant = true}));
  const double mean = test::EstimatesOf(fit)[0];
  const double phi = test::EstimatesOf(fit)[1];
  EXPECT_NEAR(fit.fitted[0], mean, 1e-9);
  EXPECT_NEAR(fit.residuals[0], (series[0] - mean) * std::sqrt(1 - phi * phi), 1e-9);
  double squares = fit.residuals[0] * fit.residuals[0];
  for (std::size_t t = 1; t < series.size(); ++t) {
    EXPECT_NEAR(fit.fitted[t], mean + phi * (series[t - 1] - mean), 1e-9);
    EXPECT_NEAR(fit.residuals[t], series[t] - fit.fitted[t], 1e-9);
    squares += fit.residuals[t] * fit.residuals[t];
  }
  EXPECT_NEAR(squares, fit.summary.sse, 1e-9 * squares);
}

TEST(ArimaStatistics, CasesOfAMissingValueCountForNothing) {
  const auto series = test::DataColumn("presidents.csv");
  const ArimaFit fit = test::FitSpec(series, test::SpecOf({.ar = {1}, .has_constant = true}));
  const EstimationInfo& info = fit.model.GetImp()->GetEstimationInfo();
  EXPECT_EQ(fit.summary.residuals, 114U);
  EXPECT_EQ(info.GetDegreesOfFreedom(), 112U);
  double sum = 0;
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (series[t] == MV::gMissingValue) {
      EXPECT_EQ(fit.residuals[t], MV::gMissingValue);
    } else {
      sum += std::abs(series[t] - fit.fitted[t]);
    }
  }
  EXPECT_NEAR(fit.model.GetGOFStat("MAE"), sum / 114, 1e-9);
}

TEST(ArimaStatistics, LjungBoxTestIsThereOnlyWithLags) {
  const auto series = test::DataColumn("lakehuron.csv");
  tsffit::ArimaOptions options;
  options.spec = test::SpecOf({.ar = {1}});
  for (const unsigned lags : {0U, 10U}) {
    options.ljung_box_lags = lags;
    const ArimaFit fit = tsffit::FitArima(series, {}, options);
    double statistic = 0;
    double pValue = 0;
    unsigned long k = 0;
    unsigned long df = 0;
    fit.model.GetLBStat(statistic, k, df, pValue);
    EXPECT_EQ(statistic == MV::gMissingValue, lags == 0);
    if (lags > 0) {
      EXPECT_EQ(k, 10U);
      EXPECT_EQ(df, 9U);
    }
  }
}

}  // namespace
