#include "arima/orders/DifferenceOrders.h"

#include <Eigen/Core>
#include <algorithm>
#include <cmath>

#include "arima/model/Effects.h"
#include "arima/orders/UnitRoots.h"
#include "math/LeastSquares.h"
#include "series/Observed.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

// Decay of transient outliers while nothing is estimated yet.
constexpr double kDecay = 0.7;

// f(y) from the first observed case to the last, less its first value, so scaled that its squares
// can be summed. The tests depend on neither, and small changes of large values stay changes.
struct Modelled {
  std::size_t start = 0;
  std::vector<double> values{};
};

Modelled ScaledSeries(std::span<const double> series, int functionType) {
  const auto observed = [](double y) { return !IsMissing(y); };
  const auto first = std::find_if(series.begin(), series.end(), observed);
  const auto last = std::find_if(series.rbegin(), series.rend(), observed).base();
  Modelled modelled;
  modelled.start = static_cast<std::size_t>(first - series.begin());
  const double origin = Transformed(functionType, *first);
  double largest = 0;
  for (auto y = first; y != last; ++y) {
    const double z = IsMissing(*y) ? *y : Transformed(functionType, *y) - origin;
    modelled.values.push_back(z);
    if (!IsMissing(z)) largest = std::max(largest, std::abs(z));
  }
  for (double& z : modelled.values) {
    if (!IsMissing(z) && largest > 0) z /= largest;
  }
  return modelled;
}

// f(x) of a predictor with its delay, first the case `start`. As in a fit it had its value there
// for ever before: what stands earlier may be missing.
std::vector<double> Delayed(const std::vector<double>& x, const AMModelSpec::Predictor& predictor,
                            std::size_t start, std::size_t size) {
  std::vector<double> delayed(size);
  for (std::size_t t = 0; t < size; ++t) {
    const std::size_t back = std::min<std::size_t>(t, predictor.delay);
    delayed[t] = Transformed(predictor.transform.GetFunctionType(), x[start + t - back]);
  }
  return delayed;
}

std::vector<double> Shape(const TSOutlierSpec& outlier, unsigned seasonLength, std::size_t start,
                          std::size_t size) {
  std::vector<double> shape(size);
  for (std::size_t t = 0; t < size; ++t) {
    shape[t] = OutlierShape(outlier.GetType(), kDecay, seasonLength,
                            static_cast<long>(start + t) - outlier.GetStartIndex());
  }
  return shape;
}

// Residuals of the observed cases on a constant and the columns; missing cases stay missing.
std::vector<double> Cleared(std::vector<double> series,
                            const std::vector<std::vector<double>>& columns) {
  std::vector<std::size_t> cases;
  for (std::size_t t = 0; t < series.size(); ++t) {
    if (!IsMissing(series[t])) cases.push_back(t);
  }
  const auto rows = static_cast<Eigen::Index>(cases.size());
  Eigen::VectorXd y(rows);
  Eigen::MatrixXd x = Eigen::MatrixXd::Ones(rows, static_cast<Eigen::Index>(columns.size()) + 1);
  for (Eigen::Index row = 0; row < rows; ++row) {
    const std::size_t t = cases[static_cast<std::size_t>(row)];
    y[row] = series[t];
    for (std::size_t j = 0; j < columns.size(); ++j) {
      x(row, static_cast<Eigen::Index>(j) + 1) = columns[j][t];
    }
  }
  const Eigen::VectorXd residuals = SolveLeastSquares(y, x).residuals;
  for (Eigen::Index row = 0; row < rows; ++row) {
    series[cases[static_cast<std::size_t>(row)]] = residuals[row];
  }
  return series;
}

// Predictors on their way through the differences of the series. Those that never vary say nothing.
class Predictors {
 public:
  explicit Predictors(std::vector<std::vector<double>> columns) : columns_(std::move(columns)) {
    columns_.erase(std::remove_if(columns_.begin(), columns_.end(),
                                  [](const auto& x) { return IsConstant(x); }),
                   columns_.end());
  }

  // Differences all by `lag`, unless one would be constant then.
  bool Difference(std::size_t lag) {
    std::vector<std::vector<double>> differenced;
    for (const auto& x : columns_) differenced.push_back(DifferencedBy(x, lag));
    if (std::any_of(differenced.begin(), differenced.end(),
                    [](const auto& x) { return IsConstant(x); })) {
      return false;
    }
    columns_ = std::move(differenced);
    return true;
  }

 private:
  std::vector<std::vector<double>> columns_;
};

// How many of `wanted` differences by `lag` leave all predictors varying.
unsigned Bearable(Predictors& predictors, std::size_t lag, unsigned wanted) {
  for (unsigned taken = 0; taken < wanted; ++taken) {
    if (!predictors.Difference(lag)) return taken;
  }
  return wanted;
}

}  // namespace

DifferenceOrders FindDifferenceOrders(std::span<const double> series,
                                      std::span<const std::vector<double>> predictors,
                                      const AutoArimaOptions& options,
                                      const TSOutlierSpecList& outliers) {
  const std::size_t season = options.season_length;
  Modelled modelled = ScaledSeries(series, options.function_type);
  std::vector<std::vector<double>> columns;
  for (std::size_t i = 0; i < predictors.size(); ++i) {
    columns.push_back(
        Delayed(predictors[i], options.predictors[i], modelled.start, modelled.values.size()));
  }
  Predictors followed(options.keep_predictor_differences ? std::vector<std::vector<double>>()
                                                         : columns);
  for (unsigned j = 0; j < outliers.GetOutlierSpecCount(false); ++j) {
    columns.push_back(Shape(outliers.GetOutlierSpec(j), options.season_length, modelled.start,
                            modelled.values.size()));
  }
  std::vector<double> x =
      columns.empty() ? std::move(modelled.values) : Cleared(std::move(modelled.values), columns);

  DifferenceOrders orders;
  if (season > 1) {
    orders.seasonal =
        options.seasonal_diff
            ? *options.seasonal_diff
            : Bearable(followed, season, SeasonalDifferences(x, season, options.max_D));
  }
  for (unsigned i = 0; i < orders.seasonal; ++i) x = DifferencedBy(x, season);
  orders.regular = options.non_seasonal_diff
                       ? *options.non_seasonal_diff
                       : Bearable(followed, 1, NonSeasonalDifferences(x, options.max_d));
  return orders;
}

}  // namespace tsffit
