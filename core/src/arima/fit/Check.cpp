#include "arima/fit/Check.h"

#include <algorithm>
#include <cmath>

#include "arima/model/Effects.h"
#include "series/Transform.h"

namespace tsffit {

bool RefuseArima(ArimaFit& fit, FitStatus status, std::string message) {
  fit.status = status;
  fit.message = std::move(message);
  return false;
}

namespace {

// Longer lags ask for matrices that no longer fit; a season of a year of days does.
constexpr std::size_t kLongestLag = 2000;
// Squares of larger values, on the modelled scale, are no longer numbers.
constexpr double kLargest = 1e150;

bool BadOptions(ArimaFit& fit, std::string message) {
  return RefuseArima(fit, FitStatus::kBadOptions, std::move(message));
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
  if (!IsTransformation(spec.y_transform.GetFunctionType())) {
    return BadOptions(fit, "no such transformation");
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

bool CheckValue(double value, int function, ArimaFit& fit) {
  if (!std::isfinite(value))
    return RefuseArima(fit, FitStatus::kNotFinite, "a value is not finite");
  if (function == TSTransformation::kLogarithm && value <= 0) {
    return RefuseArima(fit, FitStatus::kNotPositive, "the logarithm needs values above 0");
  }
  if (function == TSTransformation::kSquareRoot && value < 0) {
    return RefuseArima(fit, FitStatus::kNegative, "the square root needs values of at least 0");
  }
  if (std::abs(Transformed(function, value)) > kLargest) {
    return RefuseArima(fit, FitStatus::kNotFinite, "a value is too large to calculate with");
  }
  return true;
}

bool CheckValues(std::span<const double> series, int function, ArimaFit& fit) {
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (series[t] == MV::gMissingValue || CheckValue(series[t], function, fit)) continue;
    fit.bad_case = t;
    return false;
  }
  return true;
}

// The missing case at which a method that knows none must stop, leading ones not counted.
bool CheckMissing(std::span<const double> series, ArimaMethod method, ArimaFit& fit) {
  if (method == ArimaMethod::kMl) return true;
  const auto seen = [](double y) { return y != MV::gMissingValue; };
  const auto first = std::find_if(series.begin(), series.end(), seen);
  const auto gap = std::find(first, series.end(), MV::gMissingValue);
  if (gap == series.end()) return true;
  fit.bad_case = static_cast<std::size_t>(gap - series.begin());
  return RefuseArima(fit, FitStatus::kMissing,
                     std::string("the method ") +
                         (method == ArimaMethod::kCls ? "cls" : "ml-theta") +
                         " knows no missing values; the method ml does");
}

bool CheckPredictorValues(std::span<const double> series, const std::vector<double>& values,
                          int function, ArimaFit& fit) {
  if (values.size() != series.size()) {
    return RefuseArima(fit, FitStatus::kBadOptions,
                       "a predictor has " + std::to_string(values.size()) +
                           " values, the series has " + std::to_string(series.size()));
  }
  // What stands before the first observed case is not used.
  const auto seen = [](double y) { return y != MV::gMissingValue; };
  const auto first = std::find_if(series.begin(), series.end(), seen) - series.begin();
  for (auto t = static_cast<std::size_t>(first); t < values.size(); ++t) {
    const bool missing = values[t] == MV::gMissingValue;
    if (!missing && CheckValue(values[t], function, fit)) continue;
    fit.bad_case = t;
    return missing ? RefuseArima(fit, FitStatus::kMissing, "a predictor's value is missing")
                   : false;
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
