// An "ARIMAModel" element is enough to forecast from: its numbers are taken out of the text by an
// independent XML parser, and what docs/documents.md tells, and nothing else, goes on from them.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

#include "ArimaCases.h"
#include "GoOn.h"
#include "ReadArima.h"

namespace {

using test::ArimaCase;
using tsffit::ArimaMethod;

constexpr unsigned kHorizon = 24;
// A document has 15 digits of every number: 5e-15 at worst. What is summed from many of them, and
// differences undone over two years, keep four or five digits less.
constexpr double kTolerance = 1e-9;

struct Case {
  ArimaCase data;
  ArimaMethod method;
};

std::string NameOf(const Case& one) {
  constexpr const char* kMethods[] = {"Ml", "MlTheta", "Cls"};
  return one.data.name + "By" + kMethods[static_cast<int>(one.method)];
}

void PrintTo(const Case& one, std::ostream* out) { *out << NameOf(one); }

const char* Element(ArimaMethod method) {
  if (method == ArimaMethod::kMl) return "ARIMAMLState";
  return method == ArimaMethod::kMlTheta ? "ARIMAMLSpState" : "ARIMACLSState";
}

// A root below 0 has no square to go back to.
double Back(const std::string& function, double z) {
  return test::Undo(function, function == "squareRoot" ? std::max(z, 0.0) : z);
}

class ResumeArima : public testing::TestWithParam<Case> {};

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

std::vector<Case> AllCases() {
  std::vector<Case> cases;
  for (const ArimaCase& data : test::ArimaCases()) {
    cases.push_back({data, ArimaMethod::kMl});
    if (test::HasGaps(data)) continue;
    cases.push_back({data, ArimaMethod::kMlTheta});
    cases.push_back({data, ArimaMethod::kCls});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(EveryFeatureAndMethod, ResumeArima, testing::ValuesIn(AllCases()),
                         [](const auto& tested) { return NameOf(tested.param); });

}  // namespace
