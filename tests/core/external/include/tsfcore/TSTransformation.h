#ifndef TSFCORE_TSTRANSFORMATION_H_
#define TSFCORE_TSTRANSFORMATION_H_

#include <tsfcore/Export.h>

// The function applied to a series before it is modelled. The modelled scale is f(y); estimates,
// states and error variances live there.
class TSF_EXPORT TSTransformation {
 public:
  enum FunctionType : int {
    kNone = 0,
    kLogarithm = 1,   // natural logarithm, for y > 0
    kSquareRoot = 2,  // for y >= 0
  };

  TSTransformation() = default;
  explicit TSTransformation(int functionType) : function_type_(functionType) {}

  // A FunctionType; a later core may answer with other non-zero codes.
  int GetFunctionType() const { return function_type_; }

 private:
  int function_type_ = kNone;
};

#endif  // TSFCORE_TSTRANSFORMATION_H_
