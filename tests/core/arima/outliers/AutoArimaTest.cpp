// The models found against those of R's auto.arima, tests/reference/auto_arima.csv.

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <tsfcore/tsfcore.h>
#include <tsffit/AutoArima.h>

#include "core/support/ArimaSeries.h"
#include "core/support/TestSeries.h"

namespace {

using tsffit::ArimaMethod;
using tsffit::AutoArimaFit;
using tsffit::AutoArimaOptions;
using tsffit::FitAutoArima;
using tsffit::FitStatus;

// What R found for one series.
struct Reference {
  std::string series;
  std::string column;
  std::string search;  // "stepwise" or "full"
  unsigned season_length = 1;
  unsigned d = 0;
  unsigned seasonal_d = 0;
  double aicc = 0;

  friend std::ostream& operator<<(std::ostream& out, const Reference& r) {
    return out << r.series << ':' << r.column << ' ' << r.search;
  }
};

std::vector<Reference> References(const std::string& search) {
  const auto number = [](const std::string& text) {
    return static_cast<unsigned>(std::stoul(text));
  };
  std::vector<Reference> references;
  for (const auto& row : test::ReadRows("reference/auto_arima.csv")) {
    if (row[3] != search) continue;
    references.push_back({.series = row[0],
                          .column = row[1],
                          .search = row[3],
                          .season_length = number(row[2]),
                          .d = number(row[5]),
                          .seasonal_d = number(row[8]),
                          .aicc = std::stod(row[17] == "NA" ? row[15] : row[17])});
  }
  return references;
}

std::vector<double> SeriesOf(const Reference& reference) {
  return test::DataColumn(reference.series + ".csv", reference.column);
}

struct Found {
  unsigned p = 0;
  unsigned d = 0;
  unsigned q = 0;
  unsigned P = 0;
  unsigned D = 0;
  unsigned Q = 0;
  bool constant = false;
  friend bool operator==(const Found&, const Found&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Found& f) {
    return out << '(' << f.p << ',' << f.d << ',' << f.q << ")(" << f.P << ',' << f.D << ',' << f.Q
               << (f.constant ? ") with constant" : ")");
  }
};

Found OrdersOf(const AutoArimaFit& fit) {
  const AMModelSpec& spec = test::ArimaStateOf(fit.fit.model).GetAMModelSpec();
  Found found;
  AMPowers regular;
  AMPowers seasonal;
  spec.GetYDiff(found.d, found.D);
  spec.GetMeanYPresent(found.constant);
  spec.GetARStruct(regular, seasonal);
  found.p = regular.GetCount();
  found.P = seasonal.GetCount();
  spec.GetMAStruct(regular, seasonal);
  found.q = regular.GetCount();
  found.Q = seasonal.GetCount();
  return found;
}

void ExpectAsGoodAs(const Reference& reference, bool exhaustive) {
  AutoArimaOptions options;
  options.season_length = reference.season_length;
  options.exhaustive = exhaustive;
  const AutoArimaFit fit = FitAutoArima(SeriesOf(reference), {}, options);
  ASSERT_EQ(fit.fit.status, FitStatus::kOk) << fit.fit.message;
  test::ExpectSound(fit.fit);
  const Found orders = OrdersOf(fit);
  EXPECT_EQ(orders.d, reference.d);
  EXPECT_EQ(orders.D, reference.seasonal_d);
  EXPECT_LE(fit.aicc, reference.aicc + 2) << orders;
}

class AutoArimaStepwise : public testing::TestWithParam<Reference> {};

TEST_P(AutoArimaStepwise, DifferencesAreThoseOfRAndTheCriterionIsAtMostTwoAbove) {
  ExpectAsGoodAs(GetParam(), false);
}

std::string Name(const testing::TestParamInfo<Reference>& info) {
  return info.param.series + "_" + info.param.column;
}

// AddressSanitizer makes a search some thirty times as long, and its code is the same for every
// series: there the series without a season, searched stepwise, and the first of the exhaustive
// ones do.
#ifdef __SANITIZE_ADDRESS__
constexpr bool kSearchesAreSlow = true;
#else
constexpr bool kSearchesAreSlow = false;
#endif

std::vector<Reference> Stepwise() {
  std::vector<Reference> chosen;
  for (const Reference& reference : References("stepwise")) {
    if (!kSearchesAreSlow || reference.season_length == 1) chosen.push_back(reference);
  }
  return chosen;
}

INSTANTIATE_TEST_SUITE_P(TestsData, AutoArimaStepwise, testing::ValuesIn(Stepwise()), Name);

class AutoArimaExhaustive : public testing::TestWithParam<Reference> {};

TEST_P(AutoArimaExhaustive, DifferencesAreThoseOfRAndTheCriterionIsAtMostTwoAbove) {
  ExpectAsGoodAs(GetParam(), true);
}

// Those that take well below a second.
std::vector<Reference> Quick() {
  std::vector<Reference> quick;
  for (const Reference& reference : References("full")) {
    if (reference.season_length == 1 || reference.series == "ukgas") quick.push_back(reference);
  }
  if (kSearchesAreSlow) quick.resize(1);
  return quick;
}

INSTANTIATE_TEST_SUITE_P(TestsData, AutoArimaExhaustive, testing::ValuesIn(Quick()), Name);

TEST(AutoArima, CriterionIsThatOfTheFit) {
  const auto nile = test::DataColumn("nile.csv");
  const AutoArimaFit found = FitAutoArima(nile, {}, {});
  ASSERT_EQ(found.fit.status, FitStatus::kOk);
  EXPECT_EQ(OrdersOf(found), (Found{.p = 1, .d = 1, .q = 1}));
  // Two coefficients and the variance, 99 differences.
  const double k = 3;
  EXPECT_NEAR(found.aicc,
              -2 * found.fit.summary.log_likelihood + 2 * k + 2 * k * (k + 1) / (99 - k - 1), 1e-9);
  EXPECT_GT(found.models_tried, 5U);
  const auto again = test::FitSpec(nile, test::SpecOf({.ar = {1}, .d = 1, .ma = {1}}));
  EXPECT_EQ(found.fit.summary.log_likelihood, again.summary.log_likelihood);
  EXPECT_EQ(found.fit.fitted, again.fitted);
}

TEST(AutoArima, EveryMethodEstimatesTheSameOrders) {
  const auto series = test::DataColumn("johnsonjohnson.csv");
  AutoArimaOptions options;
  options.season_length = 4;
  options.function_type = TSTransformation::kLogarithm;
  const AutoArimaFit ml = FitAutoArima(series, {}, options);
  for (const ArimaMethod method : {ArimaMethod::kMlTheta, ArimaMethod::kCls}) {
    options.method = method;
    const AutoArimaFit other = FitAutoArima(series, {}, options);
    ASSERT_EQ(other.fit.status, FitStatus::kOk) << other.fit.message;
    EXPECT_EQ(OrdersOf(other), OrdersOf(ml));
    EXPECT_EQ(other.aicc, ml.aicc);
  }
  EXPECT_NE(dynamic_cast<const ARMACLSForecastState*>(
                FitAutoArima(series, {}, options).fit.model.GetImp()->GetForecastState()),
            nullptr);
}

std::vector<double> Noise(std::size_t n) { return test::Generate(n, test::Noise); }

std::vector<double> Autoregression(double phi, double mean, std::size_t n) {
  std::vector<double> series = Noise(n + 50);
  for (std::size_t t = 1; t < series.size(); ++t) series[t] += phi * series[t - 1];
  series.erase(series.begin(), series.begin() + 50);
  for (double& y : series) y += mean;
  return series;
}

// For tests of what does not depend on large orders.
AutoArimaOptions Small() {
  AutoArimaOptions options;
  options.max_p = options.max_q = 2;
  return options;
}

TEST(AutoArima, ConstantIsTheCallersToDecide) {
  const auto series = Autoregression(0.5, 5, 120);
  AutoArimaOptions options;
  EXPECT_TRUE(OrdersOf(FitAutoArima(series, {}, options)).constant);
  options.constant = false;
  EXPECT_FALSE(OrdersOf(FitAutoArima(series, {}, options)).constant);
  options.constant = true;
  options.non_seasonal_diff = 2;
  const Found twice = OrdersOf(FitAutoArima(series, {}, options));
  EXPECT_TRUE(twice.constant);
  EXPECT_EQ(twice.d, 2U);
}

TEST(AutoArima, LimitsHold) {
  const auto series = test::DataColumn("airpassengers.csv");
  AutoArimaOptions options;
  options.season_length = 12;
  options.max_p = 1;
  options.max_q = 0;
  options.max_P = 0;
  options.max_Q = 1;
  options.max_D = 0;
  options.max_d = 0;
  for (const bool exhaustive : {false, true}) {
    options.exhaustive = exhaustive;
    const AutoArimaFit fit = FitAutoArima(series, {}, options);
    ASSERT_EQ(fit.fit.status, FitStatus::kOk) << fit.fit.message;
    const Found found = OrdersOf(fit);
    EXPECT_LE(found.p, 1U);
    EXPECT_EQ(found.q, 0U);
    EXPECT_EQ(found.P, 0U);
    EXPECT_LE(found.Q, 1U);
    EXPECT_EQ(found.d, 0U);
    EXPECT_EQ(found.D, 0U);
  }
  options.max_order = 0;
  EXPECT_EQ(FitAutoArima(series, {}, options).models_tried, 2U);  // with a constant and without
}

TEST(AutoArima, DifferencesGivenAreTaken) {
  AutoArimaOptions options;
  options.season_length = 4;
  options.non_seasonal_diff = 0;
  options.seasonal_diff = 0;
  const Found found = OrdersOf(FitAutoArima(test::DataColumn("ukgas.csv"), {}, options));
  EXPECT_EQ(found.d, 0U);
  EXPECT_EQ(found.D, 0U);
}

TEST(AutoArima, PredictorsAreDifferencedWithTheSeries) {
  std::vector<double> walk = Noise(150);
  for (std::size_t t = 1; t < walk.size(); ++t) walk[t] += walk[t - 1];
  const std::vector<std::vector<double>> predictors = {Autoregression(0.3, 0, 150)};
  for (std::size_t t = 0; t < walk.size(); ++t) walk[t] += 4 * predictors[0][t];
  AutoArimaOptions options;
  options.predictors.resize(1);
  const AutoArimaFit fit = FitAutoArima(walk, predictors, options);
  ASSERT_EQ(fit.fit.status, FitStatus::kOk) << fit.fit.message;
  EXPECT_EQ(OrdersOf(fit).d, 1U);
  const AMModelSpec& spec = test::ArimaStateOf(fit.fit.model).GetAMModelSpec();
  unsigned d = 0;
  unsigned seasonal = 0;
  unsigned delay = 0;
  spec.GetXDiffNDelay(0, d, seasonal, delay);
  EXPECT_EQ(d, 1U);
  EXPECT_NEAR(test::EstimatesOf(fit.fit)[spec.GetXRegressionCoeff(0)], 4, 0.3);
  options.keep_predictor_differences = true;
  const AutoArimaFit kept = FitAutoArima(walk, predictors, options);
  test::ArimaStateOf(kept.fit.model).GetAMModelSpec().GetXDiffNDelay(0, d, seasonal, delay);
  EXPECT_EQ(d, 0U);
}

TEST(AutoArima, APredictorThatExplainsTheTrendLeavesNoneToDifference) {
  std::vector<double> series = Noise(100);
  std::vector<std::vector<double>> predictors(1);
  for (std::size_t t = 0; t < series.size(); ++t) {
    predictors[0].push_back(static_cast<double>(t));
    series[t] += 0.5 * static_cast<double>(t);
  }
  EXPECT_EQ(OrdersOf(FitAutoArima(series, {}, {})).d, 1U);
  AutoArimaOptions options;
  options.predictors.resize(1);
  const AutoArimaFit fit = FitAutoArima(series, predictors, options);
  EXPECT_EQ(OrdersOf(fit), (Found{.constant = OrdersOf(fit).constant}));
}

TEST(AutoArima, ADifferenceThatLeavesAPredictorConstantIsNotTaken) {
  // A parabola: the tests ask for a difference whatever the line explains.
  const auto series = test::Generate(
      120, [](std::size_t t) { return 0.005 * static_cast<double>(t * t) + test::Noise(t); });
  const std::vector<std::vector<double>> line = {
      test::Generate(120, [](std::size_t t) { return static_cast<double>(t); })};
  AutoArimaOptions options;
  options.predictors.resize(1);
  options.keep_predictor_differences = true;
  const AutoArimaFit kept = FitAutoArima(series, line, options);
  ASSERT_EQ(kept.fit.status, FitStatus::kOk) << kept.fit.message;
  ASSERT_GT(OrdersOf(kept).d, 0U);
  options.keep_predictor_differences = false;
  EXPECT_EQ(OrdersOf(FitAutoArima(series, line, options)).d, 0U);
}

TEST(AutoArima, GivenOutliersAreInTheModelAndOutOfTheTests) {
  std::vector<double> series = Noise(120);
  for (std::size_t t = 60; t < series.size(); ++t) series[t] += 8;
  EXPECT_EQ(OrdersOf(FitAutoArima(series, {}, {})).d, 1U);
  AutoArimaOptions options;
  options.outliers = TSOutlierSpecList({TSOutlierSpec(TSOutlierSpec::kLevel, 60)});
  const AutoArimaFit fit = FitAutoArima(series, {}, options);
  ASSERT_EQ(fit.fit.status, FitStatus::kOk) << fit.fit.message;
  EXPECT_EQ(OrdersOf(fit).d, 0U);
  const TSOutlierSpecList& list = test::ArimaStateOf(fit.fit.model).GetAMModelSpec().GetOutliers();
  EXPECT_EQ(list.GetOutlierSpecCount(true), 1U);
}

TEST(AutoArima, OutliersAreFoundBetweenTwoSearchesForTheModel) {
  std::vector<double> series = Autoregression(0.6, 20, 150);
  for (const std::size_t t : {40U, 90U}) series[t] += 12;
  AutoArimaOptions options = Small();
  options.detect_outliers = true;
  const AutoArimaFit fit = FitAutoArima(series, {}, options);
  ASSERT_EQ(fit.fit.status, FitStatus::kOk) << fit.fit.message;
  const TSOutlierSpecList& list = test::ArimaStateOf(fit.fit.model).GetAMModelSpec().GetOutliers();
  ASSERT_EQ(list.GetOutlierSpecCount(true), 2U);
  EXPECT_EQ(list.GetOutlierSpec(0).GetStartIndex(), 40);
  EXPECT_EQ(list.GetOutlierSpec(1).GetStartIndex(), 90);
  EXPECT_GT(fit.models_tried, FitAutoArima(series, {}, Small()).models_tried);
  EXPECT_LT(fit.aicc, FitAutoArima(series, {}, Small()).aicc - 20);
}

TEST(AutoArima, OutliersOfASeriesWithoutAnyAreNone) {
  AutoArimaOptions options = Small();
  options.detect_outliers = true;
  const auto series = Autoregression(0.6, 20, 150);
  const AutoArimaFit fit = FitAutoArima(series, {}, options);
  const AutoArimaFit plain = FitAutoArima(series, {}, Small());
  EXPECT_EQ(fit.aicc, plain.aicc);
  EXPECT_EQ(fit.fit.fitted, plain.fit.fitted);
}

// A model with as many coefficients as cases has no criterion, and is none; but three cases have
// another criterion.
TEST(AutoArima, OutliersOfAShortSeriesLeaveMoreCasesThanCoefficients) {
  AutoArimaOptions options = Small();
  options.detect_outliers = true;
  for (const unsigned season : {1U, 7U}) {
    options.season_length = season;
    for (std::size_t n = 3; n < 16; ++n) {
      for (std::size_t first = 0; first < 60; first += 20) {
        auto series = test::Generate(n, [&](std::size_t t) {
          return test::Noise(first + t) + static_cast<double>(t + t % 7);
        });
        const AutoArimaFit found = FitAutoArima(series, {}, options);
        if (found.fit.status != FitStatus::kOk) continue;
        const tsffit::ArimaSummary& summary = found.fit.summary;
        if (summary.residuals > 3) {
          EXPECT_GT(summary.residuals, summary.estimated + 2) << n << ' ' << season;
        }
        EXPECT_TRUE(std::isfinite(found.aicc)) << n << ' ' << season;
      }
    }
  }
}

TEST(AutoArima, LeadingMissingCasesShiftNothing) {
  std::vector<double> series = Autoregression(0.6, 20, 150);
  series[90] += 12;
  AutoArimaOptions options = Small();
  options.detect_outliers = true;
  const AutoArimaFit plain = FitAutoArima(series, {}, options);
  series.insert(series.begin(), 7, MV::gMissingValue);
  for (const ArimaMethod method : {ArimaMethod::kMl, ArimaMethod::kMlTheta}) {
    options.method = method;
    const AutoArimaFit shifted = FitAutoArima(series, {}, options);
    ASSERT_EQ(shifted.fit.status, FitStatus::kOk) << shifted.fit.message;
    EXPECT_EQ(shifted.aicc, plain.aicc);
    const TSOutlierSpecList& list =
        test::ArimaStateOf(shifted.fit.model).GetAMModelSpec().GetOutliers();
    ASSERT_EQ(list.GetOutlierSpecCount(true), 1U);
    EXPECT_EQ(list.GetOutlierSpec(0).GetStartIndex(), 90);  // from the first case of the fit
  }
}

// What a predictor was before the first observed case enters no fit, and may be missing.
TEST(AutoArima, LeadingMissingCasesOfADelayedPredictorShiftNothing) {
  // The predictor explains a trend, so that nothing is left to difference.
  const auto x =
      test::Generate(120, [](std::size_t t) { return std::exp(0.1 * static_cast<double>(t)); });
  std::vector<double> series = Noise(120);
  for (std::size_t t = 2; t < series.size(); ++t) series[t] += 4 * std::log(x[t - 2]);
  AutoArimaOptions options = Small();
  options.predictors = {{.transform = TSTransformation(TSTransformation::kLogarithm), .delay = 2}};
  const std::vector<std::vector<double>> predictors = {x};
  const AutoArimaFit plain = FitAutoArima(series, predictors, options);
  ASSERT_EQ(plain.fit.status, FitStatus::kOk) << plain.fit.message;
  EXPECT_EQ(OrdersOf(plain).d, 0U);
  series.insert(series.begin(), 5, MV::gMissingValue);
  for (const double before : {MV::gMissingValue, -1.0, 1e6}) {
    std::vector<std::vector<double>> longer = predictors;
    longer[0].insert(longer[0].begin(), 5, before);
    const AutoArimaFit shifted = FitAutoArima(series, longer, options);
    ASSERT_EQ(shifted.fit.status, FitStatus::kOk) << shifted.fit.message;
    EXPECT_EQ(OrdersOf(shifted), OrdersOf(plain)) << before;
    EXPECT_EQ(shifted.aicc, plain.aicc) << before;
  }
}

TEST(AutoArima, LevelOfTheSeriesHidesNoChanges) {
  std::vector<double> walk = Noise(150);
  for (std::size_t t = 1; t < walk.size(); ++t) walk[t] += walk[t - 1];
  const Found plain = OrdersOf(FitAutoArima(walk, {}, {}));
  EXPECT_EQ(plain.d, 1U);
  for (const double level : {1e9, -1e11}) {
    std::vector<double> raised = walk;
    for (double& y : raised) y += level;
    EXPECT_EQ(OrdersOf(FitAutoArima(raised, {}, {})), plain) << level;
  }
}

TEST(AutoArima, WholeModelDoesNotDependOnTheUnit) {
  const auto series = Autoregression(0.6, 3, 100);
  const Found plain = OrdersOf(FitAutoArima(series, {}, {}));
  for (const double unit : {1e-6, 1e9}) {
    std::vector<double> scaled = series;
    for (double& y : scaled) y *= unit;
    EXPECT_EQ(OrdersOf(FitAutoArima(scaled, {}, {})), plain);
  }
}

TEST(AutoArima, SeriesThatCannotBeModelledSayWhy) {
  const auto status = [](const std::vector<double>& series, AutoArimaOptions options = {}) {
    const AutoArimaFit found = FitAutoArima(series, {}, options);
    EXPECT_TRUE(found.fit.model.IsEmpty());
    EXPECT_FALSE(found.fit.message.empty());
    EXPECT_EQ(found.aicc, MV::gMissingValue);
    return found.fit.status;
  };
  EXPECT_EQ(status({}), FitStatus::kTooShort);
  EXPECT_EQ(status({1, 2}), FitStatus::kTooShort);
  EXPECT_EQ(status(std::vector<double>(40, MV::gMissingValue)), FitStatus::kTooShort);
  EXPECT_EQ(status(std::vector<double>(40, 3.0)), FitStatus::kNotIdentified);
  EXPECT_EQ(status(Noise(40), {.function_type = TSTransformation::kLogarithm}),
            FitStatus::kNotPositive);
  EXPECT_EQ(status(Noise(40), {.function_type = 7}), FitStatus::kBadOptions);
  EXPECT_EQ(status(Noise(40), {.season_length = 0}), FitStatus::kBadOptions);
  AutoArimaOptions predictors;
  predictors.predictors.resize(1);
  EXPECT_EQ(status(Noise(40), predictors), FitStatus::kBadOptions);
  AutoArimaOptions search;
  search.detect_outliers = true;
  search.outlier_search.transient_decay = 2;
  EXPECT_EQ(status(Noise(40), search), FitStatus::kBadOptions);
  auto gap = Noise(40);
  gap[20] = MV::gMissingValue;
  EXPECT_EQ(status(gap, {.method = ArimaMethod::kCls}), FitStatus::kMissing);
  gap[20] = std::nan("");
  EXPECT_EQ(status(gap), FitStatus::kNotFinite);
}

TEST(AutoArima, LinesAndRepeatedSeasonsLeaveNothingToModel) {
  const auto line = [](std::size_t t) { return 3 + 0.5 * static_cast<double>(t); };
  const auto season = [](std::size_t t) { return static_cast<double>(t % 4); };
  AutoArimaOptions options;
  options.season_length = 4;
  for (const auto& [next, kind] :
       {std::pair<std::function<double(std::size_t)>, int>{line, ESModelSpec::kHolt},
        {season, ESModelSpec::kSimpleSeasonal}}) {
    const auto series = test::Generate(40, next);
    const AutoArimaFit found = FitAutoArima(series, {}, options);
    EXPECT_EQ(found.fit.status, FitStatus::kNotIdentified);
    EXPECT_TRUE(found.fit.model.IsEmpty());
    // There is a way on, and the message names it.
    EXPECT_NE(found.fit.message.find("a smoothing model can continue"), std::string::npos);
    const auto smoothing = test::Fit(series, kind, 4);
    ASSERT_EQ(smoothing.status, FitStatus::kOk) << smoothing.message;
    EXPECT_NEAR(tsffit::Forecast(smoothing.model, 3).value[2], next(42), 1e-6);
  }
}

TEST(AutoArima, ShortSeriesAndLongSeasons) {
  for (std::size_t n = 3; n < 30; ++n) {
    for (const unsigned season : {1U, 4U, 12U, 52U}) {
      AutoArimaOptions options;
      options.season_length = season;
      const AutoArimaFit found = FitAutoArima(Autoregression(0.5, 3, n), {}, options);
      test::ExpectSound(found.fit);
      if (n >= 8) {
        EXPECT_EQ(found.fit.status, FitStatus::kOk) << n << ' ' << season << found.fit.message;
      }
    }
  }
}

// AIC of R's auto.arima, which takes the same models.
TEST(AutoArima, ThreeCasesHaveTheirMean) {
  struct Case {
    std::vector<double> series;
    double mean;
    double aic;
  };
  for (const auto& [series, mean, aic] : {Case{{5, 3, 4}, 4, 11.30}, Case{{5, 5.5, 9}, 6.5, 15.97},
                                          Case{{1, 2, 4}, 7.0 / 3, 13.84}}) {
    const AutoArimaFit found = FitAutoArima(series, {}, AutoArimaOptions{});
    ASSERT_EQ(found.fit.status, FitStatus::kOk) << found.fit.message;
    EXPECT_NEAR(tsffit::Forecast(found.fit.model, 1).value.front(), mean, 1e-9);
    EXPECT_NEAR(found.aicc, aic, 0.01);
  }
}

TEST(AutoArima, MissingCasesInsideArePassedOver) {
  auto series = Autoregression(0.6, 3, 160);
  for (std::size_t t = 10; t < 150; t += 13) series[t] = MV::gMissingValue;
  AutoArimaOptions options;
  options.season_length = 4;
  options.max_P = options.max_Q = 1;
  const AutoArimaFit found = FitAutoArima(series, {}, options);
  ASSERT_EQ(found.fit.status, FitStatus::kOk) << found.fit.message;
  test::ExpectSound(found.fit);
  EXPECT_EQ(OrdersOf(found).d + OrdersOf(found).D, 0U);
}

}  // namespace
