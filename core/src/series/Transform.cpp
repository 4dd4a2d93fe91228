#include "series/Transform.h"

#include <cmath>

namespace tsffit {

bool IsTransformation(int functionType) {
  return functionType >= TSTransformation::kNone && functionType <= TSTransformation::kSquareRoot;
}

double Transformed(int functionType, double y) {
  if (functionType == TSTransformation::kLogarithm) return std::log(y);
  return functionType == TSTransformation::kSquareRoot ? std::sqrt(y) : y;
}

double Untransformed(int functionType, double z) {
  if (functionType == TSTransformation::kLogarithm) return std::exp(z);
  if (functionType == TSTransformation::kSquareRoot) return z > 0 ? z * z : 0;
  return z;
}

}  // namespace tsffit
