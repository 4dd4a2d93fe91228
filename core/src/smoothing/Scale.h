#ifndef TSFFIT_SMOOTHING_SCALE_H_
#define TSFFIT_SMOOTHING_SCALE_H_

#include <span>
#include <vector>

#include "smoothing/Recursion.h"

namespace tsffit {

// The shift and unit that bring a series to unit size, so that values of 1e-6 and of 1e9 are
// fitted alike: (y - shift) / unit. Additive kinds are equivariant under both (mean 0, standard
// deviation 1); a multiplicative season knows no shift (mean 1).
struct Scale {
  double shift = 0;
  double unit = 1;

  double Down(double y) const { return (y - shift) / unit; }
  double Up(double z) const { return z * unit + shift; }
  Components Up(Components c, Season season) const;
};

// Missing values stay missing and count for nothing; one at least is not.
Scale ScaleOf(std::span<const double> series, Season season);
std::vector<double> Scaled(std::span<const double> series, const Scale& scale);

// Moves the mean of the seasonal values into level and trend, which changes no forecast: mean 0
// with an additive season, 1 with a multiplicative one.
void NormaliseSeason(Components& components, Season season);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_SCALE_H_
