#include "arima/forecast/Forecast.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>

#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>
#include <tsfcore/MV.h>
#include <tsffit/Arima.h>
#include <tsffit/Forecast.h>

#include "arima/filter/NoiseFilter.h"
#include "arima/filter/StateSpace.h"
#include "arima/model/Effects.h"
#include "series/ConfidenceWidth.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

// Means and variances (in units of the error variance) on the scale of Z.
struct Path {
  std::vector<double> mean{};
  std::vector<double> variance{};
};

// No fit has more; sums of periods and a horizon stay in the range of their types.
constexpr std::uint64_t kMostPeriods = std::numeric_limits<std::uint32_t>::max();

template <typename Values>
bool AllKnown(const Values& values) {
  return std::all_of(std::begin(values), std::end(values),
                     [](double v) { return v != MV::gMissingValue && std::isfinite(v); });
}

std::size_t DenominatorDegree(const AMModelSpec& spec, unsigned i) {
  AMPowers regular;
  AMPowers seasonal;
  spec.GetXDenominator(i, regular, seasonal);
  return Degree(regular) + Degree(seasonal);
}

std::vector<double> ToVector(const std::valarray<double>& values) {
  return {std::begin(values), std::end(values)};
}

// The mean of the differenced series in the periods to come, noise apart. False where the state or
// the predictors' values do not suffice.
class Outlook {
 public:
  Outlook(const ARMAForecastState& state, std::size_t horizon)
      : state_(state),
        spec_(state.GetAMModelSpec()),
        parameters_(ToVector(state.GetParameterEstimates())),
        mean_(horizon, 0.0) {}

  bool Add(std::span<const std::vector<double>> predictors) {
    bool constant = false;
    const unsigned position = spec_.GetMeanYPresent(constant);
    if (constant) {
      for (double& value : mean_) value += ValueOrZero(parameters_[position]);
    }
    for (unsigned i = 0; i < spec_.GetXCount(); ++i) {
      if (!AddPredictor(i, predictors[i])) return false;
    }
    for (unsigned j = 0; j < spec_.GetOutliers().GetOutlierSpecCount(false); ++j) {
      if (!AddOutlier(j)) return false;
    }
    return true;
  }

  const std::vector<double>& Mean() const { return mean_; }

 private:
  bool AddPredictor(unsigned i, const std::vector<double>& future) {
    const std::valarray<double>* past = nullptr;
    const std::valarray<double>* output = nullptr;
    state_.GetXHistory(i, past, output);
    const std::size_t reach = PredictorReach(spec_, i);
    const std::size_t depth = DenominatorDegree(spec_, i);
    if ((past == nullptr ? 0 : past->size()) < reach || future.size() < mean_.size()) return false;
    if ((output == nullptr ? 0 : output->size()) < depth) return false;
    const TransferFunction transfer = TransferFunctionOf(spec_, i, parameters_);

    std::vector<double> x;
    for (std::size_t k = reach; k > 0; --k) x.push_back((*past)[past->size() - k]);
    const int function = spec_.GetXTransformSpec(i).GetFunctionType();
    for (std::size_t h = 0; h < mean_.size(); ++h) {
      if (future[h] == MV::gMissingValue) return false;
      x.push_back(Transformed(function, future[h]));
    }
    std::vector<double> response;
    for (std::size_t k = depth; k > 0; --k) response.push_back((*output)[output->size() - k]);
    if (!AllKnown(x) || !AllKnown(response)) return false;

    const Polynomial filter = Product(Product(transfer.numerator, transfer.seasonal_numerator),
                                      PredictorDifference(spec_, i));
    for (std::size_t h = 0; h < mean_.size(); ++h) {
      double value = 0;
      for (std::size_t k = 0; k < filter.size(); ++k) {
        value += filter[k] * x[h + reach - transfer.delay - k];
      }
      for (std::size_t k = 1; k <= depth; ++k) {
        value -= transfer.denominator[k] * response[response.size() - k];
      }
      response.push_back(value);
      mean_[h] += value;
    }
    return true;
  }

  bool AddOutlier(unsigned j) {
    const TSOutlierSpecList& outliers = spec_.GetOutliers();
    const TSOutlierSpec& outlier = outliers.GetOutlierSpec(j);
    if (outlier.GetType() == TSOutlierSpec::kNone) return true;
    if (outlier.GetType() == TSOutlierSpec::kSeasonalAdditive && spec_.GetSeasonLength(true) == 0) {
      return false;
    }
    const long start = outlier.GetStartIndex();
    if (start < -static_cast<long>(kMostPeriods)) return false;
    const std::size_t at = spec_.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 0);
    const double size = ValueOrZero(parameters_[at]);
    if (size == 0) return true;
    const double decay =
        outlier.GetType() == TSOutlierSpec::kTransient ? ValueOrZero(parameters_[at + 1]) : 0;
    const auto& period = state_.GetPeriodRecord();
    const long first = static_cast<long>(period.length - period.period_deficit) - start;
    const long behind = first + static_cast<long>(mean_.size());
    if (behind <= 0) return true;
    const Polynomial difference = SeriesDifference(spec_);
    std::vector<double> psi;
    if (outlier.GetType() == TSOutlierSpec::kInnovational) {
      psi = PsiWeights(NoiseModel(spec_, parameters_), static_cast<std::size_t>(behind));
    }
    for (std::size_t h = 0; h < mean_.size(); ++h) {
      const long steps = first + static_cast<long>(h);
      if (steps < 0) continue;
      const double shape = psi.empty() ? DifferencedShape(difference, outlier.GetType(), decay,
                                                          spec_.GetSeasonLength(true), steps)
                                       : psi[static_cast<std::size_t>(steps)];
      mean_[h] += size * shape;
    }
    return true;
  }

  const ARMAForecastState& state_;
  const AMModelSpec& spec_;
  std::vector<double> parameters_;
  std::vector<double> mean_;
};

// Adds up a differenced path to the scale of Z, from its last values on, oldest first.
std::vector<double> SumUp(const Polynomial& difference, std::vector<double> z,
                          const std::vector<double>& differenced) {
  const std::size_t start = z.size();
  for (const double w : differenced) {
    double value = w;
    for (std::size_t k = 1; k < difference.size(); ++k) {
      value -= difference[k] * z[z.size() - k];
    }
    z.push_back(value);
  }
  z.erase(z.begin(), z.begin() + static_cast<std::ptrdiff_t>(start));
  return z;
}

// The last values of Z that undoing the differences needs; nothing when they are not known.
bool LastZ(const ARMAForecastState& state, std::size_t count, std::vector<double>& z) {
  const std::valarray<double>& actual = state.GetActualZ();
  if (actual.size() < count) return false;
  z = ToVector(actual);
  z.erase(z.begin(), z.end() - static_cast<std::ptrdiff_t>(count));
  return AllKnown(z);
}

// From the filtered state and its covariance. Without the lags of Z in the state they are known.
bool Continue(const ARMAMLForecastState& state, const std::vector<double>& mean, Path& path) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const Arma arma = NoiseModel(spec, ToVector(state.GetParameterEstimates()));
  const Polynomial difference = SeriesDifference(spec);
  const std::size_t r = arma.StateLength();
  const std::size_t m = Degree(difference);
  const std::vector<double> given = ToVector(state.GetFinalStateV());
  const std::valarray<double>& packed = state.GetFinalOmega().AsArray();
  if (given.size() != r && given.size() != r + m) return false;
  if (packed.size() != given.size() * (given.size() + 1) / 2) return false;
  if (!AllKnown(state.GetFinalStateV()) || !AllKnown(packed)) return false;

  const auto order = static_cast<Eigen::Index>(r + m);
  Eigen::MatrixXd states = Eigen::MatrixXd::Zero(order, 1);
  Eigen::MatrixXd covariance = Eigen::MatrixXd::Zero(order, order);
  std::size_t at = 0;
  for (std::size_t i = 0; i < given.size(); ++i) {
    states(static_cast<Eigen::Index>(i), 0) = given[i];
    for (std::size_t j = 0; j <= i; ++j, ++at) {
      covariance(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j)) = packed[at];
      covariance(static_cast<Eigen::Index>(j), static_cast<Eigen::Index>(i)) = packed[at];
    }
  }
  if (given.size() == r && m > 0) {
    std::vector<double> z;
    if (!LastZ(state, m, z)) return false;
    for (std::size_t k = 0; k < m; ++k) states(static_cast<Eigen::Index>(r + k), 0) = z[m - 1 - k];
  }
  StateSpace filter(arma, difference, Eigen::MatrixXd::Zero(static_cast<Eigen::Index>(m), 1));
  filter.Resume(states, covariance);
  std::vector<double> noise;
  for (std::size_t h = 0; h < mean.size(); ++h) {
    filter.Predict();
    noise.push_back(filter.Prediction()[0]);
    path.variance.push_back(filter.Variance());
  }
  // The effects since the state, which the filter does not know, summed up from 0.
  const std::vector<double> effects = SumUp(difference, std::vector<double>(m, 0.0), mean);
  for (std::size_t h = 0; h < mean.size(); ++h) path.mean.push_back(noise[h] + effects[h]);
  return true;
}

// The last noise values and their predictions, oldest first, `depth` of each.
bool LastNoise(const std::valarray<double>& actual, const std::valarray<double>& predicted,
               std::size_t depth, std::vector<double>& noise, std::vector<double>& errors) {
  if (actual.size() < depth || predicted.size() < depth) return false;
  if (!AllKnown(actual) || !AllKnown(predicted)) return false;
  for (std::size_t k = depth; k > 0; --k) {
    noise.push_back(actual[actual.size() - k]);
    errors.push_back(actual[actual.size() - k] - predicted[predicted.size() - k]);
  }
  return true;
}

// Predictions of the noise: theta(j, h) multiplies the error j periods before period h to come.
template <typename ThetaAt>
std::vector<double> PredictNoise(const Arma& arma, std::vector<double> noise,
                                 const std::vector<double>& errors, std::size_t horizon,
                                 ThetaAt thetaAt) {
  const std::size_t depth = noise.size();
  for (std::size_t h = 1; h <= horizon; ++h) {
    double value = 0;
    for (std::size_t k = 1; k <= arma.ar.size(); ++k) {
      value += arma.ar[k - 1] * noise[noise.size() - k];
    }
    for (std::size_t j = h; j <= arma.ma.size(); ++j) {
      value += thetaAt(j, h) * errors[errors.size() - (j - h + 1)];
    }
    noise.push_back(value);
  }
  noise.erase(noise.begin(), noise.begin() + static_cast<std::ptrdiff_t>(depth));
  return noise;
}

bool FinishFromNoise(const ARMAForecastState& state, const std::vector<double>& noise,
                     const std::vector<double>& mean, Path& path) {
  const Polynomial difference = SeriesDifference(state.GetAMModelSpec());
  std::vector<double> z;
  if (!LastZ(state, Degree(difference), z)) return false;
  std::vector<double> differenced = mean;
  for (std::size_t h = 0; h < mean.size(); ++h) differenced[h] += noise[h];
  path.mean = SumUp(difference, std::move(z), differenced);
  return true;
}

// Weights of 1 / (phi(B) D(B)).
std::vector<double> Chi(const Arma& arma, const Polynomial& difference, std::size_t count) {
  Polynomial ar = {1};
  for (const double phi : arma.ar) ar.push_back(-phi);
  return Quotient({1}, Product(ar, difference), count);
}

// The last `count` rows of the theta recursion and their variances.
bool LastRows(const ARMAMLSpForecastState& state, std::size_t count,
              std::vector<std::vector<double>>& thetas, std::vector<double>& nus) {
  const auto& given = state.GetFinalThetas();
  const auto& variances = state.GetFinalNu();
  if (given.size() < count || variances.size() < count) return false;
  thetas.assign(given.end() - static_cast<std::ptrdiff_t>(count), given.end());
  nus.assign(variances.end() - static_cast<std::ptrdiff_t>(count), variances.end());
  return std::all_of(thetas.begin(), thetas.end(), AllKnown<std::vector<double>>) &&
         std::all_of(nus.begin(), nus.end(), [](double nu) { return nu > 0 && std::isfinite(nu); });
}

// Brockwell and Davis (1991), equations 5.3.15 and 5.3.22, D(B) taken with phi(B).
bool Continue(const ARMAMLSpForecastState& state, const std::vector<double>& mean, Path& path) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const Arma arma = NoiseModel(spec, ToVector(state.GetParameterEstimates()));
  const std::size_t q = arma.ma.size();
  const std::size_t horizon = mean.size();
  std::vector<double> noise;
  std::vector<double> errors;
  const std::size_t depth = std::max(arma.ar.size(), q);
  if (!LastNoise(state.GetActualN(), state.GetPredN(), depth, noise, errors)) return false;
  std::vector<std::vector<double>> thetas;
  std::vector<double> lastNus;
  if (state.GetFinalIterCount() < depth || state.GetFinalIterCount() > kMostPeriods ||
      !LastRows(state, q, thetas, lastNus)) {
    return false;
  }
  for (const std::vector<double>& row : thetas) {
    if (row.size() < q && state.GetFinalIterCount() > depth + q) return false;
  }
  ThetaRecursion recursion(arma, state.GetFinalIterCount(), std::move(thetas), std::move(lastNus));
  std::vector<std::vector<double>> rows;
  std::vector<double> nus;
  for (std::size_t h = 0; h < horizon; ++h) {
    rows.push_back(recursion.NextRow());
    nus.push_back(recursion.Nu());
  }
  const auto thetaAt = [&](std::size_t j, std::size_t h) { return rows[h - 1][j - 1]; };
  const std::vector<double> predicted =
      PredictNoise(arma, std::move(noise), errors, horizon, thetaAt);

  const std::vector<double> chi = Chi(arma, SeriesDifference(spec), horizon);
  for (std::size_t h = 1; h <= horizon; ++h) {
    double variance = 0;
    for (std::size_t j = 0; j < h; ++j) {  // the error of period h - j to come
      double weight = chi[j];
      for (std::size_t k = 1; k <= std::min(q, j); ++k)
        weight += chi[j - k] * thetaAt(k, h - j + k);
      variance += weight * weight * nus[h - j - 1];
    }
    path.variance.push_back(variance);
  }
  return FinishFromNoise(state, predicted, mean, path);
}

bool Continue(const ARMACLSForecastState& state, const std::vector<double>& mean, Path& path) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const Arma arma = NoiseModel(spec, ToVector(state.GetParameterEstimates()));
  std::vector<double> noise;
  std::vector<double> errors;
  const std::size_t depth = std::max(arma.ar.size(), arma.ma.size());
  if (!LastNoise(state.GetActualN(), state.GetPredN(), depth, noise, errors)) return false;
  const auto thetaAt = [&](std::size_t j, std::size_t) { return arma.ma[j - 1]; };
  const std::vector<double> predicted =
      PredictNoise(arma, std::move(noise), errors, mean.size(), thetaAt);

  const std::vector<double> chi = Chi(arma, SeriesDifference(spec), mean.size());
  double variance = 0;
  for (std::size_t j = 0; j < mean.size(); ++j) {
    double psi = chi[j];
    for (std::size_t k = 1; k <= std::min(arma.ma.size(), j); ++k)
      psi += chi[j - k] * arma.ma[k - 1];
    variance += psi * psi;
    path.variance.push_back(variance);
  }
  return FinishFromNoise(state, predicted, mean, path);
}

bool ContinueAny(const ARMAForecastState& state, const std::vector<double>& mean, Path& path) {
  if (const auto* ml = dynamic_cast<const ARMAMLForecastState*>(&state)) {
    return Continue(*ml, mean, path);
  }
  if (const auto* theta = dynamic_cast<const ARMAMLSpForecastState*>(&state)) {
    return Continue(*theta, mean, path);
  }
  const auto* cls = dynamic_cast<const ARMACLSForecastState*>(&state);
  return cls != nullptr && Continue(*cls, mean, path);
}

// How many values the state goes on from.
std::size_t ValuesKept(const ARMAForecastState& state) {
  const std::size_t z = state.GetActualZ().size();
  if (const auto* ml = dynamic_cast<const ARMAMLForecastState*>(&state)) {
    return z + ml->GetFinalStateV().size();
  }
  if (const auto* theta = dynamic_cast<const ARMAMLSpForecastState*>(&state)) {
    return z + theta->GetActualN().size();
  }
  const auto* cls = dynamic_cast<const ARMACLSForecastState*>(&state);
  return z + (cls != nullptr ? cls->GetActualN().size() : 0);
}

// Whether specification, estimates and periods may belong to the state. A model may have been
// written down by hand and name lags that no memory holds; this comes before all polynomials.
bool IsPlausible(const ARMAForecastState& state) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const auto& period = state.GetPeriodRecord();
  if (period.length > kMostPeriods || period.period_deficit > period.length) return false;
  const std::valarray<double>& estimates = state.GetParameterEstimates();
  if (estimates.size() < spec.GetParameterCount(true)) return false;
  if (!std::all_of(std::begin(estimates), std::end(estimates),
                   [](double value) { return std::isfinite(value); })) {
    return false;
  }
  const std::size_t kept = ValuesKept(state);
  AMPowers regular;
  AMPowers seasonal;
  spec.GetARStruct(regular, seasonal);
  if (Degree(regular) + Degree(seasonal) > kept) return false;
  spec.GetMAStruct(regular, seasonal);
  return Degree(regular) + Degree(seasonal) <= kept && DifferenceDegree(spec) <= kept;
}

Forecasts OnOriginalScale(const Path& path, std::size_t deficit, double errorVariance, int function,
                          double confidence) {
  const double width = ConfidenceWidth(confidence);
  Forecasts forecasts;
  for (std::size_t h = deficit; h < path.mean.size(); ++h) {
    forecasts.value.push_back(Untransformed(function, path.mean[h]));
    if (errorVariance == MV::gMissingValue) {
      forecasts.std_error.push_back(MV::gMissingValue);
      forecasts.lower.push_back(MV::gMissingValue);
      forecasts.upper.push_back(MV::gMissingValue);
      continue;
    }
    const double error = std::sqrt(errorVariance * path.variance[h]);
    forecasts.std_error.push_back(error);
    forecasts.lower.push_back(Untransformed(function, path.mean[h] - width * error));
    forecasts.upper.push_back(Untransformed(function, path.mean[h] + width * error));
  }
  return forecasts;
}

}  // namespace

Forecasts ForecastArima(const ARMAForecastState& state, const EstimationInfo& info,
                        unsigned horizon, std::span<const std::vector<double>> futurePredictors,
                        double confidence) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  if (!(confidence > 0 && confidence < 1)) return {};
  if (futurePredictors.size() != spec.GetXCount() || !IsPlausible(state)) return {};

  const auto deficit = static_cast<std::size_t>(state.GetPeriodRecord().period_deficit);
  Outlook outlook(state, horizon + deficit);
  Path path;
  if (!outlook.Add(futurePredictors) || !ContinueAny(state, outlook.Mean(), path)) return {};
  return OnOriginalScale(path, deficit, info.GetErrorVariance(),
                         spec.GetYTransformSpec().GetFunctionType(), confidence);
}

Forecasts Forecast(const TSFModel& model, unsigned horizon,
                   std::span<const std::vector<double>> futurePredictors, double confidence) {
  const ForecastState* any = model.IsEmpty() ? nullptr : model.GetImp()->GetForecastState();
  const auto* state = dynamic_cast<const ARMAForecastState*>(any);
  if (state != nullptr) {
    return ForecastArima(*state, model.GetImp()->GetEstimationInfo(), horizon, futurePredictors,
                         confidence);
  }
  return futurePredictors.empty() ? Forecast(model, horizon, confidence) : Forecasts{};
}

}  // namespace tsffit
