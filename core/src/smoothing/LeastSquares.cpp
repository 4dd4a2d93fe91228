#include "smoothing/LeastSquares.h"

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
      season_adjoint_(traits.season == Season::kNone ? 0 : seasonLength) {
  components_.season.resize(season_adjoint_.size());
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
    if (y != MV::gMissingValue) sse += (y - forecast) * (y - forecast);
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
    if (y == MV::gMissingValue) {
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

// Each bar is the derivative of half the sum of squares by the variable it stands for. Returns the
// derivatives by the gains; those by the starting components go to `gradient`.
template <bool kTrend, Season kSeason>
Gains SmoothingProblem::Backward(const Gains& gains, std::span<double> gradient) {
  Gains gainBar{.level = 0, .trend = 0, .season = 0, .damping = 0};
  double levelBar = 0;
  double trendBar = 0;
  std::fill(season_adjoint_.begin(), season_adjoint_.end(), 0.0);
  std::size_t position = kSeason == Season::kNone ? 0 : series_.size() % season_length_;
  for (std::size_t t = series_.size(); t-- > 0;) {
    const Moment& now = path_[t];
    if constexpr (kSeason != Season::kNone) {
      position = (position == 0 ? season_length_ : position) - 1;
    }
    const bool seen = series_[t] != MV::gMissingValue;
    double lineBar = levelBar;
    if constexpr (kSeason == Season::kMultiplicative) {
      // r = e / S corrects level and trend, u = e / q the season; forecast q S.
      double& seasonBar = season_adjoint_[position];
      const double r = now.error * now.per_season;
      const double u = now.error * now.per_line;
      gainBar.level += levelBar * r;
      gainBar.trend += trendBar * r;
      gainBar.season += seasonBar * u;
      if (seen) {
        const double rBar = (gains.level * levelBar + gains.trend * trendBar) * now.per_season;
        const double uBar = gains.season * seasonBar * now.per_line;
        const double errorBar = now.error + rBar + uBar;
        lineBar -= uBar * u + errorBar * now.season;
        seasonBar -= rBar * r + errorBar * now.line;
      }
    } else {
      double* seasonBar = kSeason == Season::kNone ? nullptr : &season_adjoint_[position];
      gainBar.level += levelBar * now.error;
      if constexpr (kTrend) gainBar.trend += trendBar * now.error;
      if constexpr (kSeason == Season::kAdditive) gainBar.season += *seasonBar * now.error;
      if (seen) {
        double errorBar = now.error + gains.level * levelBar;
        if constexpr (kTrend) errorBar += gains.trend * trendBar;
        if constexpr (kSeason == Season::kAdditive) {
          errorBar += gains.season * *seasonBar;
          *seasonBar -= errorBar;
        }
        lineBar -= errorBar;
      }
    }
    levelBar = lineBar;
    if constexpr (kTrend) {
      gainBar.damping += (trendBar + lineBar) * now.trend;
      trendBar = (trendBar + lineBar) * gains.damping;
    }
  }
  gradient[layout_.level] = levelBar;
  if constexpr (kTrend) gradient[layout_.trend] = trendBar;
  std::copy(season_adjoint_.begin(), season_adjoint_.end(),
            gradient.begin() + static_cast<std::ptrdiff_t>(layout_.season));
  return gainBar;
}

double SmoothingProblem::Sse(std::span<const double> parameters, std::span<double> gradient) {
  LoadStart(parameters);
  const Gains gains = GainsAt(parameters);
  double sse = 0;
  const Gains gainBar = ForShape(traits_, [&]<bool kTrend, Season kSeason>() {
    sse = Forward<kTrend, kSeason>(gains);
    return std::isfinite(sse) ? Backward<kTrend, kSeason>(gains, gradient) : Gains{};
  });
  if (!std::isfinite(sse)) {
    std::fill(gradient.begin(), gradient.end(), 0.0);
    return std::numeric_limits<double>::infinity();
  }
  for (std::size_t w = 0; w < WeightCount(); ++w) {
    const Gains slope = GainSlopes(traits_, parameters.first(WeightCount()), static_cast<int>(w));
    gradient[w] = gainBar.level * slope.level + gainBar.trend * slope.trend +
                  gainBar.season * slope.season + gainBar.damping * slope.damping;
  }
  for (double& derivative : gradient) derivative *= 2;
  return sse;
}

}  // namespace tsffit
