#ifndef TSFFIT_SERIES_SCALE_H_
#define TSFFIT_SERIES_SCALE_H_

#include <span>
#include <vector>

namespace tsffit {

// The shift and unit that bring a series to unit size, so that values of 1e-6 and of 1e9 are
// fitted alike: (y - shift) / unit.
struct Scale {
  double shift = 0;
  double unit = 1;

  double Down(double y) const { return (y - shift) / unit; }
  double Up(double z) const { return z * unit + shift; }
};

// Missing values stay missing and count for nothing; one at least is not.

// Mean 0 and standard deviation 1 (the unit is 1 for a constant series).
Scale StandardScale(std::span<const double> series);

// Mean 1, for models that know no shift.
Scale MeanScale(std::span<const double> series);

std::vector<double> Scaled(std::span<const double> series, const Scale& scale);

}  // namespace tsffit

#endif  // TSFFIT_SERIES_SCALE_H_
