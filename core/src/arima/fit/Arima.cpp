#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>

#include <tsfcore/MV.h>
#include <tsffit/Arima.h>

#include "arima/fit/Check.h"
#include "arima/fit/FinalState.h"
#include "arima/fit/Likelihood.h"
#include "arima/fit/Search.h"
#include "arima/fit/SearchSpace.h"
#include "arima/fit/StdErrors.h"
#include "arima/model/Design.h"
#include "arima/model/Effects.h"
#include "arima/model/ModelledData.h"
#include "series/FitStatistics.h"
#include "series/LjungBox.h"
#include "series/Observed.h"
#include "series/Refusal.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

// The largest error that arithmetic alone leaves of a value, as a share of it: some hundred times
// the precision of doubles, for the terms that differences and filters add up.
constexpr double kRounding = 1e-13;

// What stands for a coefficient where only its being there counts.
constexpr double kAnyCoefficient = 0.5;

double FiniteOrMissing(double value) { return std::isfinite(value) ? value : MV::gMissingValue; }

// One fit over its span, from transformation to model.
class ArimaFitter {
 public:
  ArimaFitter(std::span<const double> series, std::span<const std::vector<double>> predictors,
              std::size_t first, const ArimaOptions& options)
      : series_(series),
        first_(first),
        observed_(series.subspan(first)),
        options_(options),
        spec_(CountedFrom(options.spec, first)),
        modelled_(ModelledSeries(observed_, options.spec.y_transform.GetFunctionType())),
        data_(MakeArimaData(spec_, modelled_, predictors, first)) {}

  void Run(ArimaFit& fit) {
    if (!HasRows(fit)) return;
    const Design design(spec_, data_);
    Likelihood likelihood(design, options_.method);
    if (!CanEstimate(likelihood, fit)) return;
    const auto [space, found] = SolveArima(likelihood);
    if (!found.best.usable) {
      Refuse(fit, FitStatus::kNotIdentified, "the likelihood of the model has no maximum");
      return;
    }
    if (IsRounding(found.best)) {
      NothingLeft("it follows the series without an error", fit);
      return;
    }
    Deliver(likelihood, space, found, fit);
  }

 private:
  // Whether the longest lags leave cases to explain, more of them than coefficients.
  bool HasRows(ArimaFit& fit) const {
    const Arma arma = LongestArma();
    std::size_t lost = FirstPeriod(spec_);
    std::size_t needed = spec_.GetParameterCount(true) + kSpareCases;
    if (options_.method == ArimaMethod::kCls) lost += arma.ar.size();
    needed = std::max({needed, arma.ar.size() + 1, arma.ma.size() + 1});
    for (unsigned i = 0; i < spec_.GetXCount(); ++i) {
      needed = std::max(needed, TransferFunctionOf(spec_, i, AnyParameters()).denominator.size());
    }
    const std::size_t there = CountObserved(observed_);
    return there >= lost + needed || Refuse(fit, TooShort(lost + needed, there));
  }

  // A noise model with every lag that the specification names.
  Arma LongestArma() const { return NoiseModel(spec_, AnyParameters()); }

  std::vector<double> AnyParameters() const {
    return std::vector<double>(spec_.GetParameterCount(true), kAnyCoefficient);
  }

  bool CanEstimate(const Likelihood& likelihood, ArimaFit& fit) const {
    if (!likelihood.IsIdentified()) {
      return Refuse(fit, FitStatus::kNotIdentified,
                    "a period of the season is missing in every season");
    }
    const Evaluation white = likelihood.At(std::vector<double>(spec_.GetParameterCount(true), 0.0));
    if (!white.usable) {
      return Refuse(fit, FitStatus::kNotIdentified,
                    "the differences leave the range of numbers: their order is too high");
    }
    const std::size_t needed = spec_.GetParameterCount(true) + kSpareCases;
    if (white.residuals < needed) {
      const std::size_t there = CountObserved(observed_);
      return Refuse(fit, TooShort(there + needed - white.residuals, there));
    }
    if (IsRounding(white)) {
      return NothingLeft("after differences and effects the series is constant", fit);
    }
    return true;
  }

  // Whether the residuals are no more than what the arithmetic makes of the values.
  bool IsRounding(const Evaluation& at) const {
    double largest = 1;
    for (const double z : data_.series) {
      if (!IsMissing(z)) largest = std::max(largest, std::abs(z));
    }
    const double rounding = kRounding * largest;
    return at.fit.sse <= rounding * rounding * static_cast<double>(at.residuals);
  }

  bool NothingLeft(const std::string& why, ArimaFit& fit) const {
    std::string message = "the model leaves nothing to explain: " + why;
    // Constants, lines and seasons that repeat themselves; smoothing makes no use of predictors.
    if (spec_.GetXCount() == 0) message += "; a smoothing model can continue such a series";
    return Refuse(fit, FitStatus::kNotIdentified, std::move(message));
  }

  void Deliver(const Likelihood& likelihood, const SearchSpace& space,
               const ArimaSearchResult& found, ArimaFit& fit) {
    Evaluation best = found.best;
    MarkUnsearched(space, likelihood, best.parameters);
    unsigned estimated = 0;
    for (const double value : best.parameters) estimated += IsMissing(value) ? 0 : 1;

    const double unit = data_.unit;
    const auto n = static_cast<double>(best.residuals);
    fit.summary = {.log_likelihood = best.LogLikelihood() - n * std::log(unit),
                   .sse = FiniteOrMissing(best.fit.sse * unit * unit),
                   .error_variance = FiniteOrMissing(best.fit.sse / (n - estimated) * unit * unit),
                   .residuals = best.residuals,
                   .estimated = estimated,
                   .evaluations = found.evaluations,
                   .starts = found.starts,
                   .converged = found.converged};
    const ArimaReplay replay = ReplayArima(likelihood, best);
    fit.fitted = OnOriginalScale(replay.predictions);
    fit.residuals.assign(first_, MV::gMissingValue);
    for (const double error : replay.standardised) {
      fit.residuals.push_back(IsMissing(error) ? error : error * unit);
    }
    std::vector<double> stdErrors = ArimaStdErrors(likelihood, space, best, estimated);
    ARMAForecastState::Common common{
        .spec = spec_,
        .estimates = InUnits(likelihood, best.parameters),
        .std_errors = InUnits(likelihood, stdErrors),
        .period = {.start_index = first_, .length = observed_.size(), .period_deficit = 0}};
    TSFModelImp::Fields model;
    model.state = MakeArimaState(likelihood, best, replay, std::move(common));
    model.info = EstimationInfo(Statistics(replay, space, fit));
    model.history = std::valarray<double>(series_.data(), series_.size());
    model.predictor_count = spec_.GetXCount();
    fit.model = TSFModel(new TSFModelImp(std::move(model)));
  }

  // Coefficients that belong to an effect that is left out are not estimated either.
  void MarkUnsearched(const SearchSpace& space, const Likelihood& likelihood,
                      std::vector<double>& parameters) const {
    std::vector<bool> known(parameters.size(), false);
    for (const std::size_t position : space.Positions()) known[position] = true;
    for (const std::size_t position : likelihood.GetDesign().LinearPositions()) {
      known[position] = true;
    }
    for (std::size_t i = 0; i < parameters.size(); ++i) {
      if (!known[i]) parameters[i] = MV::gMissingValue;
    }
  }

  // Parameters or their standard errors, linear ones brought to the unit of the data.
  std::valarray<double> InUnits(const Likelihood& likelihood, std::vector<double> values) const {
    for (const std::size_t position : likelihood.GetDesign().LinearPositions()) {
      if (!IsMissing(values[position])) values[position] *= data_.unit;
    }
    return {values.data(), values.size()};
  }

  std::vector<double> OnOriginalScale(const std::vector<double>& predictions) const {
    const int function = spec_.GetYTransformSpec().GetFunctionType();
    std::vector<double> fitted(first_, MV::gMissingValue);
    for (const double z : predictions) {
      fitted.push_back(IsMissing(z) ? z : Untransformed(function, z * data_.unit));
    }
    return fitted;
  }

  // The record of the fit: what any series of forecasts has, then what the likelihood adds.
  EstimationInfo::Fields Statistics(const ArimaReplay& replay, const SearchSpace& space,
                                    const ArimaFit& fit) const {
    EstimationInfo::Fields info = ForecastStatistics(replay, fit);
    info.span = {.start = first_, .length = observed_.size()};
    info.degrees_of_freedom = fit.summary.residuals - fit.summary.estimated;
    info.error_variance = fit.summary.error_variance;
    const double k = fit.summary.estimated;
    const double logLikelihood = fit.summary.log_likelihood;
    info.statistics[BFSharedConst::kLogLikelihood] = logLikelihood;
    info.statistics[BFSharedConst::kAkaikeIC] = 2 * k - 2 * logLikelihood;
    info.statistics[BFSharedConst::kBayesIC] =
        k * std::log(static_cast<double>(fit.summary.residuals)) - 2 * logLikelihood;
    info.ljung_box =
        LjungBoxTest(replay.standardised, options_.ljung_box_lags, NoiseCoefficients(space));
    return info;
  }

  EstimationInfo::Fields ForecastStatistics(const ArimaReplay& replay, const ArimaFit& fit) const {
    std::vector<double> observed(observed_.begin(), observed_.end());
    std::vector<double> errors(observed.size(), MV::gMissingValue);
    std::size_t scored = 0;
    for (std::size_t t = 0; t < errors.size(); ++t) {
      if (IsMissing(replay.standardised[t])) {
        observed[t] = MV::gMissingValue;
        continue;
      }
      ++scored;
      errors[t] = modelled_[t] - replay.predictions[t] * data_.unit;
    }
    const FittedSeries all{.observed = observed,
                           .fitted = std::span<const double>(fit.fitted).subspan(first_),
                           .modelled = modelled_,
                           .modelled_errors = errors,
                           .spent = scored - fit.summary.residuals};
    Differencing differencing{.season_length = spec_.GetSeasonLength(true)};
    spec_.GetYDiff(differencing.regular, differencing.seasonal);
    return FitStatistics(all, fit.summary.estimated, differencing, 0);
  }

  static unsigned NoiseCoefficients(const SearchSpace& space) {
    unsigned count = 0;
    for (const Block& block : space.Blocks()) {
      if (block.kind == BlockKind::kAr || block.kind == BlockKind::kMa) {
        count += static_cast<unsigned>(block.Count());
      }
    }
    return count;
  }

  std::span<const double> series_;
  std::size_t first_;
  std::span<const double> observed_;
  const ArimaOptions& options_;
  AMModelSpec spec_;
  std::vector<double> modelled_;
  ArimaData data_;
};

}  // namespace

ArimaFit FitArima(std::span<const double> series, std::span<const std::vector<double>> predictors,
                  const ArimaOptions& options) {
  ArimaFit fit;
  if (!CheckArima(series, predictors, options, fit)) return fit;
  const std::size_t first = FirstObserved(series);
  if (first == series.size()) {
    Refuse(fit, NothingObserved());
    return fit;
  }
  ArimaFitter(series, predictors, first, options).Run(fit);
  return fit;
}

}  // namespace tsffit
