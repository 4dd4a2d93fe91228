#ifndef TSXPORT_MODELS_TRANSFORMATION_H_
#define TSXPORT_MODELS_TRANSFORMATION_H_

namespace tsx::models {

// What people call a TSTransformation::FunctionType, and the values that it is defined for.
struct FunctionWords {
  const char* name;   // "logarithm"; empty for kNone
  const char* needs;  // "values above 0"
};

FunctionWords WordsOf(int functionType);

// Whether the function is defined for `value`.
bool IsInDomain(double value, int functionType);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_TRANSFORMATION_H_
