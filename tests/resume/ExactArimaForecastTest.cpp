// Forecasts of ARIMA models against the answer by definition, at the coefficients that the document
// tells: for maximum likelihood the conditional distribution of the values to come under the joint
// normal density of all that the data tell, for conditional least squares the recursion from the
// first case on. Neither looks at a state.

#include <cmath>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

#include "ArimaCases.h"
#include "ExactForecast.h"
#include "ReadArima.h"

namespace {

using test::ArimaCase;
using tsffit::ArimaMethod;

constexpr unsigned kHorizon = 24;
// Of standard errors and sums. Two matrices of the order of the series are solved with.
constexpr double kTolerance = 1e-9;

// What the fit covers: from the first observed case on.
test::ModelData DataOf(const ArimaCase& arimaCase, std::size_t first) {
  test::ModelData data;
  for (std::size_t t = first; t < arimaCase.series.size(); ++t) {
    const double value = arimaCase.series[t];
    data.series.push_back(value == MV::gMissingValue ? std::nan("") : value);
  }
  const auto futures = test::Futures(arimaCase, kHorizon);
  for (std::size_t i = 0; i < futures.size(); ++i) {
    const std::vector<double>& past = arimaCase.predictors[i];
    data.predictors.emplace_back(past.begin() + static_cast<std::ptrdiff_t>(first), past.end());
    data.predictors[i].insert(data.predictors[i].end(), futures[i].begin(), futures[i].end());
  }
  return data;
}

class ExactArimaForecast : public testing::TestWithParam<test::FittedCase> {};

TEST_P(ExactArimaForecast, IsThatOfTheCore) {
  const ArimaCase& data = GetParam().data;
  const tsffit::ArimaFit fit = test::Fit(data, GetParam().method);
  ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << fit.message;
  const test::ReadArima model = test::ReadDocument(test::DocumentOf(fit));
  const test::ModelData known = DataOf(data, model.first_period);
  ASSERT_EQ(static_cast<long>(known.series.size()), model.length);
  const test::ExactForecast exact = GetParam().method == ArimaMethod::kCls
                                        ? test::ForecastByConditionalErrors(model, known, kHorizon)
                                        : test::ForecastByDensity(model, known, kHorizon);

  EXPECT_EQ(fit.summary.residuals, exact.residuals);
  EXPECT_NEAR(fit.summary.sse, exact.sum_of_squares, kTolerance * exact.sum_of_squares);
  EXPECT_NEAR(fit.summary.log_likelihood, exact.log_likelihood,
              kTolerance * std::abs(exact.log_likelihood));
  const tsffit::Forecasts forecasts =
      tsffit::Forecast(fit.model, kHorizon, test::Futures(data, kHorizon));
  ASSERT_EQ(forecasts.value.size(), kHorizon);
  for (unsigned h = 0; h < kHorizon; ++h) {
    const double error = std::sqrt(model.error_variance * exact.relative_variance[h]);
    EXPECT_NEAR(forecasts.std_error[h], error, kTolerance * error) << h;
    const double z = test::Apply(model.transformation.function, forecasts.value[h]);
    EXPECT_NEAR(z, exact.z[h], kTolerance * error) << h;
  }
}

INSTANTIATE_TEST_SUITE_P(EveryFeatureAndMethod, ExactArimaForecast,
                         testing::ValuesIn(test::FittedCases()),
                         [](const auto& tested) { return test::NameOf(tested.param); });

}  // namespace
