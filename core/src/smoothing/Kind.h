#ifndef TSFFIT_SMOOTHING_KIND_H_
#define TSFFIT_SMOOTHING_KIND_H_

#include <span>

#include "kinds/SmoothingKind.h"

namespace tsffit {

using kinds::Season;

// What tells the seven kinds apart, in the terms of the recursion and the parameter vector.
struct KindTraits {
  bool trend = false;
  bool damped = false;
  bool brown = false;  // one weight drives both components
  Season season = Season::kNone;
  // Lower bound of the level weight; every other bound is 0 below and 1 above.
  double least_level_weight = 0;
  // Weights in the parameter vector, in the order level, trend, season, damping.
  int weight_count = 1;
  // Position of the trend, season and damping weights; -1 where the kind has none.
  int trend_weight = -1;
  int season_weight = -1;
  int damping_weight = -1;
};

KindTraits TraitsOf(int kind);  // kind is one of ESModelSpec::Kind

// How much of a one-step error each component takes up, and the damping of the trend.
struct Gains {
  double level = 0;
  double trend = 0;
  double season = 0;
  double damping = 1;
};

// Gains of the component form. With weights a (level), g (trend), d (season) and one-step error e
// they are a, a g and (1 - a) d: Gardner (1985), "Exponential smoothing: the state of the art",
// Journal of Forecasting 4, table 1, error-correction form. Brown's double smoothing has a (2 - a)
// and a^2, that is ARIMA(0,2,2) with the double root 1 - a (Gardner 1985, section 3).
Gains GainsOf(const KindTraits& traits, std::span<const double> weights);

// Partial derivatives of GainsOf by one weight.
Gains GainSlopes(const KindTraits& traits, std::span<const double> weights, int weight);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_KIND_H_
