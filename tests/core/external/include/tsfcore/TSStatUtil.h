#ifndef TSFCORE_TSSTATUTIL_H_
#define TSFCORE_TSSTATUTIL_H_

#include <tsfcore/Export.h>

namespace TSStatUtil {

// P(T <= t) for Student's t with `degreesOfFreedom` > 0. Missing when the degrees of freedom are
// not positive or an argument is missing or NaN; an infinite t gives 0 or 1.
TSF_EXPORT double CDFStudentsT(double t, double degreesOfFreedom);

}  // namespace TSStatUtil

#endif  // TSFCORE_TSSTATUTIL_H_
