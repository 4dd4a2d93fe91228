// Forecasts from the state alone against the conditional distribution by its definition, above all
// where cases are missing near the end or before the first row.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "arima/model/Design.h"
#include "arima/model/Effects.h"
#include "core/support/ArimaSeries.h"
#include "core/support/DenseLikelihood.h"
#include "core/support/TestSeries.h"

namespace tsffit {
namespace {

constexpr std::size_t kHorizon = 15;

struct Case {
  const char* name;
  test::Orders orders;
  std::vector<std::size_t> missing;
  ArimaMethod method = ArimaMethod::kMl;
};

std::vector<Case> Cases() {
  const test::Orders airline = {
      .d = 1, .ma = {1}, .seasonal_d = 1, .seasonal_ma = {1}, .season_length = 12};
  const test::Orders arma = {.ar = {1}, .ma = {1}, .has_constant = true};
  const test::Orders drift = {.d = 1, .ma = {1}, .has_constant = true};
  const test::Orders quarters = {
      .ar = {1, 3}, .seasonal_d = 1, .seasonal_ma = {1}, .season_length = 4};
  return {{"complete_airline", airline, {}},
          {"complete_airline_by_thetas", airline, {}, ArimaMethod::kMlTheta},
          {"complete_quarters_by_thetas", quarters, {}, ArimaMethod::kMlTheta},
          {"missing_long_ago", airline, {30, 31}},
          {"missing_in_the_last_season", airline, {40, 85, 88, 89}},
          {"missing_at_the_end", airline, {93, 94, 95}},
          {"missing_before_the_first_row", airline, {3, 12}},
          {"missing_everywhere", airline, {2, 15, 16, 30, 45, 60, 61, 62, 84, 87, 95}},
          {"missing_at_the_end_without_differences", arma, {20, 94, 95}},
          {"missing_at_the_end_with_drift", drift, {1, 50, 94, 95}},
          {"missing_in_quarters", quarters, {1, 40, 41, 42, 43, 93, 94}}};
}

class AgainstDensity : public testing::TestWithParam<Case> {};

TEST_P(AgainstDensity, MeansAndStandardErrorsAreConditional) {
  std::vector<double> series = test::Generate(96, [](std::size_t t) {
    return 20 + 0.1 * static_cast<double>(t) + test::Noise(t) + static_cast<double>(t % 12);
  });
  for (const std::size_t t : GetParam().missing) series[t] = MV::gMissingValue;
  const ArimaFit fit = test::FitSpec(series, test::SpecOf(GetParam().orders), GetParam().method);
  ASSERT_EQ(fit.status, FitStatus::kOk) << fit.message;
  const std::vector<double> estimates = test::EstimatesOf(fit);

  std::vector<double> extended = series;
  extended.resize(series.size() + kHorizon, MV::gMissingValue);
  const AMModelSpec& spec = test::ArimaStateOf(fit.model).GetAMModelSpec();
  const Design design(spec, {.series = extended});
  Eigen::VectorXd constant = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(design.Rows()));
  if (GetParam().orders.has_constant) constant.setConstant(estimates[0]);
  constant = design.Integrated(constant);
  const Arma arma = NoiseModel(spec, estimates);
  test::DenseModel dense;
  for (const double phi : arma.ar) dense.phi.push_back(-phi);
  dense.theta.insert(dense.theta.end(), arma.ma.begin(), arma.ma.end());
  dense.difference = design.Difference();
  dense.z = extended;
  dense.effects = Eigen::MatrixXd(constant.size(), 0);
  for (std::size_t row = 0; row < design.Rows(); ++row) {
    double& z = dense.z[design.First() + row];
    if (z != MV::gMissingValue) z -= constant[static_cast<Eigen::Index>(row)];
  }
  const test::DensePrediction expected = test::Predict(dense);

  const Forecasts forecasts = Forecast(fit.model, kHorizon);
  ASSERT_EQ(forecasts.value.size(), kHorizon);
  for (std::size_t h = 0; h < kHorizon; ++h) {
    const std::size_t row = design.Rows() - kHorizon + h;
    const double mean = expected.mean[row] + constant[static_cast<Eigen::Index>(row)];
    const double error = std::sqrt(expected.variance[row] * fit.summary.error_variance);
    EXPECT_NEAR(forecasts.value[h], mean, 1e-7 * error) << "step " << h + 1;
    EXPECT_NEAR(forecasts.std_error[h], error, 1e-8 * error) << "step " << h + 1;
  }
}

INSTANTIATE_TEST_SUITE_P(ArimaForecasts, AgainstDensity, testing::ValuesIn(Cases()),
                         [](const testing::TestParamInfo<Case>& each) {
                           return std::string(each.param.name);
                         });

}  // namespace
}  // namespace tsffit
