#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include <tsfcore/ESForecastState.h>
#include <tsffit/Smoothing.h>

#include "series/FitStatistics.h"
#include "series/Observed.h"
#include "series/Scale.h"
#include "series/Transform.h"
#include "smoothing/Check.h"
#include "smoothing/Search.h"
#include "smoothing/StdErrors.h"

namespace tsffit {

namespace {

// The largest error, in units of the series, that rounding alone may leave: of the data, relative
// to its largest value, and of the recursion on a series of unit size.
double RoundingError(std::span<const double> series, double unit) {
  double largest = 0;
  for (const double y : series) {
    if (!IsMissing(y)) largest = std::max(largest, std::abs(y));
  }
  return 4e-15 * largest / unit + 1e-13;
}

// Differencing after which a kind's errors and its series are on the same, stationary scale.
// Hyndman, Koehler, Ord and Snyder (2008), table 11.1; EstimationInfo.h lists it.
Differencing DifferencingOf(const KindTraits& traits, std::size_t seasonLength) {
  Differencing differencing;
  const bool seasonal = traits.season != Season::kNone;
  differencing.seasonal = seasonal ? 1 : 0;
  differencing.season_length = seasonLength;
  if (seasonal) {
    differencing.regular = traits.trend ? 1 : 0;
  } else {
    differencing.regular = traits.trend && !traits.damped ? 2 : 1;
  }
  return differencing;
}

// What the recursion makes of the whole span at the solution.
struct Replay {
  std::vector<double> forecasts;  // modelled scale, one per case
  Components final;
};

Replay ReplayAt(const SmoothingProblem& problem, const std::vector<double>& parameters,
                const Scale& scale) {
  Replay replay;
  replay.final = problem.StartAt(parameters);
  const auto keep = [&](std::size_t, double forecast) {
    replay.forecasts.push_back(scale.Up(forecast));
  };
  ForShape(problem.Traits(), [&]<bool kTrend, Season kSeason>() {
    return Walk<kTrend, kSeason>(problem.Series(), problem.GainsAt(parameters), replay.final, keep);
  });
  NormaliseSeason(replay.final, problem.Traits().season);
  replay.final = ScaledUp(std::move(replay.final), scale, problem.Traits().season);
  return replay;
}

ESForecastState::SmState Exported(const KindTraits& traits, const Components& c, double levelWeight,
                                  std::size_t cases) {
  ESForecastState::SmState state;
  state.level = c.level;
  state.trend = c.trend;
  if (traits.brown) state.level -= c.trend * (1 - levelWeight) / levelWeight;
  if (!c.season.empty()) {
    state.season = std::valarray<double>(c.season.data(), c.season.size());
    state.phase = cases % c.season.size();
  }
  return state;
}

// One fit over its span, from transformation to model.
class Fitter {
 public:
  Fitter(std::span<const double> series, std::size_t first, const SmoothingOptions& options)
      : series_(series),
        first_(first),
        observed_(series.subspan(first)),
        options_(options),
        traits_(TraitsOf(options.kind)),
        season_length_(traits_.season == Season::kNone ? 1 : options.season_length),
        modelled_(ModelledSeries(observed_, options.function_type)),
        scale_(ScaleFor(traits_.season, modelled_)),
        scaled_(Scaled(modelled_, scale_)) {}

  void Run(SmoothingFit& fit) const {
    SmoothingProblem problem(traits_, scaled_, season_length_);
    const double rounding = RoundingError(modelled_, scale_.unit);
    const double exactSse = rounding * rounding * static_cast<double>(CountObserved(observed_));
    const SearchResult found = Search(problem, exactSse);
    const bool exact = found.sse <= exactSse;

    Replay replay = ReplayAt(problem, found.parameters, scale_);
    if (exact) TakeObserved(modelled_, replay.forecasts);
    fit.summary = {.sse = exact ? 0 : found.sse * scale_.unit * scale_.unit,
                   .iterations = found.evaluations,
                   .starts = found.starts,
                   .converged = found.converged};
    fit.fitted = FittedOnOriginalScale(replay.forecasts);
    if (exact) TakeObserved(series_, fit.fitted);
    const std::vector<double> errors =
        exact ? std::vector<double>(problem.WeightCount(), MV::gMissingValue)
              : WeightStdErrors(problem, found.parameters);
    fit.model = Model(State(found.parameters, errors, replay.final),
                      EstimationInfo(Statistics(replay.forecasts, fit.fitted)));
  }

 private:
  ESForecastState::Fields State(const std::vector<double>& parameters,
                                const std::vector<double>& stdErrors,
                                const Components& final) const {
    ESForecastState::Fields state;
    state.spec = ESModelSpec(
        ESModelSpec::ForKind(options_.kind, options_.season_length, options_.function_type));
    state.estimates = std::valarray<double>(parameters.data(), stdErrors.size());
    state.std_errors = std::valarray<double>(stdErrors.data(), stdErrors.size());
    state.smoothed = Exported(traits_, final, parameters[0], observed_.size());
    return state;
  }

  TSFModel Model(ESForecastState::Fields state, const EstimationInfo& info) const {
    TSFModelImp::Fields model;
    model.state = std::make_unique<ESForecastState>(std::move(state));
    model.info = info;
    model.history = std::valarray<double>(series_.data(), series_.size());
    return TSFModel(new TSFModelImp(std::move(model)));
  }

  static void TakeObserved(std::span<const double> series, std::vector<double>& forecasts) {
    for (std::size_t t = 0; t < forecasts.size(); ++t) {
      if (!IsMissing(series[t])) forecasts[t] = series[t];
    }
  }

  // One value per case of the whole series; missing before the first observed case.
  std::vector<double> FittedOnOriginalScale(const std::vector<double>& forecasts) const {
    std::vector<double> fitted(first_, MV::gMissingValue);
    for (const double forecast : forecasts) {
      fitted.push_back(Untransformed(options_.function_type, forecast));
    }
    return fitted;
  }

  EstimationInfo::Fields Statistics(const std::vector<double>& forecasts,
                                    const std::vector<double>& fitted) const {
    std::vector<double> errors(modelled_);
    for (std::size_t t = 0; t < errors.size(); ++t) {
      if (!IsMissing(errors[t])) errors[t] -= forecasts[t];
    }
    const FittedSeries all{.observed = observed_,
                           .fitted = std::span<const double>(fitted).subspan(first_),
                           .modelled = modelled_,
                           .modelled_errors = errors};
    EstimationInfo::Fields info =
        FitStatistics(all, static_cast<unsigned>(traits_.weight_count),
                      DifferencingOf(traits_, season_length_), options_.ljung_box_lags);
    info.span = {.start = first_, .length = observed_.size()};
    return info;
  }

  std::span<const double> series_;
  std::size_t first_;
  std::span<const double> observed_;
  const SmoothingOptions& options_;
  KindTraits traits_;
  std::size_t season_length_;
  std::vector<double> modelled_;
  Scale scale_;
  std::vector<double> scaled_;
};

}  // namespace

SmoothingFit FitSmoothing(std::span<const double> series, const SmoothingOptions& options) {
  SmoothingFit fit;
  if (!CheckSeries(series, options, fit)) return fit;
  Fitter(series, FirstObserved(series), options).Run(fit);
  return fit;
}

}  // namespace tsffit
