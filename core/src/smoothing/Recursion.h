#ifndef TSFFIT_SMOOTHING_RECURSION_H_
#define TSFFIT_SMOOTHING_RECURSION_H_

#include <cmath>
#include <cstddef>
#include <span>

#include "series/Observed.h"
#include "smoothing/Components.h"

namespace tsffit {

// The region of a multiplicative model, for a series of mean 1: seasonal factors stay above the
// first bound, and the trend line (level + damping * trend), by which the recursion divides, stays
// farther from 0 than the second. The line may run below 0, as that of an additive trend may.
inline constexpr double kLeastSeasonFactor = 1e-6;
inline constexpr double kLeastTrendLine = 1e-8;

// One step of the error-correction form. With q = level + damping * trend and e = y - forecast:
//   additive or no season: forecast q + S,  level' = q + gl e,       trend' = phi trend + gt e,
//                          S' = S + gs e
//   multiplicative:        forecast q S,    level' = q + gl e / S,   trend' = trend + gt e / S,
//                          S' = S + gs e / q
// These are equations (1) to (6) of Smoothing.h, their gains put together by GainsOf().
// Gardner (1985), table 1; the multiplicative form is that of Ord, Koehler and Snyder (1997),
// "Estimation and prediction for a class of dynamic nonlinear statistical models", Journal of the
// American Statistical Association 92: the factor is corrected by e / q, not by the new level.
template <bool kTrend, Season kSeason>
struct Step {
  // False when a multiplicative model has left its region.
  static bool Allows(double q, double s) {
    if constexpr (kSeason == Season::kMultiplicative) {
      return std::abs(q) > kLeastTrendLine && s > kLeastSeasonFactor;
    }
    return true;
  }
  static double TrendLine(const Components& c, const Gains& g) {
    return kTrend ? c.level + g.damping * c.trend : c.level;
  }
  static double Forecast(double q, double s) {
    if constexpr (kSeason == Season::kMultiplicative) return q * s;
    return kSeason == Season::kNone ? q : q + s;
  }
  // Takes in the observation `y` at trend line `q`. The ratios are written y / S - q and y / q - S,
  // so that the divisions do not wait for one another.
  static void Correct(Components& c, const Gains& g, std::size_t position, double q, double y) {
    if constexpr (kSeason == Season::kMultiplicative) {
      const double s = c.season[position];
      const double correction = y * (1 / s) - q;
      c.level = q + g.level * correction;
      c.trend += g.trend * correction;
      c.season[position] = s + g.season * (y * (1 / q) - s);
    } else {
      const double e = y - Forecast(q, kSeason == Season::kNone ? 0 : c.season[position]);
      c.level = q + g.level * e;
      if constexpr (kTrend) c.trend = g.damping * c.trend + g.trend * e;
      if constexpr (kSeason == Season::kAdditive) c.season[position] += g.season * e;
    }
  }
  // Passes a missing case: its error counts as 0.
  static void Pass(Components& c, const Gains& g, double q) {
    c.level = q;
    if constexpr (kTrend) c.trend *= g.damping;
  }
};

// Walks `series` from `components` (left at the state after the last case) and tells
// `onCase(case, forecast)` each one-step forecast. False, and stopped there, when a multiplicative
// model leaves its region.
template <bool kTrend, Season kSeason, class OnCase>
bool Walk(std::span<const double> series, const Gains& gains, Components& components,
          OnCase&& onCase) {
  using OneStep = Step<kTrend, kSeason>;
  std::size_t position = 0;
  for (std::size_t t = 0; t < series.size(); ++t) {
    const double q = OneStep::TrendLine(components, gains);
    const double s = kSeason == Season::kNone ? 0 : components.season[position];
    if (!OneStep::Allows(q, s)) return false;
    onCase(t, OneStep::Forecast(q, s));
    if (IsMissing(series[t])) {
      OneStep::Pass(components, gains, q);
    } else {
      OneStep::Correct(components, gains, position, q, series[t]);
    }
    if (kSeason != Season::kNone && ++position == components.season.size()) position = 0;
  }
  return true;
}

// Calls `f.template operator()<kTrend, kSeason>()` for the shape of `traits`.
template <class F>
decltype(auto) ForShape(const KindTraits& traits, F&& f) {
  if (traits.season == Season::kMultiplicative) {
    return f.template operator()<true, Season::kMultiplicative>();
  }
  if (traits.season == Season::kAdditive) {
    return traits.trend ? f.template operator()<true, Season::kAdditive>()
                        : f.template operator()<false, Season::kAdditive>();
  }
  return traits.trend ? f.template operator()<true, Season::kNone>()
                      : f.template operator()<false, Season::kNone>();
}

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_RECURSION_H_
