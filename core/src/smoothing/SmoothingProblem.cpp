#include "smoothing/SmoothingProblem.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tsffit {

ParameterLayout LayoutOf(const KindTraits& traits, std::size_t seasonLength) {
  ParameterLayout layout;
  layout.level = static_cast<std::size_t>(traits.weight_count);
  layout.trend = layout.level + 1;
  layout.season = layout.trend + (traits.trend ? 1 : 0);
  layout.size = layout.season + (traits.season == Season::kNone ? 0 : seasonLength);
  return layout;
}

SmoothingProblem::SmoothingProblem(const KindTraits& traits, std::span<const double> series,
                                   std::size_t seasonLength)
    : traits_(traits),
      series_(series),
      season_length_(seasonLength),
      layout_(LayoutOf(traits, seasonLength)),
      path_(series.size()),
      season_bar_(traits.season == Season::kNone ? 0 : seasonLength) {
  components_.season.resize(season_bar_.size());
}

std::vector<double> SmoothingProblem::Pack(std::span<const double> weights,
                                           const Components& start) const {
  std::vector<double> parameters(weights.begin(), weights.end());
  parameters.push_back(start.level);
  if (traits_.trend) parameters.push_back(start.trend);
  parameters.insert(parameters.end(), start.season.begin(), start.season.end());
  return parameters;
}

Gains SmoothingProblem::GainsAt(std::span<const double> parameters) const {
  return GainsOf(traits_, parameters.first(WeightCount()));
}

Components SmoothingProblem::StartAt(std::span<const double> parameters) const {
  const auto season = parameters.subspan(layout_.season);
  return {.level = parameters[layout_.level],
          .trend = traits_.trend ? parameters[layout_.trend] : 0,
          .season = std::vector<double>(season.begin(), season.end())};
}

void SmoothingProblem::LoadStart(std::span<const double> parameters) {
  components_.level = parameters[layout_.level];
  components_.trend = traits_.trend ? parameters[layout_.trend] : 0;
  std::copy(parameters.begin() + static_cast<std::ptrdiff_t>(layout_.season), parameters.end(),
            components_.season.begin());
}

double SmoothingProblem::Sse(std::span<const double> parameters) {
  LoadStart(parameters);
  double sse = 0;
  const auto addSquare = [&](std::size_t t, double forecast) {
    const double y = series_[t];
    if (!IsMissing(y)) sse += (y - forecast) * (y - forecast);
  };
  const bool inside = ForShape(traits_, [&]<bool kTrend, Season kSeason>() {
    return Walk<kTrend, kSeason>(series_, GainsAt(parameters), components_, addSquare);
  });
  return inside && std::isfinite(sse) ? sse : std::numeric_limits<double>::infinity();
}

template <bool kTrend, Season kSeason>
double SmoothingProblem::Forward(const Gains& gains) {
  using OneStep = Step<kTrend, kSeason>;
  Components c;
  std::swap(c, components_);
  double sse = 0;
  std::size_t position = 0;
  bool inside = true;
  for (std::size_t t = 0; t < series_.size(); ++t) {
    Moment& now = path_[t];
    const double y = series_[t];
    const double q = OneStep::TrendLine(c, gains);
    const double s = kSeason == Season::kNone ? 0 : c.season[position];
    inside = inside && OneStep::Allows(q, s);
    now = {.line = q, .trend = c.trend, .season = s};
    if constexpr (kSeason == Season::kMultiplicative) {
      now.per_line = 1 / q;
      now.per_season = 1 / s;
    }
    if (IsMissing(y)) {
      OneStep::Pass(c, gains, q);
    } else {
      now.error = y - OneStep::Forecast(q, s);
      sse += now.error * now.error;
      OneStep::Correct(c, gains, position, q, y);
    }
    if (kSeason != Season::kNone && ++position == c.season.size()) position = 0;
  }
  std::swap(c, components_);
  return inside ? sse : std::numeric_limits<double>::infinity();
}

// One step of the adjoint recursion: from the derivatives by the components after a case to those
// by the components before it.
template <bool kTrend, Season kSeason>
void SmoothingProblem::Unstep(const Gains& gains, const Moment& now, bool seen, double& seasonBar,
                              Bars& bars) {
  // r = e / S corrects level and trend of a multiplicative model, u = e / q the season.
  constexpr bool kRatios = kSeason == Season::kMultiplicative;
  const double r = kRatios ? now.error * now.per_season : now.error;
  const double u = kRatios ? now.error * now.per_line : now.error;
  bars.gains.level += bars.level * r;
  if constexpr (kTrend) bars.gains.trend += bars.trend * r;
  if constexpr (kSeason != Season::kNone) bars.gains.season += seasonBar * u;

  double lineBar = bars.level;
  if (seen) {
    double rBar = gains.level * bars.level;
    if constexpr (kTrend) rBar += gains.trend * bars.trend;
    double uBar = 0;
    if constexpr (kSeason != Season::kNone) uBar = gains.season * seasonBar;
    if constexpr (kRatios) {
      rBar *= now.per_season;
      uBar *= now.per_line;
      const double errorBar = now.error + rBar + uBar;
      lineBar -= uBar * u + errorBar * now.season;
      seasonBar -= rBar * r + errorBar * now.line;
    } else {
      const double errorBar = now.error + rBar + uBar;
      lineBar -= errorBar;
      if constexpr (kSeason == Season::kAdditive) seasonBar -= errorBar;
    }
  }
  bars.level = lineBar;
  if constexpr (kTrend) {
    bars.gains.damping += (bars.trend + lineBar) * now.trend;
    bars.trend = (bars.trend + lineBar) * gains.damping;
  }
}

template <bool kTrend, Season kSeason>
SmoothingProblem::Bars SmoothingProblem::Backward(const Gains& gains) {
  Bars bars;
  double none = 0;
  std::fill(season_bar_.begin(), season_bar_.end(), 0.0);
  std::size_t position = kSeason == Season::kNone ? 0 : series_.size() % season_length_;
  for (std::size_t t = series_.size(); t-- > 0;) {
    if (kSeason != Season::kNone) position = (position == 0 ? season_length_ : position) - 1;
    double& seasonBar = kSeason == Season::kNone ? none : season_bar_[position];
    Unstep<kTrend, kSeason>(gains, path_[t], !IsMissing(series_[t]), seasonBar, bars);
  }
  return bars;
}

double SmoothingProblem::Sse(std::span<const double> parameters, std::span<double> gradient) {
  LoadStart(parameters);
  const Gains gains = GainsAt(parameters);
  double sse = 0;
  const Bars bars = ForShape(traits_, [&]<bool kTrend, Season kSeason>() {
    sse = Forward<kTrend, kSeason>(gains);
    return std::isfinite(sse) ? Backward<kTrend, kSeason>(gains) : Bars{};
  });
  std::fill(gradient.begin(), gradient.end(), 0.0);
  if (!std::isfinite(sse)) return std::numeric_limits<double>::infinity();

  for (std::size_t w = 0; w < WeightCount(); ++w) {
    const Gains slope = GainSlopes(traits_, parameters.first(WeightCount()), static_cast<int>(w));
    gradient[w] = 2 * (bars.gains.level * slope.level + bars.gains.trend * slope.trend +
                       bars.gains.season * slope.season + bars.gains.damping * slope.damping);
  }
  gradient[layout_.level] = 2 * bars.level;
  if (traits_.trend) gradient[layout_.trend] = 2 * bars.trend;
  for (std::size_t j = 0; j < season_bar_.size(); ++j) {
    gradient[layout_.season + j] = 2 * season_bar_[j];
  }
  return sse;
}

}  // namespace tsffit
