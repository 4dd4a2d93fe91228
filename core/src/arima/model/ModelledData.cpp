#include "arima/model/ModelledData.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "arima/model/Effects.h"
#include "series/Observed.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

// The least variance of the differenced series that is no rounding, as a share of the square of the
// largest value: deviations of 1e-12 of it, which leaves room above the 1e-16 of doubles for what
// differences and sums multiply that by.
constexpr double kRounding = 1e-24;

// The size of the differenced series, whose unit the search works in; of the series where too
// little is observed for differences.
double UnitOf(const std::vector<double>& series, const Polynomial& difference) {
  double sum = 0;
  double squares = 0;
  double count = 0;
  double largest = 0;
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (!IsMissing(series[t])) largest = std::max(largest, std::abs(series[t]));
    if (t < Degree(difference)) continue;
    double w = 0;
    bool seen = true;
    for (std::size_t k = 0; k < difference.size(); ++k) {
      if (difference[k] == 0) continue;
      seen = seen && !IsMissing(series[t - k]);
      w += difference[k] * series[t - k];
    }
    if (!seen) continue;
    sum += w;
    squares += w * w;
    count += 1;
  }
  const double variance = count > 1 ? squares / count - sum * sum / (count * count) : 0;
  // What is left of a constant is rounding.
  if (variance > kRounding * largest * largest) return std::sqrt(variance);
  return largest > 0 ? largest : 1;
}

}  // namespace

AMModelSpec::Fields CountedFrom(AMModelSpec::Fields spec, std::size_t first) {
  std::vector<TSOutlierSpec> outliers;
  for (unsigned j = 0; j < spec.outliers.GetOutlierSpecCount(false); ++j) {
    const TSOutlierSpec& outlier = spec.outliers.GetOutlierSpec(j);
    outliers.emplace_back(outlier.GetType(), outlier.GetStartIndex() - static_cast<long>(first));
  }
  spec.outliers = TSOutlierSpecList(std::move(outliers));
  return spec;
}

ArimaData MakeArimaData(const AMModelSpec& spec, const std::vector<double>& modelled,
                        std::span<const std::vector<double>> predictors, std::size_t first) {
  ArimaData data;
  data.unit = UnitOf(modelled, SeriesDifference(spec));
  for (const double z : modelled) data.series.push_back(IsMissing(z) ? z : z / data.unit);
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    const int function = spec.GetXTransformSpec(i).GetFunctionType();
    std::vector<double> x(predictors[i].begin() + static_cast<std::ptrdiff_t>(first),
                          predictors[i].end());
    for (double& value : x) value = Transformed(function, value);
    data.predictors.push_back(std::move(x));
  }
  return data;
}

}  // namespace tsffit
