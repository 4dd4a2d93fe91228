// Corners: a clear refusal or an honest result, never a NaN.

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include <tsfcore/tsfcore.h>

#include "core/support/TestSeries.h"
#include "kinds/SmoothingKind.h"
#include "support/FailingAllocation.h"

namespace {

using test::Fit;
using test::Generate;
using test::Noise;
using test::StateOf;
using tsffit::FitStatus;

constexpr int kKinds[] = {0, 1, 2, 3, 4, 5, 6};

void ExpectNumber(double value, const char* what) { EXPECT_FALSE(std::isnan(value)) << what; }

// Whatever the outcome, nothing in it is a NaN and a refusal says why.
void ExpectSound(const tsffit::SmoothingFit& fit) {
  if (fit.status != FitStatus::kOk) {
    EXPECT_FALSE(fit.message.empty());
    EXPECT_EQ(fit.message.find('\n'), std::string::npos);
    EXPECT_TRUE(fit.model.IsEmpty());
    return;
  }
  EXPECT_TRUE(fit.message.empty());
  const ESForecastState& state = StateOf(fit.model);
  for (const double value : state.GetParameterEstimates()) {
    EXPECT_GE(value, 0);
    EXPECT_LE(value, 1);
  }
  for (const double value : state.GetParameterStdErrors()) ExpectNumber(value, "standard error");
  ExpectNumber(state.GetSmState().level, "level");
  ExpectNumber(state.GetSmState().trend, "trend");
  for (const double value : state.GetSmState().season) ExpectNumber(value, "season");
  const EstimationInfo& info = fit.model.GetImp()->GetEstimationInfo();
  ExpectNumber(info.GetErrorVariance(), "error variance");
  for (int code = 0; code < BFSharedConst::kGOFStatCount; ++code) {
    ExpectNumber(info.GetGOFStat(static_cast<BFSharedConst::GOFStatType>(code)), "statistic");
  }
  double statistic = 0;
  double pValue = 0;
  unsigned long k = 0;
  unsigned long df = 0;
  info.GetLBStat(statistic, k, df, pValue);
  ExpectNumber(statistic, "Ljung-Box");
  ExpectNumber(pValue, "p value");
  for (const double value : fit.fitted) ExpectNumber(value, "fitted");
  const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 9);
  for (const auto* list :
       {&forecasts.value, &forecasts.std_error, &forecasts.lower, &forecasts.upper}) {
    EXPECT_EQ(list->size(), 9U);
    for (const double value : *list) ExpectNumber(value, "forecast");
  }
}

void ExpectSoundForEveryKind(const std::vector<double>& series) {
  for (const int kind : kKinds) {
    for (int function = 0; function < 3; ++function) {
      SCOPED_TRACE("kind " + std::to_string(kind) + ", transformation " + std::to_string(function));
      ExpectSound(Fit(series, kind, 4, function));
    }
  }
}

TEST(Corner, ConstantSeriesIsFittedExactlyWithoutWeight) {
  for (const double value : {0.1, 5.0, 1e9, 1e-6}) {
    const std::vector<double> series(40, value);
    for (const int kind : kKinds) {
      SCOPED_TRACE("kind " + std::to_string(kind));
      const auto fit = Fit(series, kind);
      ASSERT_EQ(fit.status, FitStatus::kOk);
      ExpectSound(fit);
      EXPECT_EQ(fit.summary.sse, 0);
      EXPECT_TRUE(fit.summary.converged);
      const double least = kind == ESModelSpec::kBrown ? 1e-3 : 0;
      for (const double weight : StateOf(fit.model).GetParameterEstimates())
        EXPECT_EQ(weight, least);
      for (const double error : StateOf(fit.model).GetParameterStdErrors()) {
        EXPECT_EQ(error, MV::gMissingValue);
      }
      EXPECT_EQ(fit.fitted, series);
      EXPECT_NEAR(tsffit::Forecast(fit.model, 3).value[2], value, 1e-12 * value);
      EXPECT_EQ(fit.model.GetGOFStat("LOGLK"), MV::gMissingValue);
      EXPECT_EQ(fit.model.GetGOFStat("RSQ"), MV::gMissingValue);
    }
  }
}

TEST(Corner, ConstantSeriesIsFittedExactlyUnderATransformationToo) {
  for (const int function : {TSTransformation::kLogarithm, TSTransformation::kSquareRoot}) {
    for (const double value : {0.1, 5.0, 1e9, 1e-6}) {
      const std::vector<double> series(40, value);
      for (const int kind : kKinds) {
        const auto fit = Fit(series, kind, 4, function);
        if (fit.status != FitStatus::kOk)
          continue;  // multiplicative seasons of a logarithm below 0
        SCOPED_TRACE("kind " + std::to_string(kind) + ", transformation " +
                     std::to_string(function));
        EXPECT_EQ(fit.fitted, series);
        EXPECT_EQ(fit.model.GetGOFStat("MSE"), 0);
        EXPECT_EQ(fit.model.GetGOFStat("NRMBIC"), MV::gMissingValue);
      }
    }
  }
}

TEST(Corner, ExactLineAndSeasonAreFittedExactly) {
  const auto line = Generate(50, [](std::size_t t) { return 3 + 0.7 * static_cast<double>(t); });
  const auto season = Generate(50, [](std::size_t t) { return 10 + static_cast<double>(t % 4); });
  const auto ratios = Generate(50, [](std::size_t t) {
    return (10 + 0.3 * static_cast<double>(t)) * static_cast<double>(1 + t % 4);
  });
  for (const int kind : {0, 1, 2, 3, 4}) EXPECT_EQ(Fit(line, kind).summary.sse, 0) << kind;
  for (const int kind : {0, 4, 5}) EXPECT_EQ(Fit(season, kind).summary.sse, 0) << kind;
  EXPECT_EQ(Fit(ratios, ESModelSpec::kMultiplicativeWinters).summary.sse, 0);
  EXPECT_NEAR(tsffit::Forecast(Fit(line, ESModelSpec::kBrown).model, 10).value[9], 3 + 0.7 * 59,
              1e-9);
}

TEST(Corner, ShortestSeries) {
  const auto series = Generate(10, [](std::size_t t) {
    return 20 + static_cast<double>(t) + test::Noise(t) + 3 * static_cast<double>(t % 4);
  });
  const auto first = [&](std::size_t n) {
    return std::vector<double>(series.begin(), series.begin() + static_cast<std::ptrdiff_t>(n));
  };
  for (const int kind : kKinds) {
    SCOPED_TRACE("kind " + std::to_string(kind));
    const bool seasonal = kind == 0 || kind == 4 || kind == 5;
    const std::size_t least = seasonal ? 10 : kind == ESModelSpec::kSimple ? 3 : 4;
    const auto fit = Fit(first(least), kind);
    EXPECT_EQ(fit.status, FitStatus::kOk);
    ExpectSound(fit);
    const auto refused = Fit(first(least - 1), kind);
    EXPECT_EQ(refused.status, FitStatus::kTooShort);
    ExpectSound(refused);
  }
}

TEST(Corner, ShortSeriesWithoutLjungBox) {
  const auto fit = Fit(Generate(18, test::Noise), ESModelSpec::kSimple);
  double statistic = 0;
  double pValue = 0;
  unsigned long k = 0;
  unsigned long df = 0;
  fit.model.GetLBStat(statistic, k, df, pValue);
  EXPECT_EQ(statistic, MV::gMissingValue);
}

TEST(Corner, EmptyAndAllMissingSeriesAreTooShort) {
  for (const int kind : kKinds) {
    EXPECT_EQ(Fit({}, kind).status, FitStatus::kTooShort);
    EXPECT_EQ(Fit(std::vector<double>(30, MV::gMissingValue), kind).status, FitStatus::kTooShort);
  }
}

TEST(Corner, SeasonLongerThanHalfTheSeriesIsTooShort) {
  const auto fit = Fit(Generate(40, test::Noise), ESModelSpec::kAdditiveWinters, 24);
  EXPECT_EQ(fit.status, FitStatus::kTooShort);
  EXPECT_EQ(fit.message, "the model needs 50 cases that are not missing, the series has 40");
}

TEST(Corner, SeasonLengthsThatAreNone) {
  const auto series = Generate(40, test::Noise);
  for (const unsigned length : {0U, 1U}) {
    EXPECT_EQ(Fit(series, ESModelSpec::kSimpleSeasonal, length).status, FitStatus::kBadOptions);
    EXPECT_EQ(Fit(series, ESModelSpec::kHolt, length).status, FitStatus::kOk);
  }
  EXPECT_EQ(Fit(series, ESModelSpec::kSimpleSeasonal, 4294967295U).status, FitStatus::kTooShort);
}

TEST(Corner, UnknownKindAndTransformation) {
  const auto series = Generate(40, test::Noise);
  EXPECT_EQ(Fit(series, 7).status, FitStatus::kBadOptions);
  EXPECT_EQ(Fit(series, -1).status, FitStatus::kBadOptions);
  EXPECT_EQ(Fit(series, 6, 1, 3).status, FitStatus::kBadOptions);
}

TEST(Corner, DomainErrorsNameTheCase) {
  auto series = Generate(40, [](std::size_t t) { return 20 + test::Noise(t); });
  series[7] = 0;
  series[9] = -1;
  const auto log = Fit(series, ESModelSpec::kSimple, 1, TSTransformation::kLogarithm);
  EXPECT_EQ(log.status, FitStatus::kNotPositive);
  EXPECT_EQ(log.bad_case, 7U);
  const auto root = Fit(series, ESModelSpec::kSimple, 1, TSTransformation::kSquareRoot);
  EXPECT_EQ(root.status, FitStatus::kNegative);
  EXPECT_EQ(root.bad_case, 9U);
  const auto ratios = Fit(series, ESModelSpec::kMultiplicativeWinters);
  EXPECT_EQ(ratios.status, FitStatus::kNotPositive);
  EXPECT_EQ(ratios.bad_case, 7U);
  EXPECT_EQ(Fit(series, ESModelSpec::kAdditiveWinters).status, FitStatus::kOk);
}

TEST(Corner, MultiplicativeSeasonsNeedPositiveTransformedValues) {
  auto series = Generate(40, [](std::size_t t) { return 20 + test::Noise(t); });
  series[3] = 0.5;
  const auto fit =
      Fit(series, ESModelSpec::kMultiplicativeWinters, 4, TSTransformation::kLogarithm);
  EXPECT_EQ(fit.status, FitStatus::kNotPositive);
  EXPECT_EQ(fit.bad_case, 3U);
}

TEST(Corner, ValuesThatAreNoNumbersNameTheCase) {
  for (const double bad :
       {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(), 1e301}) {
    auto series = Generate(40, test::Noise);
    series[5] = bad;
    for (const int kind : kKinds) {
      const auto fit = Fit(series, kind);
      if (kind == ESModelSpec::kMultiplicativeWinters) continue;  // negative values come first
      EXPECT_EQ(fit.status, FitStatus::kNotFinite);
      EXPECT_EQ(fit.bad_case, 5U);
    }
  }
}

TEST(Corner, SeasonPeriodThatIsAlwaysMissing) {
  auto series = Generate(60, test::Noise);
  for (std::size_t t = 1; t < series.size(); t += 4) series[t] = MV::gMissingValue;
  EXPECT_EQ(Fit(series, ESModelSpec::kSimpleSeasonal).status, FitStatus::kTooShort);
  EXPECT_EQ(Fit(series, ESModelSpec::kHolt).status, FitStatus::kOk);
}

TEST(Corner, SoundWhateverTheSeries) {
  const auto level = [](std::size_t t) { return 20 + test::Noise(t) + static_cast<double>(t % 4); };
  auto gap = Generate(90, level);
  std::fill(gap.begin() + 20, gap.begin() + 60, MV::gMissingValue);
  auto holes = Generate(90, level);
  for (std::size_t t = 1; t < holes.size(); t += 3) holes[t] = MV::gMissingValue;
  auto ends = Generate(60, level);
  for (std::size_t t = 0; t < 5; ++t) ends[t] = ends[59 - t] = MV::gMissingValue;
  const std::vector<std::vector<double>> all = {
      gap,
      holes,
      ends,
      Generate(60, [&](std::size_t t) { return 1e-6 * level(t); }),
      Generate(60, [&](std::size_t t) { return 1e9 * level(t); }),
      Generate(60, [&](std::size_t t) { return 1e298 * level(t); }),
      Generate(60, [&](std::size_t t) { return 1e-310 * level(t); }),
      Generate(60, [&](std::size_t t) { return t % 2 == 0 ? 1e300 : -1e300; }),
      Generate(60, [&](std::size_t t) { return 1e9 + 1e-3 * level(t); }),
      Generate(60, [&](std::size_t t) { return 1e12 + level(t); }),
      Generate(60, [](std::size_t t) { return static_cast<double>(t % 2); }),
      Generate(60, [](std::size_t t) { return test::Noise(t) > 0 ? 1.0 : 2.0; }),
      Generate(60, [](std::size_t t) { return t < 30 ? 1.0 : 2.0; }),
      Generate(60, [](std::size_t t) { return t == 30 ? 1e6 : 2.0; }),
      Generate(60, [](std::size_t t) { return std::exp(static_cast<double>(t)); }),
      Generate(60, [](std::size_t t) { return std::exp(10 * static_cast<double>(t)); }),
      Generate(60, [](std::size_t t) { return std::exp(-static_cast<double>(t)); }),
      Generate(60, [&](std::size_t t) { return t % 4 == 0 ? 1e-9 : level(t); }),
      Generate(60,
               [](std::size_t t) { return (t % 2 == 0 ? 1.0 : -1.0) * static_cast<double>(t); }),
      {1, 2, 4},
      {1, 2, 4, 3},
      {1, 2, 4, 3, 6},
      {1, 2, 4, 3, 6, 1, 2, 5, 3, 7}};
  for (std::size_t i = 0; i < all.size(); ++i) {
    SCOPED_TRACE("series " + std::to_string(i));
    ExpectSoundForEveryKind(all[i]);
  }
}

TEST(Corner, MemoryExhaustionPassesThroughAndLeavesNothing) {
  const auto series =
      Generate(20, [](std::size_t t) { return 20 + test::Noise(t) + static_cast<double>(t % 4); });
  for (const int kind : {ESModelSpec::kSimple, ESModelSpec::kMultiplicativeWinters}) {
    test::WithEveryAllocationFailing([&] {
      const tsffit::SmoothingFit fit = Fit(series, kind);
      const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 4);
    });
  }
}

TEST(Corner, LongSeriesAndLongSeasons) {
  const auto series = Generate(20000, [](std::size_t t) {
    return 100 + test::Noise(t) + 5 * std::sin(6.283185307 * static_cast<double>(t) / 12);
  });
  ExpectSound(Fit(series, ESModelSpec::kAdditiveWinters, 12));
  ExpectSound(Fit(series, ESModelSpec::kMultiplicativeWinters, 9000));
  ExpectSound(Fit(series, ESModelSpec::kSimpleSeasonal, 365));
}

// Derivatives are summed in blocks of 64 cases; at these lengths the last block is empty.
TEST(Corner, LengthsThatFillEveryBlockOfCasesAreFittedWithLongSeasons) {
  for (const std::size_t n : {64U, 128U, 192U, 256U, 320U, 640U}) {
    const std::vector<double> series = Generate(n, [](std::size_t t) {
      return 100 + 0.05 * static_cast<double>(t) + 10 * std::sin(0.13 * static_cast<double>(t)) +
             Noise(t);
    });
    for (unsigned season = 46; season <= 60; ++season) {
      for (const kinds::SmoothingKind& facts : kinds::kSmoothingKinds) {
        if (!facts.has_season()) continue;
        SCOPED_TRACE(std::to_string(n) + " cases, season of " + std::to_string(season) + ", kind " +
                     std::to_string(facts.kind));
        const tsffit::SmoothingFit fit = Fit(series, facts.kind, season);
        EXPECT_EQ(fit.status, n < 2 * season + 2 ? FitStatus::kTooShort : FitStatus::kOk);
        ExpectSound(fit);
      }
    }
  }
}

}  // namespace
