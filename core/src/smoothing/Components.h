#ifndef TSFFIT_SMOOTHING_COMPONENTS_H_
#define TSFFIT_SMOOTHING_COMPONENTS_H_

#include <span>
#include <vector>

#include "series/Scale.h"
#include "smoothing/Kind.h"

namespace tsffit {

// Level, trend and seasonal values at one moment. `season` has one value per position of the
// cycle; position 0 is that of the first case of the fit. Empty without a season.
struct Components {
  double level = 0;
  double trend = 0;
  std::vector<double> season;
};

// The scale that a kind is searched on. Additive kinds are equivariant under shift and unit; a
// multiplicative season knows no shift.
Scale ScaleFor(Season season, std::span<const double> series);

// Components that were found on a scale, in the units of the series.
Components ScaledUp(Components c, const Scale& scale, Season season);

// Moves the mean of the seasonal values into level and trend, which changes no forecast: mean 0
// with an additive season, 1 with a multiplicative one.
void NormaliseSeason(Components& c, Season season);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_COMPONENTS_H_
