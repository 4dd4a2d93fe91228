#include "smoothing/Forecast.h"

#include <algorithm>
#include <vector>

#include "series/Observed.h"
#include "series/OriginalScale.h"
#include "smoothing/Recursion.h"

namespace tsffit {

namespace {

// The final state in the terms of the recursion.
struct Resumed {
  KindTraits traits;
  Gains gains;
  Components components;
  std::size_t phase = 0;
};

Resumed Resume(const ESForecastState& state) {
  Resumed resumed;
  const auto& smoothed = state.GetSmState();
  const auto& estimates = state.GetParameterEstimates();
  resumed.traits = TraitsOf(state.GetESModelSpec().GetKind());
  resumed.gains = GainsOf(resumed.traits, {std::begin(estimates), estimates.size()});
  resumed.components.level = smoothed.level;
  resumed.components.trend = resumed.traits.trend ? smoothed.trend : 0;
  if (resumed.traits.brown) resumed.components.level += smoothed.trend * (1 / estimates[0] - 1);
  if (resumed.traits.season != Season::kNone) {
    resumed.components.season.assign(std::begin(smoothed.season), std::end(smoothed.season));
    resumed.phase = smoothed.phase;
  }
  return resumed;
}

// Whether nothing that the recursion needs is absent: a model may have been written down by hand.
bool CanResume(const ESForecastState& state) {
  const ESModelSpec& spec = state.GetESModelSpec();
  if (!kinds::IsSmoothingKind(spec.GetKind())) return false;
  const KindTraits traits = TraitsOf(spec.GetKind());
  const auto& estimates = state.GetParameterEstimates();
  const auto& smoothed = state.GetSmState();
  if (estimates.size() < static_cast<std::size_t>(traits.weight_count)) return false;
  if (std::any_of(std::begin(estimates), std::begin(estimates) + traits.weight_count, IsMissing)) {
    return false;
  }
  if (IsMissing(smoothed.level) || (traits.trend && IsMissing(smoothed.trend))) return false;
  if (traits.brown && !(estimates[0] > 0)) return false;
  if (traits.season == Season::kNone) return true;
  return smoothed.phase < smoothed.season.size() &&
         std::none_of(std::begin(smoothed.season), std::end(smoothed.season), IsMissing);
}

// Trend lines q and seasonal values for 1 .. horizon periods ahead.
struct Path {
  std::vector<double> line;
  std::vector<double> season;
};

// Equation (1) of Forecast.h.
Path PathOf(const Resumed& from, unsigned horizon) {
  Path path;
  double level = from.components.level;
  double trend = from.components.trend;
  std::size_t position = from.phase;
  for (unsigned h = 0; h < horizon; ++h) {
    trend *= from.gains.damping;
    level += trend;
    path.line.push_back(level);
    if (from.components.season.empty()) continue;
    path.season.push_back(from.components.season[position]);
    position = (position + 1) % from.components.season.size();
  }
  return path;
}

double PointForecast(const Path& path, Season season, std::size_t h) {
  if (season == Season::kNone) return path.line[h];
  return season == Season::kAdditive ? path.line[h] + path.season[h]
                                     : path.line[h] * path.season[h];
}

// What an error of 1 does to level and trend line `steps` periods later: gl + gt (phi + .. +
// phi^steps), that is c_j of equations (2) and (3) of Forecast.h but for the season.
std::vector<double> LineResponses(const Gains& gains, unsigned horizon) {
  std::vector<double> responses = {1};
  double power = 1;
  double sum = 0;
  for (unsigned steps = 1; steps < horizon; ++steps) {
    power *= gains.damping;
    sum += power;
    responses.push_back(gains.level + gains.trend * sum);
  }
  return responses;
}

// Variances of the forecast errors in units of the one-step error variance: equations (2) and (3)
// of Forecast.h, whose sums grow with the horizon; equation (4) with ratios, a sum anew for each.
std::vector<double> RelativeVariances(const Resumed& from, const Path& path, unsigned horizon) {
  const std::vector<double> line = LineResponses(from.gains, horizon);
  const std::size_t length = from.components.season.size();
  const bool ratios = from.traits.season == Season::kMultiplicative;
  std::vector<double> variances;
  double sum = 1;
  for (std::size_t h = 0; h < horizon; ++h) {
    if (ratios) sum = 1;
    for (std::size_t steps = ratios ? 1 : h; steps <= h && steps > 0; ++steps) {
      const std::size_t at = h - steps;
      double response = line[steps] * (ratios ? path.season[h] / path.season[at] : 1);
      if (length > 0 && steps % length == 0) {
        response += from.gains.season * (ratios ? path.line[h] / path.line[at] : 1);
      }
      sum += response * response;
    }
    variances.push_back(sum);
  }
  return variances;
}

}  // namespace

Forecasts ForecastSmoothing(const ESForecastState& state, const ForecastRequest& request) {
  if (!request.future_predictors.empty() || !CanResume(state)) return {};
  if (!(request.confidence > 0 && request.confidence < 1)) return {};
  const Resumed from = Resume(state);
  const Path path = PathOf(from, request.horizon);
  ForecastPath forecasts;
  for (std::size_t h = 0; h < request.horizon; ++h) {
    forecasts.mean.push_back(PointForecast(path, from.traits.season, h));
  }
  forecasts.variance = RelativeVariances(from, path, request.horizon);
  return OnOriginalScale(forecasts, request.error_variance,
                         state.GetESModelSpec().GetYTransformSpec().GetFunctionType(),
                         request.confidence);
}

}  // namespace tsffit
