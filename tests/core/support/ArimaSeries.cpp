#include "core/support/ArimaSeries.h"

#include <algorithm>
#include <boost/math/distributions/normal.hpp>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

#include "core/support/TestSeries.h"

namespace test {

namespace {

constexpr std::size_t kForecasts = 24;

AMPowers Lags(const std::string& text) {
  std::vector<std::uint32_t> lags;
  std::istringstream in(text);
  for (std::uint32_t lag = 0; in >> lag;) lags.push_back(lag);
  return AMPowers(std::move(lags));
}

TSTransformation Log() { return TSTransformation(TSTransformation::kLogarithm); }

void AddPredictor(const std::string& text, const std::string& file, ArimaModel& model) {
  std::istringstream words(text);
  std::string word;
  words >> word;
  std::vector<double> x = DataColumn(file, word);
  AMModelSpec::Predictor predictor;
  predictor.non_seasonal_diff = model.spec.non_seasonal_diff;
  predictor.seasonal_diff = model.spec.seasonal_diff;
  while (words >> word) {
    std::uint32_t number = 0;
    if (word == "log") {
      predictor.transform = Log();
      continue;
    }
    words >> number;
    if (word == "delay") predictor.delay = number;
    if (word == "num") predictor.numerator.non_seasonal = {number};
    if (word == "den") predictor.denominator.non_seasonal = {number};
  }
  // As the table's script has it: the last values once more, or the last one repeated.
  const auto last = x.end() - static_cast<std::ptrdiff_t>(kForecasts);
  model.future.push_back(model.name == "seatbelts" ? std::vector<double>(last, x.end())
                                                   : std::vector<double>(kForecasts, x.back()));
  model.predictors.push_back(std::move(x));
  model.spec.predictors.push_back(predictor);
}

ArimaModel FromRow(const std::vector<std::string>& row) {
  ArimaModel model;
  model.name = row[0];
  const std::string file = row[1] + ".csv";
  model.series = DataColumn(file, row[2]);
  if (row[3] == "1") model.spec.y_transform = Log();
  model.spec.season_length = static_cast<unsigned>(std::stoul(row[4]));
  model.spec.non_seasonal_diff = static_cast<unsigned>(std::stoul(row[5]));
  model.spec.seasonal_diff = static_cast<unsigned>(std::stoul(row[6]));
  model.spec.has_constant = row[7] == "1";
  model.spec.ar = {.non_seasonal = Lags(row[8]), .seasonal = Lags(row[9])};
  model.spec.ma = {.non_seasonal = Lags(row[10]), .seasonal = Lags(row[11])};
  std::istringstream predictors(row[12]);
  for (std::string text; std::getline(predictors, text, ';');) AddPredictor(text, file, model);
  if (!row[13].empty()) {  // "level 28"
    model.spec.outliers =
        TSOutlierSpecList({{TSOutlierSpec::kLevel, std::stol(row[13].substr(row[13].find(' ')))}});
  }
  return model;
}

}  // namespace

std::vector<ArimaModel> ArimaModels() {
  std::vector<ArimaModel> models;
  for (const auto& row : ReadRows("reference/arima_models.csv")) models.push_back(FromRow(row));
  return models;
}

AMModelSpec::Fields SpecOf(const Orders& orders) {
  const auto inPeriods = [&](std::vector<std::uint32_t> lags) {
    for (std::uint32_t& lag : lags) lag *= orders.season_length;
    return AMPowers(std::move(lags));
  };
  AMModelSpec::Fields spec;
  spec.season_length = orders.season_length;
  spec.non_seasonal_diff = orders.d;
  spec.seasonal_diff = orders.seasonal_d;
  spec.has_constant = orders.has_constant;
  spec.ar = {.non_seasonal = AMPowers(orders.ar), .seasonal = inPeriods(orders.seasonal_ar)};
  spec.ma = {.non_seasonal = AMPowers(orders.ma), .seasonal = inPeriods(orders.seasonal_ma)};
  return spec;
}

AMModelSpec::Fields Airline() {
  return SpecOf({.d = 1, .ma = {1}, .seasonal_d = 1, .seasonal_ma = {1}, .season_length = 12});
}

tsffit::ArimaFit FitSpec(const std::vector<double>& series, const AMModelSpec::Fields& spec,
                         tsffit::ArimaMethod method,
                         const std::vector<std::vector<double>>& predictors) {
  tsffit::ArimaOptions options;
  options.spec = spec;
  options.method = method;
  return tsffit::FitArima(series, predictors, options);
}

const ARMAForecastState& ArimaStateOf(const TSFModel& model) {
  return dynamic_cast<const ARMAForecastState&>(*model.GetImp()->GetForecastState());
}

std::vector<double> EstimatesOf(const tsffit::ArimaFit& fit) {
  const std::valarray<double>& values = ArimaStateOf(fit.model).GetParameterEstimates();
  return {std::begin(values), std::end(values)};
}

std::vector<double> StdErrorsOf(const tsffit::ArimaFit& fit) {
  const std::valarray<double>& values = ArimaStateOf(fit.model).GetParameterStdErrors();
  return {std::begin(values), std::end(values)};
}

// Steele, Lea and Flood (2014), "Fast splittable pseudorandom number generators".
double NormalDraws::Uniform() {
  std::uint64_t z = (state_ += 0x9e3779b97f4a7c15U);
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
  z ^= z >> 31;
  return (static_cast<double>(z >> 12) + 0.5) / 4503599627370496.0;
}

double NormalDraws::operator()() { return boost::math::quantile(boost::math::normal(), Uniform()); }

std::vector<double> SimulateArma(const std::vector<double>& phi, const std::vector<double>& theta,
                                 std::size_t count, NormalDraws& draws) {
  constexpr std::size_t kBefore = 2000;
  std::vector<double> a;
  std::vector<double> n;
  for (std::size_t t = 0; t < kBefore + count; ++t) {
    a.push_back(draws());
    double value = 0;
    for (std::size_t k = 0; k < theta.size() && k <= t; ++k) value += theta[k] * a[t - k];
    for (std::size_t k = 1; k < phi.size() && k <= t; ++k) value -= phi[k] * n[t - k];
    n.push_back(value);
  }
  n.erase(n.begin(), n.begin() + static_cast<std::ptrdiff_t>(kBefore));
  return n;
}

std::vector<double> Summed(std::vector<double> values, std::size_t lag) {
  for (std::size_t t = lag; t < values.size(); ++t) values[t] += values[t - lag];
  return values;
}

namespace {

template <typename List>
void ExpectNumbers(const List& values, const char* what) {
  std::size_t i = 0;
  for (const double value : values) EXPECT_TRUE(std::isfinite(value)) << what << ' ' << i++;
}

void ExpectSoundState(const ForecastState& any) {
  const auto& state = dynamic_cast<const ARMAForecastState&>(any);
  const std::size_t count = state.GetAMModelSpec().GetParameterCount(true);
  EXPECT_EQ(state.GetParameterEstimates().size(), count);
  EXPECT_EQ(state.GetParameterStdErrors().size(), count);
  ExpectNumbers(state.GetParameterEstimates(), "estimate");
  ExpectNumbers(state.GetParameterStdErrors(), "standard error");
  for (std::size_t i = 0; i < count; ++i) {
    const double error = state.GetParameterStdErrors()[i];
    EXPECT_TRUE(error == MV::gMissingValue || error > 0) << "standard error " << i;
    if (state.GetParameterEstimates()[i] == MV::gMissingValue) {
      EXPECT_EQ(error, MV::gMissingValue) << "of what is not estimated";
    }
  }
  ExpectNumbers(state.GetActualZ(), "actual Z");
  ExpectNumbers(state.GetPredZ(), "predicted Z");
  for (unsigned i = 0; i < state.GetAMModelSpec().GetXCount(); ++i) {
    const std::valarray<double>* predictor = nullptr;
    const std::valarray<double>* output = nullptr;
    state.GetXHistory(i, predictor, output);
    ASSERT_NE(predictor, nullptr);
    ASSERT_NE(output, nullptr);
    ExpectNumbers(*predictor, "predictor");
    ExpectNumbers(*output, "transfer function");
  }
  if (const auto* ml = dynamic_cast<const ARMAMLForecastState*>(&any)) {
    ExpectNumbers(ml->GetFinalStateV(), "state");
    ExpectNumbers(ml->GetFinalOmega().AsArray(), "covariance");
  } else if (const auto* theta = dynamic_cast<const ARMAMLSpForecastState*>(&any)) {
    ExpectNumbers(theta->GetActualN(), "actual N");
    ExpectNumbers(theta->GetPredN(), "predicted N");
    ExpectNumbers(theta->GetFinalNu(), "nu");
    for (const auto& row : theta->GetFinalThetas()) ExpectNumbers(row, "theta");
  } else {
    const auto& cls = dynamic_cast<const ARMACLSForecastState&>(any);
    ExpectNumbers(cls.GetActualN(), "actual N");
    ExpectNumbers(cls.GetPredN(), "predicted N");
  }
}

void ExpectSoundRecord(const EstimationInfo& info) {
  ExpectNumbers(std::vector<double>{info.GetErrorVariance()}, "error variance");
  for (int code = 0; code < BFSharedConst::kGOFStatCount; ++code) {
    const double value = info.GetGOFStat(static_cast<BFSharedConst::GOFStatType>(code));
    EXPECT_TRUE(std::isfinite(value)) << "statistic " << code;
  }
  double statistic = 0;
  double pValue = 0;
  unsigned long k = 0;
  unsigned long df = 0;
  info.GetLBStat(statistic, k, df, pValue);
  ExpectNumbers(std::vector<double>{statistic, pValue}, "Ljung-Box");
}

}  // namespace

void ExpectSound(const tsffit::ArimaFit& fit, const std::vector<std::vector<double>>& future) {
  if (fit.status != tsffit::FitStatus::kOk) {
    EXPECT_FALSE(fit.message.empty());
    EXPECT_EQ(fit.message.find('\n'), std::string::npos);
    EXPECT_TRUE(fit.model.IsEmpty());
    return;
  }
  EXPECT_TRUE(fit.message.empty());
  const TSFModelImp& model = *fit.model.GetImp();
  ExpectSoundState(*model.GetForecastState());
  const auto& state = dynamic_cast<const ARMAForecastState&>(*model.GetForecastState());
  EXPECT_EQ(model.GetPredictorCount(), state.GetAMModelSpec().GetXCount());
  ExpectSoundRecord(model.GetEstimationInfo());
  ExpectNumbers(
      std::vector<double>{fit.summary.log_likelihood, fit.summary.sse, fit.summary.error_variance},
      "summary");
  const std::size_t cases = model.GetHistoryData().size();
  EXPECT_EQ(fit.fitted.size(), cases);
  EXPECT_EQ(fit.residuals.size(), cases);
  ExpectNumbers(fit.fitted, "fitted");
  ExpectNumbers(fit.residuals, "residual");
  const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 9, future);
  for (const auto* list :
       {&forecasts.value, &forecasts.std_error, &forecasts.lower, &forecasts.upper}) {
    EXPECT_EQ(list->size(), 9U);
    ExpectNumbers(*list, "forecast");
  }
}

}  // namespace test
