#ifndef TSXPORT_KINDS_SMOOTHINGKIND_H_
#define TSXPORT_KINDS_SMOOTHINGKIND_H_

#include <tsfcore/ESModelSpec.h>

// What tells the kinds of exponential smoothing apart, said once for the core, the encoders and the
// command. Header-only, and of the contract it uses nothing but the enumerators of
// ESModelSpec::Kind, so that it goes with the contract's headers of any core.
//
//   const kinds::SmoothingKind* holt = kinds::FindSmoothingKind(ESModelSpec::kHolt);
//   holt->has_trend();  // true
namespace kinds {

enum class Season { kNone, kAdditive, kMultiplicative };

// The part of a model that follows the slope of a series.
enum class Trend {
  kNone,
  kLinear,
  kDamped,
  kBrown,  // linear, without a weight of its own: the level's weight drives both
};

struct SmoothingKind {
  int kind;  // ESModelSpec::Kind
  Trend trend;
  Season season;

  // Whether the state holds a trend.
  constexpr bool has_trend() const { return trend != Trend::kNone; }
  constexpr bool has_season() const { return season != Season::kNone; }
  // Whether the parameter vector holds the weight. Every kind has one of the level; where there are
  // more, they follow it in this order.
  constexpr bool has_trend_weight() const { return has_trend() && trend != Trend::kBrown; }
  constexpr bool has_season_weight() const { return has_season(); }
  constexpr bool has_damping_weight() const { return trend == Trend::kDamped; }
};

// In the order of ESModelSpec::Kind.
inline constexpr SmoothingKind kSmoothingKinds[] = {
    {ESModelSpec::kAdditiveWinters, Trend::kLinear, Season::kAdditive},
    {ESModelSpec::kBrown, Trend::kBrown, Season::kNone},
    {ESModelSpec::kDampedTrend, Trend::kDamped, Season::kNone},
    {ESModelSpec::kHolt, Trend::kLinear, Season::kNone},
    {ESModelSpec::kMultiplicativeWinters, Trend::kLinear, Season::kMultiplicative},
    {ESModelSpec::kSimpleSeasonal, Trend::kNone, Season::kAdditive},
    {ESModelSpec::kSimple, Trend::kNone, Season::kNone},
};

// The facts of a kind; null for a code that is none.
constexpr const SmoothingKind* FindSmoothingKind(int kind) {
  for (const SmoothingKind& facts : kSmoothingKinds) {
    if (facts.kind == kind) return &facts;
  }
  return nullptr;
}

constexpr bool IsSmoothingKind(int kind) { return FindSmoothingKind(kind) != nullptr; }

// The trend and the season of a kind; none for a code that is no kind.
constexpr Trend TrendOf(int kind) {
  const SmoothingKind* const facts = FindSmoothingKind(kind);
  return facts != nullptr ? facts->trend : Trend::kNone;
}
constexpr Season SeasonOf(int kind) {
  const SmoothingKind* const facts = FindSmoothingKind(kind);
  return facts != nullptr ? facts->season : Season::kNone;
}

// Whether a state of this code is to have a trend. Nobody knows of a code that is no kind, so its
// state is asked for one.
constexpr bool ExpectsTrend(int kind) {
  const SmoothingKind* const facts = FindSmoothingKind(kind);
  return facts == nullptr || facts->has_trend();
}

}  // namespace kinds

#endif  // TSXPORT_KINDS_SMOOTHINGKIND_H_
