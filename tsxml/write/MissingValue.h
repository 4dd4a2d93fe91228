#ifndef TSXPORT_TSXML_WRITE_MISSINGVALUE_H_
#define TSXPORT_TSXML_WRITE_MISSINGVALUE_H_

#include <algorithm>
#include <iterator>
#include <valarray>

#include <tsfcore/MV.h>

namespace tsx {

inline bool IsMissing(double value) { return value == MV::gMissingValue; }

inline bool AnyMissing(const std::valarray<double>& values) {
  return std::any_of(std::begin(values), std::end(values), IsMissing);
}

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_MISSINGVALUE_H_
