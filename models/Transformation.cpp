#include "models/Transformation.h"

#include <tsfcore/TSTransformation.h>

namespace tsx::models {

FunctionWords WordsOf(int functionType) {
  if (functionType == TSTransformation::kLogarithm) return {"logarithm", "values above 0"};
  if (functionType == TSTransformation::kSquareRoot) return {"square root", "values of at least 0"};
  return {"", ""};
}

bool IsInDomain(double value, int functionType) {
  if (functionType == TSTransformation::kLogarithm) return value > 0;
  return functionType != TSTransformation::kSquareRoot || value >= 0;
}

}  // namespace tsx::models
