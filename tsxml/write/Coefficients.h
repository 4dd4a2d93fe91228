#ifndef TSXPORT_TSXML_WRITE_COEFFICIENTS_H_
#define TSXPORT_TSXML_WRITE_COEFFICIENTS_H_

#include <cstdint>
#include <valarray>

#include <tsfcore/MV.h>

namespace tsx {

// The parameter vector of a fit and the standard errors in the same positions. Borrowed.
struct Estimates {
  const std::valarray<double>& values;
  const std::valarray<double>& std_errors;
};

struct Coefficient {
  double value = MV::gMissingValue;
  double std_error = MV::gMissingValue;
};

// Reads a block of the parameter vector, one coefficient after the other:
//
//   CoefficientBlock block(estimates, first, first + 2);
//   const Coefficient one = block.Next();
//   const Coefficient two = block.Next();
//
// Values too few for the whole block were not estimated for this specification: all coefficients
// read as missing then, also those that the vector would reach. The standard errors are missing in
// the same way when they are too few, or when the values are.
//
// Positions are unsigned 32-bit numbers and wrap around, so a block may end before it begins. A
// position that the vector does not have reads as missing.
class CoefficientBlock {
 public:
  // `end` is the position behind the last one that must be there.
  CoefficientBlock(const Estimates& estimates, std::uint32_t first, std::uint32_t end);

  Coefficient Next();

 private:
  Estimates estimates_;
  std::uint32_t position_;
  bool has_values_;
  bool has_std_errors_;
};

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_COEFFICIENTS_H_
