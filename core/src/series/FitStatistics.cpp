#include "series/FitStatistics.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "series/LjungBox.h"
#include "series/Observed.h"

namespace tsffit {

namespace {

double SumOfSquares(std::span<const double> values) {
  double sum = 0;
  for (const double value : values) sum += IsMissing(value) ? 0 : value * value;
  return sum;
}

// Sum of squared deviations from the mean; exactly 0 for a constant, since it counts from the first
// value.
double SumAboutMean(std::span<const double> values) {
  const std::size_t at = FirstObserved(values);
  if (at == values.size()) return 0;
  const double first = values[at];
  const auto count = static_cast<double>(CountObserved(values));
  double mean = 0;
  for (const double value : values) mean += IsMissing(value) ? 0 : (value - first) / count;
  double sum = 0;
  for (const double value : values) {
    const double deviation = IsMissing(value) ? 0 : value - first - mean;
    sum += deviation * deviation;
  }
  return sum;
}

// A ratio, a logarithm or a sum as a statistic: missing unless it is a finite number.
double Defined(double value) { return std::isfinite(value) ? value : MV::gMissingValue; }

double ExplainedShare(double residual, double total) {
  return total > 0 ? Defined(1 - residual / total) : MV::gMissingValue;
}

std::vector<double> Difference(std::span<const double> values, std::size_t lag) {
  std::vector<double> differences(values.size(), MV::gMissingValue);
  for (std::size_t t = lag; t < values.size(); ++t) {
    if (IsMissing(values[t]) || IsMissing(values[t - lag])) continue;
    differences[t] = values[t] - values[t - lag];
  }
  return differences;
}

double StationaryRSquared(const FittedSeries& fit, const Differencing& differencing) {
  std::vector<double> w(fit.modelled.begin(), fit.modelled.end());
  for (unsigned i = 0; i < differencing.regular; ++i) w = Difference(w, 1);
  for (unsigned i = 0; i < differencing.seasonal; ++i) {
    w = Difference(w, differencing.season_length);
  }
  double residual = 0;
  for (std::size_t t = 0; t < w.size(); ++t) {
    if (IsMissing(fit.modelled_errors[t])) w[t] = MV::gMissingValue;
    if (!IsMissing(w[t])) residual += fit.modelled_errors[t] * fit.modelled_errors[t];
  }
  return CountObserved(w) > 1 ? ExplainedShare(residual, SumAboutMean(w)) : MV::gMissingValue;
}

// Sums and extremes of absolute errors.
struct ErrorSizes {
  double squares = 0;
  double sum = 0;
  double largest = 0;
  double count = 0;
  void Take(double e) {
    squares += e * e;
    sum += e;
    largest = std::max(largest, e);
    count += 1;
  }
};

// The statistics that are averages and extremes of errors on the original scale.
void AddErrorMeasures(const FittedSeries& fit, double freedom,
                      EstimationInfo::Statistics& statistics) {
  ErrorSizes errors;
  ErrorSizes percent;
  for (std::size_t t = 0; t < fit.observed.size(); ++t) {
    const double y = fit.observed[t];
    if (IsMissing(y)) continue;
    const double e = std::abs(y - fit.fitted[t]);
    errors.Take(e);
    if (y != 0) percent.Take(100 * std::abs(e / y));
  }
  statistics[BFSharedConst::kMeanSqrErr] = Defined(errors.squares / freedom);
  statistics[BFSharedConst::kRootMeanSqrErr] = Defined(std::sqrt(errors.squares / freedom));
  statistics[BFSharedConst::kMeanAbsErr] = Defined(errors.sum / errors.count);
  statistics[BFSharedConst::kMaxAbsErr] = Defined(errors.largest);
  statistics[BFSharedConst::kRSqr] = ExplainedShare(errors.squares, SumAboutMean(fit.observed));
  if (percent.count == 0) return;
  statistics[BFSharedConst::kMeanAbsPctErr] = Defined(percent.sum / percent.count);
  statistics[BFSharedConst::kMaxAbsPctErr] = Defined(percent.largest);
}

// The statistics that stand on logarithms of sums of squares.
void AddCriteria(double sse, double n, double k, EstimationInfo::Statistics& statistics) {
  const double mse = statistics[BFSharedConst::kMeanSqrErr];
  if (!IsMissing(mse) && mse > 0) {
    statistics[BFSharedConst::kNormBayesIC] = std::log(mse) + k * std::log(n) / n;
  }
  if (!(sse > 0) || !std::isfinite(sse)) return;
  const double logLikelihood = -n / 2 * (std::log(2 * std::numbers::pi * sse / n) + 1);
  statistics[BFSharedConst::kLogLikelihood] = Defined(logLikelihood);
  statistics[BFSharedConst::kAkaikeIC] = Defined(-2 * logLikelihood + 2 * k);
  statistics[BFSharedConst::kBayesIC] = Defined(-2 * logLikelihood + k * std::log(n));
}

}  // namespace

EstimationInfo::Fields FitStatistics(const FittedSeries& fit, unsigned estimated,
                                     const Differencing& differencing, unsigned ljungBoxLags) {
  EstimationInfo::Fields info;
  const double n =
      static_cast<double>(CountObserved(fit.observed)) - static_cast<double>(fit.spent);
  const double k = estimated;
  const double sse = SumOfSquares(fit.modelled_errors);
  info.degrees_of_freedom = static_cast<std::uint64_t>(n) - estimated;
  info.error_variance = Defined(sse / (n - k));
  AddErrorMeasures(fit, n - k, info.statistics);
  AddCriteria(sse, n, k, info.statistics);
  info.statistics[BFSharedConst::kStationaryRSqr] = StationaryRSquared(fit, differencing);
  info.ljung_box = LjungBoxTest(fit.modelled_errors, ljungBoxLags, estimated);
  return info;
}

}  // namespace tsffit
