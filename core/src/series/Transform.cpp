#include "series/Transform.h"

#include <cmath>

#include "series/Observed.h"

namespace tsffit {

bool IsTransformation(int functionType) {
  return functionType >= TSTransformation::kNone && functionType <= TSTransformation::kSquareRoot;
}

double Transformed(int functionType, double y) {
  if (functionType == TSTransformation::kLogarithm) return std::log(y);
  return functionType == TSTransformation::kSquareRoot ? std::sqrt(y) : y;
}

std::vector<double> ModelledSeries(std::span<const double> series, int functionType) {
  std::vector<double> modelled(series.begin(), series.end());
  for (double& y : modelled) {
    if (!IsMissing(y)) y = Transformed(functionType, y);
  }
  return modelled;
}

double Untransformed(int functionType, double z) {
  if (functionType == TSTransformation::kLogarithm) return std::exp(z);
  if (functionType == TSTransformation::kSquareRoot) return z > 0 ? z * z : 0;
  return z;
}

}  // namespace tsffit
