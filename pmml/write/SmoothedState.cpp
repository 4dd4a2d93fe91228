#include "pmml/write/SmoothedState.h"

#include <algorithm>
#include <iterator>

#include <tsfcore/MV.h>

#include "kinds/SmoothingKind.h"

namespace tsx::pmml {

namespace {

bool IsMissing(double value) { return value == MV::gMissingValue; }

double DampingOf(const ESForecastState& state) {
  const int position = state.GetESModelSpec().GetParameterIndex(ESModelSpec::kDamping);
  const std::valarray<double>& estimates = state.GetParameterEstimates();
  if (position < 0 || static_cast<std::size_t>(position) >= estimates.size()) return 0;
  return estimates[static_cast<std::size_t>(position)];
}

void MarkPresent(SmoothedState& s, int kind) {
  if (IsMissing(s.level)) return;
  s.has_level = true;
  if (kinds::ExpectsTrend(kind)) {
    s.has_trend = !IsMissing(s.trend);
    if (!s.has_trend) return;
  }
  s.has_season = s.season_length != 1 && std::none_of(s.season.begin(), s.season.end(), IsMissing);
}

}  // namespace

SmoothedState ReadSmoothedState(const ESForecastState* state) {
  SmoothedState s;
  if (state == nullptr) return s;
  const ESForecastState::SmState& smoothed = state->GetSmState();
  s.level = smoothed.level;
  s.trend = smoothed.trend;
  s.phase = static_cast<double>(smoothed.phase);
  const std::size_t count = smoothed.season.size();
  if (count != 0) s.season.assign(std::begin(smoothed.season), std::end(smoothed.season));
  s.season_length = count == 0 ? 1 : static_cast<double>(count);
  s.phi = DampingOf(*state);
  MarkPresent(s, state->GetESModelSpec().GetKind());
  return s;
}

}  // namespace tsx::pmml
