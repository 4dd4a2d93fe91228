// What a fit delivers: weights, standard errors, state, record, and its invariances.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <thread>

#include <tsfcore/tsfcore.h>

#include "core/support/TestSeries.h"

namespace {

using test::Fit;
using test::StateOf;

// tests/reference/std_errors.R: another program's minimiser and numerical Hessian.
TEST(FitWeights, AgreeWithRTogetherWithTheirStandardErrors) {
  for (const auto& row : test::ReadRows("reference/std_errors.csv")) {
    const auto fit = Fit(test::DataColumn(row[0], row[1]), test::KindByName(row[2]),
                         static_cast<unsigned>(std::stoul(row[3])));
    const auto weights = test::Numbers(row[4]);
    const auto errors = test::Numbers(row[5]);
    const ESForecastState& state = StateOf(fit.model);
    ASSERT_EQ(state.GetParameterEstimates().size(), weights.size());
    for (std::size_t i = 0; i < weights.size(); ++i) {
      EXPECT_NEAR(state.GetParameterEstimates()[i], weights[i], 1e-4 * weights[i]) << row[0];
      EXPECT_NEAR(state.GetParameterStdErrors()[i], errors[i], 1e-3 * std::abs(errors[i]))
          << row[0];
    }
  }
}

TEST(FitWeights, OnABoundHaveNoStandardError) {
  const auto fit = Fit(test::DataColumn("wwwusage.csv"), ESModelSpec::kSimple);
  EXPECT_EQ(StateOf(fit.model).GetParameterEstimates()[0], 1);
  EXPECT_EQ(StateOf(fit.model).GetParameterStdErrors()[0], MV::gMissingValue);
}

TEST(FitWeights, BrownKeepsAwayFromZero) {
  const auto series = test::Generate(
      60, [](std::size_t t) { return 3 + 0.5 * static_cast<double>(t) + test::Noise(t); });
  const auto fit = Fit(series, ESModelSpec::kBrown);
  EXPECT_GE(StateOf(fit.model).GetParameterEstimates()[0], 1e-3);
}

TEST(FitRecord, CountsCasesAndWeights) {
  const auto fit =
      Fit(test::DataColumn("airpassengers.csv"), ESModelSpec::kMultiplicativeWinters, 12);
  const EstimationInfo& info = fit.model.GetImp()->GetEstimationInfo();
  EXPECT_EQ(info.GetSpan().start, 0U);
  EXPECT_EQ(info.GetSpan().length, 144U);
  EXPECT_EQ(info.GetDegreesOfFreedom(), 141U);
  EXPECT_DOUBLE_EQ(info.GetErrorVariance(), fit.summary.sse / 141);
  EXPECT_TRUE(fit.summary.converged);
  EXPECT_EQ(fit.model.GetImp()->GetHistoryData().size(), 144U);
}

TEST(FitRecord, MissingCasesDoNotCount) {
  const auto fit = Fit(test::DataColumn("presidents.csv"), ESModelSpec::kSimple);
  const EstimationInfo& info = fit.model.GetImp()->GetEstimationInfo();
  // The first case is missing: the fit starts at the second. Five more are missing after it.
  EXPECT_EQ(info.GetSpan().start, 1U);
  EXPECT_EQ(info.GetSpan().length, 119U);
  EXPECT_EQ(info.GetDegreesOfFreedom(), 113U);
  EXPECT_EQ(fit.model.GetImp()->GetHistoryData().size(), 120U);
  ASSERT_EQ(fit.fitted.size(), 120U);
  EXPECT_EQ(fit.fitted[0], MV::gMissingValue);
  EXPECT_NE(fit.fitted[1], MV::gMissingValue);
}

TEST(FitRecord, ResidualsAreThoseOfTheFittedValues) {
  const auto series = test::DataColumn("nile.csv");
  const auto fit = Fit(series, ESModelSpec::kHolt);
  double sse = 0;
  for (std::size_t t = 0; t < series.size(); ++t) sse += std::pow(series[t] - fit.fitted[t], 2);
  EXPECT_NEAR(sse, fit.summary.sse, 1e-9 * sse);
}

TEST(FitState, SeasonIsNormalised) {
  const auto series = test::DataColumn("airpassengers.csv");
  const auto additive = Fit(series, ESModelSpec::kAdditiveWinters, 12);
  const auto ratios = Fit(series, ESModelSpec::kMultiplicativeWinters, 12);
  EXPECT_NEAR(StateOf(additive.model).GetSmState().season.sum(), 0, 1e-9);
  EXPECT_NEAR(StateOf(ratios.model).GetSmState().season.sum(), 12, 1e-12);
}

TEST(FitState, PhaseIsThePositionOfTheFirstForecast) {
  auto series = test::Generate(42, [](std::size_t t) {
    return 100 + 10 * static_cast<double>(t % 4) + 0.1 * test::Noise(t);
  });
  const auto fit = Fit(series, ESModelSpec::kSimpleSeasonal);
  const auto& state = StateOf(fit.model).GetSmState();
  EXPECT_EQ(state.phase, 2U);  // 42 mod 4
  // The positions rise by 10 each from the first case's on.
  EXPECT_NEAR(state.season[3] - state.season[0], 30, 1);
  EXPECT_NEAR(tsffit::Forecast(fit.model, 1).value[0], 120, 1);
}

TEST(FitState, LeadingMissingCasesOnlyMoveTheSpan) {
  const auto series = test::DataColumn("ukgas.csv");
  std::vector<double> later(7, MV::gMissingValue);
  later.insert(later.end(), series.begin(), series.end());
  const auto plain = Fit(series, ESModelSpec::kAdditiveWinters);
  const auto moved = Fit(later, ESModelSpec::kAdditiveWinters);
  EXPECT_EQ(moved.model.GetImp()->GetEstimationInfo().GetSpan().start, 7U);
  EXPECT_EQ(moved.model.GetImp()->GetEstimationInfo().GetSpan().length, series.size());
  EXPECT_EQ(StateOf(moved.model).GetSmState().level, StateOf(plain.model).GetSmState().level);
  EXPECT_EQ(StateOf(moved.model).GetSmState().phase, StateOf(plain.model).GetSmState().phase);
  EXPECT_EQ(tsffit::Forecast(moved.model, 9).value, tsffit::Forecast(plain.model, 9).value);
}

TEST(FitState, TrailingMissingCasesPushTheForecastOn) {
  const auto series = test::DataColumn("ukgas.csv");
  auto longer = series;
  longer.resize(series.size() + 3, MV::gMissingValue);
  for (int kind = 0; kind < 7; ++kind) {
    const auto plain = tsffit::Forecast(Fit(series, kind).model, 9);
    const auto pushed = tsffit::Forecast(Fit(longer, kind).model, 6);
    for (std::size_t h = 0; h < 6; ++h) {
      EXPECT_NEAR(pushed.value[h], plain.value[h + 3], 1e-5 * std::abs(plain.value[h + 3]))
          << "kind " << kind << ", step " << h + 1;
    }
  }
}

TEST(FitInvariance, UnitOfTheSeriesDoesNotMatter) {
  const auto series = test::DataColumn("ukgas.csv");
  for (const double unit : {1e-9, 1e-6, 1e6, 1e200}) {
    auto scaled = series;
    for (double& y : scaled) y *= unit;
    for (int kind = 0; kind < 7; ++kind) {
      const auto plain = Fit(series, kind);
      const auto other = Fit(scaled, kind);
      ASSERT_EQ(other.status, tsffit::FitStatus::kOk) << other.message;
      for (std::size_t w = 0; w < StateOf(plain.model).GetParameterEstimates().size(); ++w) {
        EXPECT_NEAR(StateOf(other.model).GetParameterEstimates()[w],
                    StateOf(plain.model).GetParameterEstimates()[w], 1e-5)
            << "kind " << kind << ", unit " << unit;
      }
      const double expected = tsffit::Forecast(plain.model, 5).value[4] * unit;
      EXPECT_NEAR(tsffit::Forecast(other.model, 5).value[4], expected, 1e-5 * std::abs(expected));
    }
  }
}

TEST(FitInvariance, AdditiveKindsShiftWithTheSeries) {
  const auto series = test::DataColumn("nottem.csv");
  auto shifted = series;
  for (double& y : shifted) y += 1e6;
  for (const int kind : {0, 1, 2, 3, 5, 6}) {
    const auto plain = Fit(series, kind, 12);
    const auto other = Fit(shifted, kind, 12);
    EXPECT_NEAR(other.summary.sse, plain.summary.sse, 1e-6 * plain.summary.sse) << "kind " << kind;
  }
}

TEST(FitInvariance, EveryThreadGetsTheSameBytes) {
  const auto series = test::DataColumn("airpassengers.csv");
  const auto once = Fit(series, ESModelSpec::kMultiplicativeWinters, 12);
  std::vector<tsffit::SmoothingFit> fits(4);
  std::vector<std::thread> threads;
  threads.reserve(fits.size());
  for (auto& fit : fits) {
    threads.emplace_back([&] { fit = Fit(series, ESModelSpec::kMultiplicativeWinters, 12); });
  }
  for (auto& thread : threads) thread.join();
  for (const auto& fit : fits) {
    EXPECT_EQ(fit.fitted, once.fitted);
    EXPECT_EQ(StateOf(fit.model).GetSmState().level, StateOf(once.model).GetSmState().level);
  }
}

TEST(FitInvariance, RicherKindFitsNoWorse) {
  for (const char* file :
       {"nile.csv", "lakehuron.csv", "lynx.csv", "bjsales.csv", "wwwusage.csv"}) {
    const std::string column = std::string(file) == "bjsales.csv" ? "sales" : "value";
    const auto series = test::DataColumn(file, column);
    const double simple = Fit(series, ESModelSpec::kSimple).summary.sse;
    const double holt = Fit(series, ESModelSpec::kHolt).summary.sse;
    const double damped = Fit(series, ESModelSpec::kDampedTrend).summary.sse;
    const double brown = Fit(series, ESModelSpec::kBrown).summary.sse;
    EXPECT_LE(holt, simple * (1 + 1e-6)) << file;
    EXPECT_LE(damped, holt * (1 + 1e-6)) << file;
    EXPECT_LE(holt, brown * (1 + 1e-6)) << file;
  }
}

// A multiplicative season of ones is no season; the additive model of the logarithms is another
// model, but the transformation is what makes it so.
TEST(FitTransformation, FitsTheTransformedSeries) {
  const auto series = test::DataColumn("airpassengers.csv");
  auto logarithms = series;
  for (double& y : logarithms) y = std::log(y);
  const auto direct = Fit(logarithms, ESModelSpec::kAdditiveWinters, 12);
  const auto through = Fit(series, ESModelSpec::kAdditiveWinters, 12, TSTransformation::kLogarithm);
  EXPECT_EQ(through.summary.sse, direct.summary.sse);
  EXPECT_EQ(StateOf(through.model).GetSmState().level, StateOf(direct.model).GetSmState().level);
  EXPECT_EQ(through.fitted[20], std::exp(direct.fitted[20]));
  EXPECT_EQ(through.model.GetImp()->GetEstimationInfo().GetErrorVariance(),
            direct.model.GetImp()->GetEstimationInfo().GetErrorVariance());
}

}  // namespace
