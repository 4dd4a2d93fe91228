// Recursion, final state, forecasts and their variances against runs of R's ets at fixed weights.
// tests/reference/ets_fixed.R made the table.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include <tsfcore/tsfcore.h>

#include "core/support/TestSeries.h"
#include "smoothing/Recursion.h"

namespace tsffit {
namespace {

struct Run {
  const char* name;
  const char* file;
  std::size_t cases;
  unsigned season_length;
};

void PrintTo(const Run& run, std::ostream* os) { *os << run.name; }

constexpr Run kRuns[] = {{"simple", "nile.csv", 100, 1},
                         {"holt", "nile.csv", 100, 1},
                         {"damped-trend", "lakehuron.csv", 98, 1},
                         {"brown", "nile.csv", 100, 1},
                         {"simple-seasonal", "ukgas.csv", 108, 4},
                         {"winters-additive", "airpassengers.csv", 139, 12},
                         {"winters-multiplicative", "airpassengers.csv", 139, 12}};

class AgainstEts : public testing::TestWithParam<Run> {
 protected:
  AgainstEts()
      : expected_(test::ReadReference("ets_fixed.csv").at(GetParam().name)),
        kind_(test::KindByName(GetParam().name)),
        // ets knows Brown's gains only as Holt's; our weight is 0.45 there.
        weights_(kind_ == ESModelSpec::kBrown ? std::vector<double>{0.45}
                                              : expected_.at("weights")) {}

  static Components FromRow(const std::vector<double>& row) {
    return {.level = row[0], .trend = row[1], .season = {row.begin() + 2, row.end()}};
  }

  ESForecastState::SmState FinalState() const {
    const auto& row = expected_.at("final");
    ESForecastState::SmState state;
    state.level = row[0];
    state.trend = row[1];
    if (kind_ == ESModelSpec::kBrown) state.level -= row[1] * (1 - 0.45) / 0.45;
    state.season.resize(row.size() - 2);
    std::copy(row.begin() + 2, row.end(), std::begin(state.season));
    if (state.season.size() > 0) state.phase = GetParam().cases % state.season.size();
    return state;
  }

  // The model as a fit would have left it, its one-step error variance 1.
  TSFModel Model() const {
    ESForecastState::Fields state;
    state.spec = ESModelSpec(ESModelSpec::ForKind(kind_, GetParam().season_length));
    state.estimates = std::valarray<double>(weights_.data(), weights_.size());
    state.smoothed = FinalState();
    EstimationInfo::Fields info;
    info.error_variance = 1;
    TSFModelImp::Fields fields;
    fields.state = std::make_unique<ESForecastState>(std::move(state));
    fields.info = EstimationInfo(info);
    return TSFModel(new TSFModelImp(std::move(fields)));
  }

  std::map<std::string, std::vector<double>> expected_;
  int kind_;
  std::vector<double> weights_;
};

TEST_P(AgainstEts, OneStepForecastsAndFinalStateAgree) {
  std::vector<double> series = test::DataColumn(GetParam().file);
  series.resize(GetParam().cases);
  const KindTraits traits = TraitsOf(kind_);
  Components components = FromRow(expected_.at("start"));
  std::vector<double> fitted;
  ForShape(traits, [&]<bool kTrend, Season kSeason>() {
    return Walk<kTrend, kSeason>(series, GainsOf(traits, weights_), components,
                                 [&](std::size_t, double forecast) { fitted.push_back(forecast); });
  });
  const auto& expected = expected_.at("fitted");
  ASSERT_EQ(fitted.size(), expected.size());
  for (std::size_t t = 0; t < fitted.size(); ++t) {
    EXPECT_NEAR(fitted[t], expected[t], 1e-9 * std::abs(expected[t])) << "case " << t;
  }
  const Components final = FromRow(expected_.at("final"));
  EXPECT_NEAR(components.level, final.level, 1e-9 * std::abs(final.level));
  EXPECT_NEAR(components.trend, final.trend, 1e-9 * std::abs(final.level));
  for (std::size_t j = 0; j < final.season.size(); ++j) {
    EXPECT_NEAR(components.season[j], final.season[j], 1e-9 * std::abs(final.level)) << j;
  }
}

TEST_P(AgainstEts, ForecastsFromTheStateAgree) {
  const auto& expected = expected_.at("forecast");
  const Forecasts forecasts = Forecast(Model(), 24);
  ASSERT_EQ(forecasts.value.size(), expected.size());
  for (std::size_t h = 0; h < expected.size(); ++h) {
    EXPECT_NEAR(forecasts.value[h], expected[h], 1e-9 * std::abs(expected[h])) << "step " << h + 1;
  }
}

TEST_P(AgainstEts, ForecastVariancesAgree) {
  // Those of the multiplicative model are simulated: 400,000 paths leave 0.22 % of sampling error.
  const double tolerance = kind_ == ESModelSpec::kMultiplicativeWinters ? 0.01 : 1e-9;
  const auto& expected = expected_.at("variance");
  const Forecasts forecasts = Forecast(Model(), 24);
  for (std::size_t h = 0; h < expected.size(); ++h) {
    const double variance = forecasts.std_error[h] * forecasts.std_error[h];
    EXPECT_NEAR(variance, expected[h], tolerance * expected[h]) << "step " << h + 1;
  }
}

std::string RunName(const testing::TestParamInfo<Run>& run) {
  std::string name = run.param.name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Smoothing, AgainstEts, testing::ValuesIn(kRuns), RunName);

}  // namespace
}  // namespace tsffit
