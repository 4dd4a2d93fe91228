#ifndef TSFFIT_SERIES_TRANSFORM_H_
#define TSFFIT_SERIES_TRANSFORM_H_

#include <span>
#include <vector>

#include <tsfcore/TSTransformation.h>

namespace tsffit {

bool IsTransformation(int functionType);

// f(y), for y in the domain of f.
double Transformed(int functionType, double y);

// A whole series; missing cases stay missing.
std::vector<double> ModelledSeries(std::span<const double> series, int functionType);

// The inverse, without bias correction: a fitted value or a limit on the modelled scale gives the
// median and the same quantile on the original one. Below 0 the inverse of the square root is 0.
double Untransformed(int functionType, double z);

}  // namespace tsffit

#endif  // TSFFIT_SERIES_TRANSFORM_H_
