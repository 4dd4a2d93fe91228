#include "smoothing/Kind.h"

namespace tsffit {

namespace {

constexpr double kLeastBrownWeight = 1e-3;

double At(std::span<const double> weights, int position, double otherwise) {
  return position < 0 ? otherwise : weights[static_cast<std::size_t>(position)];
}

}  // namespace

KindTraits TraitsOf(int kind) {
  const kinds::SmoothingKind& facts = *kinds::FindSmoothingKind(kind);
  const ESModelSpec spec(ESModelSpec::ForKind(kind, 1));
  KindTraits traits;
  traits.trend = facts.has_trend();
  traits.damped = facts.trend == kinds::Trend::kDamped;
  traits.brown = facts.trend == kinds::Trend::kBrown;
  traits.season = facts.season;
  traits.weight_count = static_cast<int>(spec.GetParameterCount(true));
  traits.trend_weight = spec.GetParameterIndex(ESModelSpec::kTrend);
  traits.season_weight = spec.GetParameterIndex(ESModelSpec::kSeason);
  traits.damping_weight = spec.GetParameterIndex(ESModelSpec::kDamping);
  if (traits.brown) traits.least_level_weight = kLeastBrownWeight;
  return traits;
}

Gains GainsOf(const KindTraits& traits, std::span<const double> weights) {
  const double a = weights[0];
  if (traits.brown) return {.level = a * (2 - a), .trend = a * a, .season = 0, .damping = 1};
  return {.level = a,
          .trend = a * At(weights, traits.trend_weight, 0),
          .season = (1 - a) * At(weights, traits.season_weight, 0),
          .damping = At(weights, traits.damping_weight, 1)};
}

Gains GainSlopes(const KindTraits& traits, std::span<const double> weights, int weight) {
  const double a = weights[0];
  Gains slopes{.level = 0, .trend = 0, .season = 0, .damping = 0};
  if (weight == 0 && traits.brown) {
    slopes.level = 2 - 2 * a;
    slopes.trend = 2 * a;
  } else if (weight == 0) {
    slopes.level = 1;
    slopes.trend = At(weights, traits.trend_weight, 0);
    slopes.season = -At(weights, traits.season_weight, 0);
  } else if (weight == traits.trend_weight) {
    slopes.trend = a;
  } else if (weight == traits.season_weight) {
    slopes.season = 1 - a;
  } else {
    slopes.damping = 1;
  }
  return slopes;
}

}  // namespace tsffit
