#ifndef TSFFIT_CROSTON_SIMPLEWEIGHT_H_
#define TSFFIT_CROSTON_SIMPLEWEIGHT_H_

#include <optional>
#include <span>

#include <tsfcore/MV.h>

namespace tsffit {

// One step of simple smoothing: equation (1) of Croston.h.
inline double Smoothed(double level, double weight, double value) {
  return level + weight * (value - level);
}

// Simple smoothing of some values, its level started at the first.
struct SimpleSmoothing {
  double weight = 0;
  double std_error = MV::gMissingValue;
  bool estimated = false;
  double sse = 0;    // of the errors from the second value on
  double level = 0;  // after the last value
};

// How the weight of a submodel comes about. tsffit/Croston.h tells how it is estimated.
struct WeightChoice {
  std::optional<double> fixed;
  bool enough = false;  // data to estimate it from, that is at least four values
};

// Smooths `values`, at least one, all finite and at most 1e300 in size.
SimpleSmoothing Smooth(std::span<const double> values, const WeightChoice& choice);

}  // namespace tsffit

#endif  // TSFFIT_CROSTON_SIMPLEWEIGHT_H_
