#include "series/ConfidenceWidth.h"

#include <boost/math/distributions/normal.hpp>

namespace tsffit {

// By the probability outside: the one below the upper limit may round to 1.
double ConfidenceWidth(double confidence) {
  return boost::math::quantile(
      boost::math::complement(boost::math::normal(), (1 - confidence) / 2));
}

}  // namespace tsffit
