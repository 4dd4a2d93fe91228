// An "ARIMAModel" element is enough to forecast from: its numbers are taken out of the text by an
// independent XML parser, and what docs/documents.md tells, and nothing else, goes on from them.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ArimaCases.h"
#include "GoOn.h"
#include "ReadArima.h"

namespace {

using tsffit::ArimaMethod;

constexpr unsigned kHorizon = 24;
// A document has 15 digits of every number: 5e-15 at worst. What is summed from many of them, and
// differences undone over two years, keep four or five digits less.
constexpr double kTolerance = 1e-9;

const char* Element(ArimaMethod method) {
  if (method == ArimaMethod::kMl) return "ARIMAMLState";
  return method == ArimaMethod::kMlTheta ? "ARIMAMLSpState" : "ARIMACLSState";
}

// A root below 0 has no square to go back to.
double Back(const std::string& function, double z) {
  return test::Undo(function, function == "squareRoot" ? std::max(z, 0.0) : z);
}

class ResumeArima : public testing::TestWithParam<test::FittedCase> {};

TEST_P(ResumeArima, GivesTheForecastsOfTheCore) {
  const tsffit::ArimaFit fit = test::Fit(GetParam().data, GetParam().method);
  ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << fit.message;
  const test::ReadArima read = test::ReadDocument(test::DocumentOf(fit));
  EXPECT_EQ(read.state.element, Element(GetParam().method));

  const auto futures = test::Futures(GetParam().data, kHorizon);
  const auto periods = test::GoOn(read, futures, kHorizon);
  const tsffit::Forecasts expected = tsffit::Forecast(fit.model, kHorizon, futures);
  ASSERT_EQ(expected.value.size(), kHorizon);
  for (unsigned h = 0; h < kHorizon; ++h) {
    const double error = expected.std_error[h];
    EXPECT_NEAR(std::sqrt(read.error_variance * periods[h].relative_variance), error,
                kTolerance * error)
        << h;
    const double value = Back(read.transformation.function, periods[h].z);
    EXPECT_NEAR(value, expected.value[h], kTolerance * std::max(std::abs(expected.value[h]), error))
        << h;
  }
}

// The last values of a series of the fit, on the modelled scale, NaN where one is missing.
test::List Last(const std::vector<double>& values, std::size_t count, const std::string& function) {
  test::List last;
  for (std::size_t t = values.size() - count; t < values.size(); ++t) {
    last.push_back(values[t] == MV::gMissingValue ? std::nan("")
                                                  : test::Apply(function, values[t]));
  }
  return last;
}

void ExpectSame(const test::List& found, const test::List& expected) {
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    EXPECT_EQ(std::isnan(found[i]), std::isnan(expected[i])) << i;
    if (std::isnan(expected[i])) continue;
    EXPECT_NEAR(found[i], expected[i], 1e-13 * std::max(1.0, std::abs(expected[i]))) << i;
  }
}

TEST_P(ResumeArima, HoldsTheLastValuesAndTheirForecasts) {
  const std::vector<double>& series = GetParam().data.series;
  const tsffit::ArimaFit fit = test::Fit(GetParam().data, GetParam().method);
  const test::ReadArima read = test::ReadDocument(test::DocumentOf(fit));
  const std::size_t m = test::Degree(read.transformation.differences);
  const std::size_t count = std::max<std::size_t>(m, 1);
  ExpectSame(read.state.z, Last(series, count, read.transformation.function));
  ExpectSame(read.state.predicted_z, Last(fit.fitted, count, read.transformation.function));
  EXPECT_EQ(read.first_period + static_cast<std::size_t>(read.length), series.size());
  for (std::size_t t = 0; t <= read.first_period; ++t) {
    EXPECT_EQ(series[t] == MV::gMissingValue, t < read.first_period) << t;
  }
}

TEST_P(ResumeArima, HoldsAsManyValuesAsForecastingNeeds) {
  const test::ReadArima read =
      test::ReadDocument(test::DocumentOf(test::Fit(GetParam().data, GetParam().method)));
  const std::size_t p = test::Degree(read.ar);
  const std::size_t q = test::Degree(read.ma);
  const std::size_t m = test::Degree(read.transformation.differences);
  for (const test::ReadPredictor& predictor : read.predictors) {
    EXPECT_EQ(predictor.values.size(), test::Degree(predictor.transformation.differences) +
                                           predictor.transformation.delay +
                                           test::Degree(predictor.numerator));
    EXPECT_EQ(predictor.outputs.size(), test::Degree(predictor.denominator));
  }
  const test::ReadState& state = read.state;
  if (state.element == "ARIMAMLState") {
    const bool withZ = m > 0 && std::any_of(state.z.begin(), state.z.end(),
                                            [](double z) { return std::isnan(z); });
    const std::size_t order = std::max(p, q + 1) + (withZ ? m : 0);
    EXPECT_EQ(state.vector.size(), order);
    EXPECT_EQ(state.omega.size(), order * (order + 1) / 2);
    return;
  }
  EXPECT_EQ(state.noise.size(), std::max(p, q));
  EXPECT_EQ(state.predicted_noise.size(), std::max(p, q));
  if (state.element != "ARIMAMLSpState") return;
  EXPECT_EQ(state.thetas.size(), q);
  EXPECT_EQ(state.nu.size(), q);
  std::size_t i = state.iterations - q;
  for (const test::List& row : state.thetas) {
    EXPECT_EQ(row.size(), i < std::max(p, q) ? i : q) << i;
    ++i;
  }
}

INSTANTIATE_TEST_SUITE_P(EveryFeatureAndMethod, ResumeArima, testing::ValuesIn(test::FittedCases()),
                         [](const auto& tested) { return test::NameOf(tested.param); });

}  // namespace
