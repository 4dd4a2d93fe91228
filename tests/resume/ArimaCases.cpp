#include "ArimaCases.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <utility>

#include <tsxport/TSXMLTree.h>

#include "core/support/TestSeries.h"

namespace test {

namespace {

using Series = std::vector<double>;
using Fields = AMModelSpec::Fields;

const TSTransformation kLog(TSTransformation::kLogarithm);
const TSTransformation kRoot(TSTransformation::kSquareRoot);

Series WithMissing(Series series, const std::vector<std::size_t>& at) {
  for (const std::size_t t : at) series.at(t) = MV::gMissingValue;
  return series;
}

// Noise of an ARMA(1,1).
Series Arma(std::size_t n, std::size_t seed) {
  Series values;
  double before = 0;
  for (std::size_t t = 0; t < n; ++t) {
    before = 0.6 * before + Noise(seed + t + 1) - 0.3 * Noise(seed + t);
    values.push_back(before);
  }
  return values;
}

Series RunningSum(Series values) {
  for (std::size_t t = 1; t < values.size(); ++t) values[t] += values[t - 1];
  return values;
}

Series Sum(Series a, const Series& b, double weight = 1) {
  for (std::size_t t = 0; t < a.size(); ++t) a[t] += weight * b[t];
  return a;
}

Series Lagged(const Series& values, std::size_t lag) {
  return Generate(values.size(), [&](std::size_t t) { return values[t < lag ? 0 : t - lag]; });
}

// y(t) = x(t) + delta y(t - 1), from the steady state.
Series Smoothed(Series x, double delta) {
  x.front() /= 1 - delta;
  for (std::size_t t = 1; t < x.size(); ++t) x[t] += delta * x[t - 1];
  return x;
}

Series Exponential(Series values) {
  for (double& value : values) value = std::exp(0.1 * value);
  return values;
}

AMModelSpec::Factor Lags(AMPowers nonSeasonal, AMPowers seasonal = {}) {
  return {.non_seasonal = std::move(nonSeasonal), .seasonal = std::move(seasonal)};
}

Fields Airline() {
  return {.season_length = 12,
          .y_transform = kLog,
          .non_seasonal_diff = 1,
          .seasonal_diff = 1,
          .ma = Lags({1}, {12})};
}

void AddPlainCases(std::vector<ArimaCase>& cases) {
  const Series passengers = DataColumn("airpassengers.csv");
  const Series sunspots = DataColumn("sunspot_year.csv");
  const Series nile = DataColumn("nile.csv");
  cases.push_back({"Airline", passengers, Airline()});
  cases.push_back({"AutoregressionWithMean",
                   DataColumn("lakehuron.csv"),
                   {.has_constant = true, .ar = Lags({1, 2})}});
  cases.push_back(
      {"GappedLags", sunspots, {.has_constant = true, .ar = Lags({1, 2, 9}), .ma = Lags({1, 3})}});
  cases.push_back(
      {"GappedLagsUnderSquareRoot",
       sunspots,
       {.y_transform = kRoot, .has_constant = true, .ar = Lags({1, 2, 9}), .ma = Lags({1, 3})}});
  cases.push_back({"EverySeasonalFactor",
                   DataColumn("ukgas.csv"),
                   {.season_length = 4,
                    .y_transform = kLog,
                    .non_seasonal_diff = 1,
                    .seasonal_diff = 1,
                    .has_constant = true,
                    .ar = Lags({1}, {4}),
                    .ma = Lags({1}, {4, 8})}});
  cases.push_back({"RandomWalk", nile, {.non_seasonal_diff = 1}});
  cases.push_back({"RandomWalkWithDrift", nile, {.non_seasonal_diff = 1, .has_constant = true}});
  cases.push_back({"SeasonalRandomWalk", passengers, {.season_length = 12, .seasonal_diff = 1}});
  cases.push_back({"MeanAlone", nile, {.has_constant = true}});
  cases.push_back({"MovingAverageAlone", nile, {.has_constant = true, .ma = Lags({1, 2})}});
  cases.push_back({"DifferencedTwice",
                   DataColumn("wwwusage.csv"),
                   {.non_seasonal_diff = 2, .ma = Lags({1, 2})}});
  cases.push_back({"DifferencedTwiceAndTwiceOverASeason",
                   DataColumn("johnsonjohnson.csv"),
                   {.season_length = 4,
                    .y_transform = kLog,
                    .non_seasonal_diff = 2,
                    .seasonal_diff = 2,
                    .ar = Lags({1}),
                    .ma = Lags({1}, {4})}});
  cases.push_back({"RootOnTheUnitCircle",
                   Generate(80, [](std::size_t t) { return 5 + Noise(t); }),
                   {.non_seasonal_diff = 1, .ma = Lags({1})}});
  cases.push_back(
      {"SeasonalRootsOnTheUnitCircle",
       Generate(80, [](std::size_t t) { return static_cast<double>(t % 4) + 0.01 * Noise(t); }),
       {.season_length = 4, .seasonal_diff = 1, .ma = Lags({}, {4})}});
}

// y with a transfer function of x that has everything: (2 + 0.8 B)(1 - 0.5 B^4) over
// (1 - 0.6 B)(1 - 0.3 B^4), one period late.
ArimaCase EverythingInATransferFunction() {
  const Series x = Arma(160, 1000);
  Series effect = Sum(x, Lagged(x, 1), 0.4);
  effect = Sum(effect, Lagged(effect, 4), -0.5);
  effect = Smoothed(effect, 0.6);
  for (std::size_t t = 4; t < effect.size(); ++t) effect[t] += 0.3 * effect[t - 4];
  return {
      "EverythingInATransferFunction",
      Sum(Arma(160, 2000), Lagged(effect, 1), 2),
      {.season_length = 4,
       .has_constant = true,
       .ar = Lags({1}),
       .predictors = {{.delay = 1, .numerator = Lags({1}, {4}), .denominator = Lags({1}, {4})}}},
      {x}};
}

ArimaCase PredictorsDifferencedEachInItsWay() {
  const Series level = Arma(140, 3000);
  const Series walk = Exponential(RunningSum(Arma(140, 4000)));
  const Series root = Generate(140, [](std::size_t t) { return 40 + 3 * Noise(5000 + t); });
  return {
      "PredictorsDifferencedEachInItsWay",
      Exponential(Sum(RunningSum(Arma(140, 6000)), level, 3)),
      {.season_length = 4,
       .y_transform = kLog,
       .non_seasonal_diff = 1,
       .ma = Lags({1}, {4}),
       .predictors = {{.delay = 2, .numerator = Lags({2})},
                      {.transform = kLog,
                       .non_seasonal_diff = 1,
                       .seasonal_diff = 1,
                       .denominator = Lags({1})},
                      {.transform = kRoot, .non_seasonal_diff = 2, .numerator = Lags({}, {4})}}},
      {level, walk, root}};
}

void AddPredictorCases(std::vector<ArimaCase>& cases) {
  cases.push_back({"RegressionUnderLogarithms",
                   DataColumn("seatbelts.csv", "drivers"),
                   {.season_length = 12,
                    .y_transform = kLog,
                    .has_constant = true,
                    .ar = Lags({1}, {12}),
                    .predictors = {{.transform = kLog}, {.transform = kLog}, {}}},
                   {DataColumn("seatbelts.csv", "kms"), DataColumn("seatbelts.csv", "petrol_price"),
                    DataColumn("seatbelts.csv", "law")}});
  cases.push_back({"TransferFunctionOfDifferences",
                   DataColumn("bjsales.csv", "sales"),
                   {.non_seasonal_diff = 1,
                    .ma = Lags({1}),
                    .predictors = {{.non_seasonal_diff = 1, .delay = 3, .denominator = Lags({1})}}},
                   {DataColumn("bjsales.csv", "lead")}});
  cases.push_back({"TransferFunctionOfLevels",
                   DataColumn("tf_sim.csv", "y"),
                   {.has_constant = true,
                    .ar = Lags({1}),
                    .predictors = {{.delay = 2, .numerator = Lags({1}), .denominator = Lags({1})}}},
                   {DataColumn("tf_sim.csv", "x")}});
  cases.push_back(EverythingInATransferFunction());
  cases.push_back(PredictorsDifferencedEachInItsWay());
  const Series ones(100, 1.0);
  const Series nile = DataColumn("nile.csv");
  cases.push_back(
      {"PredictorThatIsConstantBesideTheConstant",
       nile,
       {.has_constant = true, .ar = Lags({1}), .predictors = {{}, {.denominator = Lags({1})}}},
       {ones, Arma(100, 7000)}});
  cases.push_back({"SamePredictorTwice",
                   nile,
                   {.has_constant = true, .ma = Lags({1}), .predictors = {{}, {.delay = 0}}},
                   {Arma(100, 7000), Arma(100, 7000)}});
}

// The course of an outlier of the type from case `from` on.
Series Course(int type, std::size_t n, std::size_t from) {
  return Generate(n, [&](std::size_t t) -> double {
    if (t < from) return 0;
    const auto since = static_cast<double>(t - from);
    switch (type) {
      case TSOutlierSpec::kLevel:
        return 1;
      case TSOutlierSpec::kTransient:
        return std::pow(0.7, since);
      case TSOutlierSpec::kSeasonalAdditive:
        return (t - from) % 4 == 0 ? 1 : 0;
      case TSOutlierSpec::kTrend:
        return since + 1;
      default:
        return t == from ? 1 : 0;
    }
  });
}

constexpr std::pair<int, const char*> kOutlierTypes[] = {
    {TSOutlierSpec::kAdditive, "Additive"},
    {TSOutlierSpec::kLevel, "Level"},
    {TSOutlierSpec::kTransient, "Transient"},
    {TSOutlierSpec::kSeasonalAdditive, "SeasonalAdditive"},
    {TSOutlierSpec::kTrend, "Trend"},
    {TSOutlierSpec::kInnovational, "Innovational"}};

// An ARMA(1,1), or with `differences` an ARIMA(0,1,1)(0,1,1), of season 4.
Fields ModelForOutliers(bool differences) {
  if (!differences) {
    return {.season_length = 4, .has_constant = true, .ar = Lags({1}), .ma = Lags({1})};
  }
  return {.season_length = 4, .non_seasonal_diff = 1, .seasonal_diff = 1, .ma = Lags({1}, {4})};
}

Series SeriesForOutliers(bool differences) {
  return differences ? RunningSum(Arma(120, 8000)) : Arma(120, 8000);
}

// So late that the forecasts still feel it.
constexpr std::size_t kLate = 110;

void AddOutlierCases(std::vector<ArimaCase>& cases) {
  for (const bool differences : {false, true}) {
    const std::string suffix = differences ? "WithDifferences" : "";
    Fields all = ModelForOutliers(differences);
    Series affected = SeriesForOutliers(differences);
    std::vector<TSOutlierSpec> outliers;
    for (const auto& [type, name] : kOutlierTypes) {
      Fields spec = ModelForOutliers(differences);
      spec.outliers = TSOutlierSpecList({{type, kLate}});
      cases.push_back({std::string(name) + "Outlier" + suffix,
                       Sum(SeriesForOutliers(differences), Course(type, 120, kLate), 8), spec});
      const std::size_t from = 20 + 16 * outliers.size();
      outliers.emplace_back(type, static_cast<long>(from));
      affected = Sum(affected, Course(type, 120, from), 6);
    }
    all.outliers = TSOutlierSpecList(outliers);
    cases.push_back({"EveryOutlier" + suffix, affected, all});
    all.outliers = TSOutlierSpecList(
        {{TSOutlierSpec::kLevel, 36}, {TSOutlierSpec::kLevel, 36}, {TSOutlierSpec::kLevel, 118}});
    cases.push_back({"SameOutlierTwice" + suffix,
                     Sum(SeriesForOutliers(differences), Course(TSOutlierSpec::kLevel, 120, 36), 6),
                     all});
  }
  Fields innovational = Airline();
  innovational.outliers =
      TSOutlierSpecList({{TSOutlierSpec::kInnovational, 140}, {TSOutlierSpec::kInnovational, 5}});
  cases.push_back(
      {"InnovationalOutlierInTheAirlineModel", DataColumn("airpassengers.csv"), innovational});
}

void AddGapCases(std::vector<ArimaCase>& cases) {
  const Series passengers = DataColumn("airpassengers.csv");
  const auto airline = [&](const char* name, const std::vector<std::size_t>& at) {
    cases.push_back({name, WithMissing(passengers, at), Airline()});
  };
  airline("GapInTheMiddle", {50, 51, 52, 77});
  airline("GapAmongTheLastDifferences", {135});
  airline("GapAtTheEnd", {142, 143});
  airline("GapAmongTheFirstDifferences", {3, 7});
  airline("GapAtBothEnds", {0, 1, 4, 30, 133, 140, 143});
  cases.push_back({"GapsInAnAutoregression",
                   DataColumn("presidents.csv"),
                   {.season_length = 4, .has_constant = true, .ar = Lags({1, 2, 3})}});
  cases.push_back({"GapsInAMixedModel",
                   WithMissing(Arma(90, 8000), {0, 1, 20, 60, 61, 88, 89}),
                   {.has_constant = true, .ar = Lags({1}), .ma = Lags({1, 2, 3})}});
  cases.push_back({"GapsInARandomWalk",
                   WithMissing(DataColumn("nile.csv"), {40, 98, 99}),
                   {.non_seasonal_diff = 1, .has_constant = true}});
  cases.push_back({"GapsUnderTwoDifferences",
                   WithMissing(DataColumn("wwwusage.csv"), {1, 50, 98}),
                   {.non_seasonal_diff = 2, .ar = Lags({1}), .ma = Lags({1})}});
}

// Gaps that leave hardly any value to difference from.
void AddWideGaps(std::vector<ArimaCase>& cases) {
  const Series y =
      Sum(RunningSum(Arma(80, 9800)), Course(TSOutlierSpec::kSeasonalAdditive, 80, 2), 5);
  const Fields seasonal = {
      .season_length = 4, .seasonal_diff = 1, .ar = Lags({1}), .ma = Lags({2})};
  std::vector<std::size_t> thirdQuarters;
  for (std::size_t t = 6; t < 80; t += 4) thirdQuarters.push_back(t);
  cases.push_back({"PeriodOfTheSeasonSeenOnce", WithMissing(y, thirdQuarters), seasonal});
  thirdQuarters.back() = 2;
  cases.push_back({"PeriodOfTheSeasonSeenAtTheEnd", WithMissing(y, thirdQuarters), seasonal});
  const std::vector<std::size_t> wide = {1, 2, 3, 4, 73, 74, 75, 76, 77, 78, 79};
  cases.push_back({"GapsWiderThanTheDifferences", WithMissing(y, wide), ModelForOutliers(true)});
}

// The likelihood starts five cases after the first one: of the values before it only the last one
// matters to the differences in it.
void AddGapsBeforeTheLikelihood(std::vector<ArimaCase>& cases) {
  const Series x = Arma(100, 9500);
  const Series y = Sum(RunningSum(Arma(100, 9600)), Lagged(x, 4), 2);
  for (const auto& [name, gaps] :
       {std::pair("GapFarBeforeTheLikelihood", std::vector<std::size_t>{2}),
        std::pair("GapJustBeforeTheLikelihood", std::vector<std::size_t>{1, 4, 97, 99})}) {
    cases.push_back({name,
                     WithMissing(y, gaps),
                     {.non_seasonal_diff = 1,
                      .ma = Lags({1}),
                      .predictors = {{.delay = 4, .numerator = Lags({1})}}},
                     {x}});
  }
}

// Hardly more values of the noise than the longest lags reach back.
void AddShortCases(std::vector<ArimaCase>& cases) {
  const Series noise = Arma(40, 9700);
  const auto first = [&](std::ptrdiff_t n) { return Series(noise.begin(), noise.begin() + n); };
  cases.push_back({"FewCasesForASeasonalMovingAverage",
                   first(14),
                   {.season_length = 12, .ma = Lags({1}, {12})}});
  cases.push_back({"FewCasesForALongMovingAverage", first(6), {.ar = Lags({1}), .ma = Lags({4})}});
  cases.push_back({.name = "FewCasesForALongAutoregression",
                   .series = first(7),
                   .spec = {.ar = Lags({5}), .ma = Lags({3})},
                   .too_short_for_cls = true});
  cases.push_back(
      {"FewDifferencesInTheAirlineModel",
       first(27),
       {.season_length = 12, .non_seasonal_diff = 1, .seasonal_diff = 1, .ma = Lags({1}, {12})}});
}

// Outliers count their cases from the first observed one, wherever the series begins.
Fields LateStart(bool differences) {
  Fields spec = ModelForOutliers(differences);
  spec.predictors = {{.non_seasonal_diff = differences ? 1U : 0U,
                      .delay = 1,
                      .numerator = Lags({1}),
                      .denominator = Lags({1})}};
  spec.outliers = TSOutlierSpecList({{TSOutlierSpec::kLevel, 70},
                                     {TSOutlierSpec::kTransient, 112},
                                     {TSOutlierSpec::kSeasonalAdditive, 81},
                                     {TSOutlierSpec::kInnovational, 115}});
  return spec;
}

void AddLateStartCases(std::vector<ArimaCase>& cases) {
  for (const bool differences : {false, true}) {
    const std::string suffix = differences ? "WithDifferences" : "";
    const Series x = Arma(120, 9000);
    Series y = Sum(SeriesForOutliers(differences), Lagged(Smoothed(x, 0.5), 1), 3);
    y = Sum(y, Course(TSOutlierSpec::kLevel, 120, 70), 6);
    y = Sum(y, Course(TSOutlierSpec::kSeasonalAdditive, 120, 81), 6);
    y = Sum(y, Course(TSOutlierSpec::kTransient, 120, 112), 9);
    y = WithMissing(y, {0, 1, 2, 3, 4, 5, 6});
    cases.push_back({"LateStart" + suffix, y, LateStart(differences), {x}});
    cases.push_back({"LateStartAndGaps" + suffix,
                     WithMissing(y, {9, 40, 41, 116, 119}),
                     LateStart(differences),
                     {x}});
  }
}

std::vector<ArimaCase> AllCases() {
  std::vector<ArimaCase> cases;
  AddPlainCases(cases);
  AddPredictorCases(cases);
  AddOutlierCases(cases);
  AddGapCases(cases);
  AddWideGaps(cases);
  AddGapsBeforeTheLikelihood(cases);
  AddShortCases(cases);
  AddLateStartCases(cases);
  return cases;
}

// Missing values behind the first observed one: kMl alone fits those.
bool HasGaps(const Series& y) {
  const auto missing = [](double value) { return value == MV::gMissingValue; };
  return std::any_of(std::find_if_not(y.begin(), y.end(), missing), y.end(), missing);
}

}  // namespace

std::vector<FittedCase> FittedCases() {
  std::vector<FittedCase> cases;
  for (const ArimaCase& data : AllCases()) {
    cases.push_back({data, tsffit::ArimaMethod::kMl});
    if (HasGaps(data.series)) continue;
    cases.push_back({data, tsffit::ArimaMethod::kMlTheta});
    if (data.too_short_for_cls) continue;
    cases.push_back({data, tsffit::ArimaMethod::kCls});
  }
  return cases;
}

std::string NameOf(const FittedCase& fitted) {
  constexpr const char* kMethods[] = {"Ml", "MlTheta", "Cls"};
  return fitted.data.name + "By" + kMethods[static_cast<int>(fitted.method)];
}

void PrintTo(const FittedCase& fitted, std::ostream* out) { *out << NameOf(fitted); }

std::vector<Series> Futures(const ArimaCase& arimaCase, std::size_t horizon) {
  std::vector<Series> futures;
  for (const Series& x : arimaCase.predictors) {
    futures.emplace_back(x.end() - static_cast<std::ptrdiff_t>(horizon), x.end());
  }
  return futures;
}

tsffit::ArimaFit Fit(const ArimaCase& arimaCase, tsffit::ArimaMethod method) {
  return tsffit::FitArima(arimaCase.series, arimaCase.predictors,
                          {.spec = arimaCase.spec, .method = method});
}

std::string DocumentOf(const tsffit::ArimaFit& fit) {
  const auto& state =
      dynamic_cast<const ARMAForecastState&>(*fit.model.GetImp()->GetForecastState());
  const std::vector<std::string> names(state.GetAMModelSpec().GetXCount(), "x");
  TSXMLTree tree;
  std::ostringstream document;
  if (!tree.AddModelTree(fit.model, TSXDictionaryRefs("m", "", "y", names)) ||
      !tree.WriteToStream(document)) {
    throw std::runtime_error("the model was refused");
  }
  return document.str();
}

}  // namespace test
