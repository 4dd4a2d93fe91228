// What an ARIMA fit delivers against the numbers of other programs: tests/reference/arima_fits.csv
// and arima_forecasts.csv.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include "arima/model/Design.h"
#include "arima/model/Effects.h"
#include "core/support/ArimaSeries.h"
#include "core/support/DenseLikelihood.h"
#include "core/support/TestSeries.h"
#include "series/Transform.h"

namespace tsffit {
namespace {

struct ReferenceFit {
  double n = 0;
  double k = 0;
  double sum_of_squares = 0;
  double log_likelihood = 0;
  std::vector<double> coefficients;
  std::vector<double> std_errors;
};

// By model and method, "ml" or "cls".
std::map<std::string, std::map<std::string, ReferenceFit>> ReferenceFits() {
  std::map<std::string, std::map<std::string, ReferenceFit>> fits;
  for (const auto& row : test::ReadRows("reference/arima_fits.csv")) {
    if (row[2] != "dense") continue;
    ReferenceFit& fit = fits[row[0]][row[1]];
    const double value = std::stod(row[5]);
    if (row[3] == "n") fit.n = value;
    if (row[3] == "k") fit.k = value;
    if (row[3] == "sum_of_squares") fit.sum_of_squares = value;
    if (row[3] == "log_likelihood") fit.log_likelihood = value;
    if (row[3] == "coefficient") fit.coefficients.push_back(value);
    if (row[3] == "std_error") fit.std_errors.push_back(value);
  }
  return fits;
}

struct ReferenceForecast {
  double value = 0;
  double std_error = 0;  // with the error variance that the core reports
};

std::map<std::string, std::map<std::string, std::vector<ReferenceForecast>>> ReferenceForecasts() {
  std::map<std::string, std::map<std::string, std::vector<ReferenceForecast>>> forecasts;
  for (const auto& row : test::ReadRows("reference/arima_forecasts.csv")) {
    const double n = std::stod(row[7]);
    const double k = std::stod(row[8]);
    const double variance = std::stod(row[6]) * n / (n - k);
    forecasts[row[0]][row[1]].push_back(
        {.value = std::stod(row[3]), .std_error = std::stod(row[4]) * std::sqrt(variance)});
  }
  return forecasts;
}

// The exact likelihood of the estimates by the definition of the density; only the effects'
// columns are the core's.
double DensityAt(const test::ArimaModel& model, const ArimaFit& fit) {
  const std::vector<double> estimates = test::EstimatesOf(fit);
  const AMModelSpec& spec = test::ArimaStateOf(fit.model).GetAMModelSpec();
  const std::size_t first = test::ArimaStateOf(fit.model).GetPeriodRecord().start_index;
  ArimaData data;
  for (std::size_t t = first; t < model.series.size(); ++t) {
    const double y = model.series[t];
    const int function = spec.GetYTransformSpec().GetFunctionType();
    data.series.push_back(y == MV::gMissingValue ? y : Transformed(function, y));
  }
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    data.predictors.push_back(model.predictors[i]);
    for (double& x : data.predictors.back()) {
      x = Transformed(spec.GetXTransformSpec(i).GetFunctionType(), x);
    }
  }
  const Design design(spec, data);
  Eigen::VectorXd effect = Eigen::VectorXd::Zero(static_cast<Eigen::Index>(design.Rows()));
  const Eigen::MatrixXd columns = design.Effects(estimates);
  for (std::size_t j = 0; j < design.LinearPositions().size(); ++j) {
    effect += estimates[design.LinearPositions()[j]] * columns.col(static_cast<Eigen::Index>(j));
  }
  const Arma arma = NoiseModel(spec, estimates);
  test::DenseModel dense;
  for (const double phi : arma.ar) dense.phi.push_back(-phi);
  dense.theta.insert(dense.theta.end(), arma.ma.begin(), arma.ma.end());
  dense.difference = design.Difference();
  dense.z = data.series;
  dense.effects = Eigen::MatrixXd(effect.size(), 0);
  const Eigen::VectorXd sum = design.Integrated(effect);
  for (std::size_t row = 0; row < design.Rows(); ++row) {
    double& z = dense.z[design.First() + row];
    if (z != MV::gMissingValue) z -= sum[static_cast<Eigen::Index>(row)];
  }
  return test::Evaluate(dense).log_likelihood;
}

struct FitCase {
  test::ArimaModel model;
  ArimaMethod method = ArimaMethod::kMl;
  std::string method_name;
  // The name of the method in the tables.
  std::string Row() const { return method == ArimaMethod::kCls ? "cls" : "ml"; }
};

std::vector<FitCase> FitCases() {
  std::vector<FitCase> cases;
  for (const test::ArimaModel& model : test::ArimaModels()) {
    cases.push_back({model, ArimaMethod::kMl, "ml"});
    const auto missing = std::count(model.series.begin(), model.series.end(), MV::gMissingValue);
    if (missing > 0) continue;  // the other methods know none
    cases.push_back({model, ArimaMethod::kMlTheta, "ml_theta"});
    cases.push_back({model, ArimaMethod::kCls, "cls"});
  }
  return cases;
}

class AgainstReference : public testing::TestWithParam<FitCase> {
 protected:
  AgainstReference()
      : fit_(test::FitSpec(GetParam().model.series, GetParam().model.spec, GetParam().method,
                           GetParam().model.predictors)),
        expected_(ReferenceFits().at(GetParam().model.name).at(GetParam().Row())) {}

  void SetUp() override { ASSERT_EQ(fit_.status, FitStatus::kOk) << fit_.message; }

  ArimaFit fit_;
  ReferenceFit expected_;
};

TEST_P(AgainstReference, CoefficientsAndStandardErrorsAgree) {
  const std::vector<double> estimates = test::EstimatesOf(fit_);
  const std::vector<double> errors = test::StdErrorsOf(fit_);
  ASSERT_EQ(estimates.size(), expected_.coefficients.size());
  for (std::size_t i = 0; i < estimates.size(); ++i) {
    EXPECT_NEAR(estimates[i], expected_.coefficients[i], 0.02 * expected_.std_errors[i]) << i;
    EXPECT_NEAR(errors[i], expected_.std_errors[i], 0.02 * expected_.std_errors[i]) << i;
  }
}

TEST_P(AgainstReference, ObjectiveIsNoWorse) {
  EXPECT_EQ(static_cast<double>(fit_.summary.residuals), expected_.n);
  EXPECT_EQ(fit_.summary.estimated, expected_.k);
  EXPECT_LE(fit_.summary.sse, 1.02 * expected_.sum_of_squares);
  EXPECT_NEAR(fit_.summary.error_variance, expected_.sum_of_squares / (expected_.n - expected_.k),
              1e-3 * fit_.summary.error_variance);
  EXPECT_TRUE(fit_.summary.converged);
  if (GetParam().method == ArimaMethod::kCls) return;
  EXPECT_GE(fit_.summary.log_likelihood, expected_.log_likelihood - 0.01);
  // Above the maximum only by rounding: no other function is maximised.
  EXPECT_LE(fit_.summary.log_likelihood, expected_.log_likelihood + 1e-6);
}

TEST_P(AgainstReference, LogLikelihoodIsThatOfTheEstimates) {
  if (GetParam().method == ArimaMethod::kCls) {
    // White noise at its largest likelihood.
    const double n = expected_.n;
    const double pi = std::acos(-1.0);
    EXPECT_NEAR(fit_.summary.log_likelihood, -n / 2 * (std::log(2 * pi * fit_.summary.sse / n) + 1),
                1e-8 * std::abs(fit_.summary.log_likelihood));
    return;
  }
  EXPECT_NEAR(fit_.summary.log_likelihood, DensityAt(GetParam().model, fit_),
              1e-8 * std::abs(fit_.summary.log_likelihood));
}

TEST_P(AgainstReference, ForecastsAgree) {
  const auto expected = ReferenceForecasts().at(GetParam().model.name).at(GetParam().Row());
  const Forecasts forecasts = Forecast(fit_.model, 24, GetParam().model.future);
  ASSERT_EQ(forecasts.value.size(), 24U);
  const int function = GetParam().model.spec.y_transform.GetFunctionType();
  for (std::size_t h = 0; h < 24; ++h) {
    const double modelled = Transformed(function, forecasts.value[h]);
    EXPECT_NEAR(modelled, expected[h].value, 0.02 * expected[h].std_error) << "step " << h + 1;
    EXPECT_NEAR(forecasts.std_error[h], expected[h].std_error, 0.01 * expected[h].std_error)
        << "step " << h + 1;
    EXPECT_NEAR(Transformed(function, forecasts.upper[h]),
                modelled + 1.959964 * forecasts.std_error[h], 1e-6 * forecasts.std_error[h]);
    EXPECT_NEAR(Transformed(function, forecasts.lower[h]),
                modelled - 1.959964 * forecasts.std_error[h], 1e-6 * forecasts.std_error[h]);
  }
}

TEST_P(AgainstReference, IsSound) { test::ExpectSound(fit_, GetParam().model.future); }

std::string FitName(const testing::TestParamInfo<FitCase>& each) {
  std::string name = each.param.model.name + '_' + each.param.method_name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Arima, AgainstReference, testing::ValuesIn(FitCases()), FitName);

// Both exact methods search the same function.
TEST(ArimaMethods, BothExactOnesReachTheSameLikelihood) {
  for (const test::ArimaModel& model : test::ArimaModels()) {
    const ArimaFit ml = test::FitSpec(model.series, model.spec, ArimaMethod::kMl, model.predictors);
    const ArimaFit theta =
        test::FitSpec(model.series, model.spec, ArimaMethod::kMlTheta, model.predictors);
    if (theta.status == FitStatus::kMissing) continue;
    EXPECT_NEAR(ml.summary.log_likelihood, theta.summary.log_likelihood,
                1e-8 * std::abs(ml.summary.log_likelihood))
        << model.name;
  }
}

}  // namespace
}  // namespace tsffit
