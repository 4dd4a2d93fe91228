#include <boost/math/distributions/students_t.hpp>
#include <cmath>

#include <tsfcore/MV.h>
#include <tsfcore/TSStatUtil.h>

double TSStatUtil::CDFStudentsT(double t, double degreesOfFreedom) {
  if (t == MV::gMissingValue || degreesOfFreedom == MV::gMissingValue) return MV::gMissingValue;
  if (std::isnan(t) || !(degreesOfFreedom > 0)) return MV::gMissingValue;
  if (std::isinf(t)) return t < 0 ? 0.0 : 1.0;
  return boost::math::cdf(boost::math::students_t(degreesOfFreedom), t);
}
