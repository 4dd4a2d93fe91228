// Forecasts from ARIMA states that were written down by hand: what does not fit together gives
// none.

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>

#include <tsfcore/tsfcore.h>
#include <tsffit/Arima.h>

namespace tsffit {
namespace {

const double kMissing = MV::gMissingValue;
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::uint32_t kLargest = 0xFFFFFFFF;

TSFModel ModelOf(std::unique_ptr<ForecastState> state) {
  TSFModelImp::Fields fields;
  fields.state = std::move(state);
  EstimationInfo::Fields info;
  info.error_variance = 4;
  fields.info = EstimationInfo(info);
  return TSFModel(new TSFModelImp(std::move(fields)));
}

class HandMade : public testing::Test {
 protected:
  ARMAForecastState::Common Common() const {
    ARMAForecastState::Common common = common_;
    common.spec = AMModelSpec(spec_);
    return common;
  }

  TSFModel Cls() const {
    return ModelOf(std::make_unique<ARMACLSForecastState>(ARMACLSForecastState::Fields{
        .common = Common(), .actual_n = {1, 2, 3}, .predicted_n = {1, 1, 1}}));
  }

  TSFModel Ml(std::size_t order) const {
    return ModelOf(std::make_unique<ARMAMLForecastState>(ARMAMLForecastState::Fields{
        .common = Common(),
        .final_omega = DSymMat(order, std::valarray<double>(0.0, order * (order + 1) / 2)),
        .final_state = std::valarray<double>(1.0, order)}));
  }

  TSFModel Theta(const std::vector<std::vector<double>>& thetas, const std::vector<double>& nus,
                 std::uint64_t count = 50) const {
    return ModelOf(std::make_unique<ARMAMLSpForecastState>(
        ARMAMLSpForecastState::Fields{.common = Common(),
                                      .actual_n = {1, 2, 3},
                                      .predicted_n = {1, 1, 1},
                                      .final_iteration_count = count,
                                      .final_thetas = thetas,
                                      .final_nu = nus}));
  }

  static std::vector<double> Values(const TSFModel& model,
                                    const std::vector<std::vector<double>>& future = {}) {
    return Forecast(model, 2, future).value;
  }

  static void ExpectNone(const TSFModel& model,
                         const std::vector<std::vector<double>>& future = {}) {
    const Forecasts forecasts = Forecast(model, 2, future);
    EXPECT_TRUE(forecasts.value.empty());
    EXPECT_TRUE(forecasts.std_error.empty());
    EXPECT_TRUE(forecasts.upper.empty());
  }

  AMModelSpec::Fields spec_;
  ARMAForecastState::Common common_{.estimates = std::valarray<double>(0.5, 8),
                                    .period = {.start_index = 0, .length = 100},
                                    .actual_z = {1, 2, 3},
                                    .predicted_z = {1, 2, 3}};
};

using Numbers = std::vector<double>;

TEST_F(HandMade, LagsBeyondWhatTheStateHoldsGiveNone) {
  spec_.ar = {{kLargest}, {}};
  ExpectNone(Cls());
  ExpectNone(Ml(2));
  ExpectNone(Theta({}, {}));
  spec_.ar = {};
  spec_.ma = {{1}, {kLargest}};
  ExpectNone(Cls());
  ExpectNone(Ml(2));
  ExpectNone(Theta({{0.5}}, {1}));
}

TEST_F(HandMade, DifferencesBeyondWhatTheStateHoldsGiveNone) {
  spec_.non_seasonal_diff = kLargest;
  ExpectNone(Cls());
  spec_.seasonal_diff = kLargest;
  spec_.season_length = kLargest;
  ExpectNone(Cls());
  ExpectNone(Ml(1));
}

TEST_F(HandMade, PredictorBeyondItsHistoryGivesNone) {
  const std::vector<Numbers> future = {{1, 2}};
  common_.x_history = {{.predictor = {1, 2}, .transfer_function = {1}}};
  for (const AMModelSpec::Predictor& each :
       {AMModelSpec::Predictor{.delay = kLargest},
        AMModelSpec::Predictor{.non_seasonal_diff = kLargest, .delay = kLargest},
        AMModelSpec::Predictor{.seasonal_diff = kLargest, .numerator = {{kLargest}, {kLargest}}},
        AMModelSpec::Predictor{.numerator = {{kLargest}, {}}},
        AMModelSpec::Predictor{.denominator = {{}, {kLargest}}}}) {
    spec_.season_length = kLargest;
    spec_.predictors = {each};
    ExpectNone(Cls(), future);
  }
}

TEST_F(HandMade, SeasonOfAnyLengthIsNothingWithoutSeasonalParts) {
  const Numbers plain = Values(Cls());
  ASSERT_EQ(plain.size(), 2U);
  for (const unsigned length : {0U, 0x80000000U, kLargest}) {
    spec_.season_length = length;
    EXPECT_EQ(Values(Cls()), plain) << length;
  }
}

TEST_F(HandMade, SeasonalOutlierWithoutASeasonGivesNone) {
  spec_.season_length = 0;
  spec_.outliers = TSOutlierSpecList({{TSOutlierSpec::kSeasonalAdditive, 3}});
  ExpectNone(Cls());
}

TEST_F(HandMade, OutlierFartherBackThanAnyFitGivesNone) {
  for (const int type : {TSOutlierSpec::kLevel, TSOutlierSpec::kInnovational}) {
    spec_.outliers = TSOutlierSpecList({{type, std::numeric_limits<long>::min()}});
    ExpectNone(Cls());
  }
}

TEST_F(HandMade, OutlierAheadOfTheForecastsDoesNothing) {
  const Numbers plain = Values(Cls());
  for (const long start : {102L, std::numeric_limits<long>::max()}) {
    for (const int type : {TSOutlierSpec::kTrend, TSOutlierSpec::kInnovational}) {
      spec_.outliers = TSOutlierSpecList({{type, start}});
      EXPECT_EQ(Values(Cls()), plain) << type << " at " << start;
    }
  }
}

// 105 and 106 cases after it: psi_k = 0.5^k, and a size of 0.5 of 2^105.
TEST_F(HandMade, InnovationalOutlierFromBeforeTheFitGoesOn) {
  spec_.ar = {{1}, {}};
  const Numbers plain = Values(Cls());
  common_.estimates[1] = std::ldexp(1.0, 105);
  spec_.outliers = TSOutlierSpecList({{TSOutlierSpec::kInnovational, -5}});
  const Numbers moved = Values(Cls());
  ASSERT_EQ(moved.size(), 2U);
  EXPECT_NEAR(moved[0] - plain[0], 1, 1e-12);
  EXPECT_NEAR(moved[1] - plain[1], 0.5, 1e-12);
}

TEST_F(HandMade, PeriodsThatNoFitHasGiveNone) {
  constexpr auto kMost = std::numeric_limits<std::uint64_t>::max();
  spec_.outliers = TSOutlierSpecList({{TSOutlierSpec::kInnovational, 3}});
  for (const std::uint64_t length : {kMost, std::uint64_t{1} << 62, std::uint64_t{1} << 32}) {
    common_.period = {.start_index = 0, .length = length};
    ExpectNone(Cls());
  }
  for (const std::uint64_t deficit :
       {kMost, kMost - 1, std::uint64_t{1} << 62, std::uint64_t{101}}) {
    common_.period = {.start_index = 0, .length = 100, .period_deficit = deficit};
    ExpectNone(Cls());
  }
}

TEST_F(HandMade, PeriodDeficitIsPassedOver) {
  spec_.ar = {{1}, {}};
  common_.period.period_deficit = 2;
  EXPECT_EQ(Values(Cls()), (Numbers{3.0 / 8, 3.0 / 16}));
}

TEST_F(HandMade, EstimatesThatAreNoNumbersGiveNoneAndMissingOnesAreZero) {
  spec_.ar = {{1}, {}};
  for (const double wrong : {kNaN, kInf, -kInf}) {
    common_.estimates[0] = wrong;
    ExpectNone(Cls());
  }
  common_.estimates[0] = kMissing;
  EXPECT_EQ(Values(Cls()), (Numbers{0, 0}));
  common_.estimates = {};
  ExpectNone(Cls());
}

TEST_F(HandMade, LastValuesThatAreNoNumbersGiveNone) {
  spec_.non_seasonal_diff = 1;
  for (const double wrong : {kNaN, kInf, kMissing}) {
    common_.actual_z = {wrong};
    ExpectNone(Cls());
    ExpectNone(Ml(1));
  }
  common_.actual_z = {};
  ExpectNone(Cls());
  ExpectNone(Ml(1));
}

TEST_F(HandMade, StateVectorOfAnotherLengthGivesNone) {
  spec_.ma = {{1}, {}};
  ExpectNone(Ml(0));
  ExpectNone(Ml(1));
  ExpectNone(Ml(3));
  EXPECT_EQ(Values(Ml(2)), (Numbers{1, 0}));
}

// theta is 0.5 and the latest error 2.
TEST_F(HandMade, ThetaRowsThatAreNoNumbersGiveNone) {
  spec_.ma = {{1}, {}};
  for (const double wrong : {kNaN, kInf, kMissing}) {
    ExpectNone(Theta({{wrong}}, {1}));
    ExpectNone(Theta({{-0.5}}, {wrong}));
  }
  ExpectNone(Theta({{-0.5}}, {0}));
  ExpectNone(Theta({{-0.5}}, {-1}));
  EXPECT_EQ(Values(Theta({{-0.5}}, {1})), (Numbers{-1, 0}));
}

TEST_F(HandMade, ThetaStateTakesTheLastOfItsRowsAndVariances) {
  spec_.ma = {{1}, {}};
  const Numbers expected = Values(Theta({{-0.5}}, {1}));
  EXPECT_EQ(Values(Theta({{kNaN}, {0.1}, {-0.5}}, {1})), expected);
  EXPECT_EQ(Values(Theta({{-0.5}}, {kMissing, 9, 1})), expected);
  EXPECT_EQ(Forecast(Theta({{-0.5}}, {kMissing, 9, 1}), 2).std_error,
            Forecast(Theta({{-0.5}}, {1}), 2).std_error);
}

TEST_F(HandMade, MoreIterationsThanPeriodsThereAreGiveNone) {
  spec_.ma = {{1}, {}};
  constexpr auto kMost = std::numeric_limits<std::uint64_t>::max();
  ExpectNone(Theta({{-0.5}}, {1}, kMost));
  ExpectNone(Theta({{-0.5}}, {1}, kMost - 1));
}

TEST_F(HandMade, FuturePredictorsMayStandInBraces) {
  spec_.has_constant = true;  // every estimate is 0.5
  EXPECT_EQ(Forecast(Cls(), 2, {}).value, (Numbers{0.5, 0.5}));
  spec_.predictors.resize(1);
  common_.x_history.resize(1);
  EXPECT_EQ(Forecast(Cls(), 2, {{1, 3}}).value, (Numbers{1, 2}));
}

// The normal quantile of 1 - 2^-54 is 8.2924, the standard error 2.
TEST_F(HandMade, LimitsHoldUpToTheLastConfidenceBelowOne) {
  const Forecasts forecasts = Forecast(Cls(), 1, std::nextafter(1.0, 0.0));
  ASSERT_EQ(forecasts.upper.size(), 1U);
  EXPECT_NEAR(forecasts.upper[0], 2 * 8.2924, 2e-4);
}

}  // namespace
}  // namespace tsffit
