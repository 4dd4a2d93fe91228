#include "Outliers.h"

#include <cmath>
#include <stdexcept>

namespace test {

namespace {

// o(t) of an outlier that is not innovational.
double OutlierValue(const ReadOutlier& outlier, long t, long season) {
  const long since = t - outlier.start;
  if (since < 0) return 0;
  if (outlier.type == "additive") return since == 0 ? outlier.size : 0;
  if (outlier.type == "level") return outlier.size;
  if (outlier.type == "transient") {
    return outlier.size * std::pow(outlier.decay, static_cast<double>(since));
  }
  if (outlier.type == "seasonalAdditive") return since % season == 0 ? outlier.size : 0;
  if (outlier.type == "trend") return outlier.size * static_cast<double>(since + 1);
  throw std::runtime_error("no such outlier: " + outlier.type);
}

// D(B) o(t)
double DifferencedOutlier(const ReadArima& model, const ReadOutlier& outlier, long t) {
  if (outlier.type == "innovational") {
    if (t < outlier.start) return 0;
    const auto since = static_cast<std::size_t>(t - outlier.start);
    return outlier.size * Expansion(model.ma, model.ar, since).back();
  }
  const Polynomial& differences = model.transformation.differences;
  double sum = 0;
  for (std::size_t j = 0; j < differences.size(); ++j) {
    sum += differences[j] *
           OutlierValue(outlier, t - static_cast<long>(j), static_cast<long>(model.season));
  }
  return sum;
}

}  // namespace

double DifferencedOutliers(const ReadArima& model, long t) {
  double sum = 0;
  for (const ReadOutlier& outlier : model.outliers) sum += DifferencedOutlier(model, outlier, t);
  return sum;
}

}  // namespace test
