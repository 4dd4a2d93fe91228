#include "arima/fit/Check.h"

#include <optional>
#include <string>
#include <utility>

#include "arima/model/Effects.h"
#include "series/Observed.h"
#include "series/Refusal.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

// Longer lags ask for matrices that no longer fit; a season of a year of days does.
constexpr std::size_t kLongestLag = 2000;
// Squares of larger values, on the modelled scale, are no longer numbers.
constexpr double kLargestModelled = 1e150;

bool BadOptions(ArimaFit& fit, std::string message) {
  return Refuse(fit, FitStatus::kBadOptions, std::move(message));
}

bool CheckLags(const AMPowers& lags, ArimaFit& fit) {
  for (std::uint32_t i = 0; i < lags.GetCount(); ++i) {
    if (lags.GetPower(i) == 0) return BadOptions(fit, "a lag of 0 is no lag");
    if (i > 0 && lags.GetPower(i) <= lags.GetPower(i - 1)) {
      return BadOptions(fit, "the lags of a factor must rise");
    }
    if (lags.GetPower(i) > kLongestLag) {
      return BadOptions(fit, "a lag of more than " + std::to_string(kLongestLag) + " periods");
    }
  }
  return true;
}

bool CheckFactor(const AMModelSpec::Factor& factor, ArimaFit& fit) {
  return CheckLags(factor.non_seasonal, fit) && CheckLags(factor.seasonal, fit);
}

bool CheckOrders(unsigned regular, unsigned seasonal, unsigned seasonLength, ArimaFit& fit) {
  if (seasonal > 0 && seasonLength < 2) {
    return BadOptions(fit, "seasonal differences need a season length of at least 2");
  }
  if (regular > kLongestLag || seasonal > kLongestLag ||
      regular + static_cast<std::size_t>(seasonal) * seasonLength > kLongestLag) {
    return BadOptions(fit,
                      "differences over more than " + std::to_string(kLongestLag) + " periods");
  }
  return true;
}

bool CheckPredictorSpec(const AMModelSpec::Predictor& predictor, unsigned seasonLength,
                        ArimaFit& fit) {
  if (!IsTransformation(predictor.transform.GetFunctionType())) {
    return BadOptions(fit, "no such transformation of a predictor");
  }
  if (predictor.delay > kLongestLag) {
    return BadOptions(fit, "a delay of more than " + std::to_string(kLongestLag) + " periods");
  }
  return CheckOrders(predictor.non_seasonal_diff, predictor.seasonal_diff, seasonLength, fit) &&
         CheckFactor(predictor.numerator, fit) && CheckFactor(predictor.denominator, fit);
}

bool CheckOutlier(const TSOutlierSpec& outlier, std::span<const double> series,
                  unsigned seasonLength, ArimaFit& fit) {
  if (outlier.GetType() < TSOutlierSpec::kAdditive ||
      outlier.GetType() > TSOutlierSpec::kInnovational) {
    return BadOptions(fit, "no such type of outlier");
  }
  if (outlier.GetType() == TSOutlierSpec::kSeasonalAdditive && seasonLength < 2) {
    return BadOptions(fit, "a seasonal outlier needs a season length of at least 2");
  }
  const long at = outlier.GetStartIndex();
  if (at < 0 || static_cast<std::size_t>(at) >= series.size()) {
    return BadOptions(fit, "an outlier starts outside the series");
  }
  return true;
}

bool CheckSpec(std::span<const double> series, std::size_t predictors, const ArimaOptions& options,
               ArimaFit& fit) {
  const AMModelSpec::Fields& spec = options.spec;
  if (options.method != ArimaMethod::kMl && options.method != ArimaMethod::kMlTheta &&
      options.method != ArimaMethod::kCls) {
    return BadOptions(fit, "no such method");
  }
  if (auto fault = NoSuchTransformation(spec.y_transform.GetFunctionType())) {
    return Refuse(fit, *fault);
  }
  if (spec.season_length == 0) return BadOptions(fit, "a season has at least 1 period");
  if (!CheckOrders(spec.non_seasonal_diff, spec.seasonal_diff, spec.season_length, fit) ||
      !CheckFactor(spec.ar, fit) || !CheckFactor(spec.ma, fit)) {
    return false;
  }
  if (spec.predictors.size() != predictors) {
    return BadOptions(fit, "the model has " + std::to_string(spec.predictors.size()) +
                               " predictors, values are given for " + std::to_string(predictors));
  }
  for (std::size_t i = 0; i < predictors; ++i) {
    if (CheckPredictorSpec(spec.predictors[i], spec.season_length, fit)) continue;
    fit.bad_predictor = static_cast<int>(i);
    return false;
  }
  for (unsigned j = 0; j < spec.outliers.GetOutlierSpecCount(false); ++j) {
    if (!CheckOutlier(spec.outliers.GetOutlierSpec(j), series, spec.season_length, fit)) {
      return false;
    }
  }
  return true;
}

std::optional<Fault> ValueFault(double value, int function) {
  if (auto fault = NotFinite(value)) return fault;
  if (auto fault = OutsideDomain(function, value)) return fault;
  return TooLarge(Transformed(function, value), kLargestModelled);
}

bool CheckValues(std::span<const double> series, int function, ArimaFit& fit) {
  for (std::size_t t = 0; t < series.size(); ++t) {
    auto fault = IsMissing(series[t]) ? std::nullopt : ValueFault(series[t], function);
    if (!fault) continue;
    fit.bad_case = t;
    return Refuse(fit, *fault);
  }
  return true;
}

// The missing case at which a method that knows none must stop, leading ones not counted.
bool CheckMissing(std::span<const double> series, ArimaMethod method, ArimaFit& fit) {
  if (method == ArimaMethod::kMl) return true;
  std::size_t gap = FirstObserved(series);
  while (gap < series.size() && !IsMissing(series[gap])) ++gap;
  if (gap == series.size()) return true;
  fit.bad_case = gap;
  return Refuse(fit, FitStatus::kMissing,
                std::string("the method ") + (method == ArimaMethod::kCls ? "cls" : "ml-theta") +
                    " knows no missing values; the method ml does");
}

bool CheckPredictorValues(std::span<const double> series, const std::vector<double>& values,
                          int function, ArimaFit& fit) {
  if (values.size() != series.size()) {
    return Refuse(fit, FitStatus::kBadOptions,
                  "a predictor has " + std::to_string(values.size()) + " values, the series has " +
                      std::to_string(series.size()));
  }
  // What stands before the first observed case is not used.
  for (std::size_t t = FirstObserved(series); t < values.size(); ++t) {
    auto fault = IsMissing(values[t]) ? Fault{FitStatus::kMissing, "a predictor's value is missing"}
                                      : ValueFault(values[t], function);
    if (!fault) continue;
    fit.bad_case = t;
    return Refuse(fit, *fault);
  }
  return true;
}

}  // namespace

bool CheckArima(std::span<const double> series, std::span<const std::vector<double>> predictors,
                const ArimaOptions& options, ArimaFit& fit) {
  if (!CheckSpec(series, predictors.size(), options, fit)) return false;
  if (!CheckValues(series, options.spec.y_transform.GetFunctionType(), fit)) return false;
  if (!CheckMissing(series, options.method, fit)) return false;
  for (std::size_t i = 0; i < predictors.size(); ++i) {
    const int function = options.spec.predictors[i].transform.GetFunctionType();
    if (CheckPredictorValues(series, predictors[i], function, fit)) continue;
    fit.bad_predictor = static_cast<int>(i);
    return false;
  }
  return true;
}

}  // namespace tsffit
