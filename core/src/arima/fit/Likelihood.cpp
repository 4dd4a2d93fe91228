#include "arima/fit/Likelihood.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include <tsfcore/MV.h>

#include "arima/filter/NoiseFilter.h"
#include "arima/filter/StateSpace.h"
#include "arima/fit/OrdinaryPoint.h"
#include "arima/model/Effects.h"
#include "series/Observed.h"

namespace tsffit {

namespace {

bool FilterBy(ArimaMethod method, const Arma& arma, Eigen::MatrixXd& columns, Eigen::VectorXd& nu) {
  switch (method) {
    case ArimaMethod::kMl:
      return FilterExactly(arma, columns, nu);
    case ArimaMethod::kMlTheta:
      return FilterByThetas(arma, columns, nu);
    case ArimaMethod::kCls:
      return FilterConditionally(arma, columns, nu);
  }
  return false;
}

// The values before the first row as columns: the series' (0 where missing), then one column for
// each missing value. Minus 1 there, so that the errors of the columns stand on the side of
// regressors.
Eigen::MatrixXd DiffuseLags(const Eigen::VectorXd& lags) {
  const Eigen::Index missing = (lags.array() == MV::gMissingValue).count();
  Eigen::MatrixXd columns = Eigen::MatrixXd::Zero(lags.size(), 1 + missing);
  Eigen::Index next = 1;
  for (Eigen::Index k = 0; k < lags.size(); ++k) {
    if (IsMissing(lags[k])) {
      columns(k, next++) = -1;
    } else {
      columns(k, 0) = lags[k];
    }
  }
  return columns;
}

// Divides the rows by the roots of their variances.
void Standardise(const Eigen::VectorXd& nu, Eigen::MatrixXd& columns) {
  for (Eigen::Index t = 0; t < nu.size(); ++t) {
    if (nu[t] > 0) columns.row(t) /= std::sqrt(nu[t]);
  }
}

// So many missing values, or as many as the state is long, take no more time as regressors than its
// covariance does.
constexpr std::size_t kFew = 8;

// What the filter leaves of an effect that is below this share of it is rounding.
constexpr double kRounding = 1e-10;

}  // namespace

// Prediction errors over the roots of their variances: of the series, then of the values with a
// flat prior, then of the effects.
struct Likelihood::Standardised {
  bool usable = false;
  Eigen::Index flat = 0;
  Eigen::MatrixXd columns{};
  Eigen::VectorXd nu{};
};

double Evaluation::Criterion() const {
  if (!usable || !(fit.sse > 0)) return std::numeric_limits<double>::infinity();
  return 0.5 * (static_cast<double>(residuals) * std::log(fit.sse) + log_determinant);
}

double Evaluation::LogLikelihood() const {
  const auto n = static_cast<double>(residuals);
  return -Criterion() - 0.5 * n * (std::log(2 * std::numbers::pi / n) + 1);
}

Likelihood::Likelihood(const Design& design, ArimaMethod method)
    : design_(design), method_(method), dropped_(design.LinearPositions().size(), false) {
  lags_ = design.IsComplete() ? Eigen::MatrixXd(0, 1) : DiffuseLags(design.LagsBeforeFirst());

  const std::vector<double> parameters = OrdinaryPoint(design.Spec());
  const std::size_t length = NoiseModel(design.Spec(), parameters).StateLength();
  is_quick_ = method != ArimaMethod::kCls && design.MissingCases().size() <= std::max(length, kFew);
  if (design.IsComplete() || is_quick_) differences_ = design.DifferencesWithMissing();

  const Evaluation ordinary = At(parameters);
  const auto diffuse = static_cast<std::size_t>(lags_.cols()) - 1;
  for (std::size_t j = 0; j < std::min(diffuse, ordinary.fit.dropped.size()); ++j) {
    identified_ = identified_ && !ordinary.fit.dropped[j];
  }
  dropped_ = UntoldIn(ordinary, design.Effects(parameters));
  if (design.EffectsAreFixed()) effects_ = KeptEffects(parameters);
}

std::vector<bool> Likelihood::UntoldIn(const Evaluation& evaluation,
                                       const Eigen::MatrixXd& effects) const {
  std::vector<bool> untold(dropped_.size(), false);
  for (std::size_t j = 0; evaluation.usable && j < untold.size(); ++j) {
    const auto effect = static_cast<Eigen::Index>(j);
    const Eigen::Index filtered = lags_.cols() - 1 + effect;
    double size = effects.col(effect).norm();
    // An outlier that began in missing cases before the fit may have faded away.
    if (design_.LinearPositions()[j] >= design_.Spec().GetOutlierParmIndex()) {
      size = std::max(size, 1.0);
    }
    untold[j] = evaluation.fit.dropped[static_cast<std::size_t>(filtered)] ||
                evaluation.regressors.col(filtered).norm() <= kRounding * size;
  }
  return untold;
}

bool Likelihood::LeaveOutRunaway(std::size_t linear, const std::vector<double>& limit) {
  if (!UntoldIn(At(limit), KeptEffects(limit))[linear]) return false;
  dropped_[linear] = true;
  return true;
}

Eigen::MatrixXd Likelihood::KeptEffects(const std::vector<double>& parameters) const {
  if (effects_) return *effects_;
  Eigen::MatrixXd effects = design_.Effects(parameters);
  for (std::size_t j = 0; j < dropped_.size(); ++j) {
    if (dropped_[j]) effects.col(static_cast<Eigen::Index>(j)).setZero();
  }
  return effects;
}

Likelihood::Standardised Likelihood::Filter(const Arma& arma,
                                            const Eigen::MatrixXd& effects) const {
  return design_.IsComplete() ? FilterDifferences(method_, arma, effects)
                              : FilterGaps(arma, effects);
}

Likelihood::Standardised Likelihood::FilterDifferences(ArimaMethod method, const Arma& arma,
                                                       const Eigen::MatrixXd& effects) const {
  Standardised result;
  result.flat = differences_.cols() - 1;
  result.columns.resize(differences_.rows(), differences_.cols() + effects.cols());
  result.columns.leftCols(differences_.cols()) = differences_;
  result.columns.rightCols(effects.cols()) = OnObserved(effects);
  result.usable = FilterBy(method, arma, result.columns, result.nu);
  if (result.usable) Standardise(result.nu, result.columns);
  result.usable = result.usable && result.columns.allFinite();
  return result;
}

// Effects without what they do in missing cases, which is for the values missing there to explain:
// beside it, what is left of a fading one in the cases after them would be rounding.
Eigen::MatrixXd Likelihood::OnObserved(Eigen::MatrixXd effects) const {
  if (design_.IsComplete() || effects.cols() == 0) return effects;
  const Eigen::MatrixXd undifferenced = design_.Integrated(effects);
  Eigen::Index flat = 0;
  for (const std::size_t t : design_.MissingCases()) {
    ++flat;
    if (t < design_.First()) continue;
    effects +=
        differences_.col(flat) * undifferenced.row(static_cast<Eigen::Index>(t - design_.First()));
  }
  return effects;
}

Likelihood::Standardised Likelihood::FilterGaps(const Arma& arma,
                                                const Eigen::MatrixXd& effects) const {
  Standardised result;
  result.flat = lags_.cols() - 1;
  Eigen::MatrixXd lags = Eigen::MatrixXd::Zero(lags_.rows(), lags_.cols() + effects.cols());
  lags.leftCols(lags_.cols()) = lags_;
  Eigen::MatrixXd columns = Eigen::MatrixXd::Zero(effects.rows(), lags.cols());
  columns.col(0) = design_.Undifferenced();
  columns.rightCols(effects.cols()) = design_.Integrated(effects);
  StateSpace filter(arma, design_.Difference(), lags);
  StateSpaceRun run = RunStateSpace(filter, columns, design_.MissingRows());
  result.columns = std::move(run.errors);
  result.nu = std::move(run.nu);
  if (run.usable) Standardise(result.nu, result.columns);
  result.usable = run.usable && result.columns.allFinite();
  return result;
}

Evaluation Likelihood::At(std::vector<double> parameters) const {
  Standardised filtered = Filter(NoiseModel(design_.Spec(), parameters), KeptEffects(parameters));
  return Eliminate(std::move(filtered), std::move(parameters));
}

// The density of the observed values is that of all values with the missing ones integrated out,
// which is what becomes of coefficients with a flat prior: Gomez, Maravall and Pena (1999).
Evaluation Likelihood::QuicklyAt(std::vector<double> parameters) const {
  if (!is_quick_) return At(std::move(parameters));
  Standardised filtered = FilterDifferences(
      ArimaMethod::kMl, NoiseModel(design_.Spec(), parameters), KeptEffects(parameters));
  return Eliminate(std::move(filtered), std::move(parameters));
}

Evaluation Likelihood::Eliminate(Standardised filtered, std::vector<double> parameters) const {
  Evaluation evaluation;
  if (!filtered.usable) return evaluation;
  evaluation.regressors = filtered.columns.rightCols(filtered.columns.cols() - 1);
  evaluation.fit = SolveLeastSquares(filtered.columns.col(0), evaluation.regressors, filtered.flat);
  evaluation.nu = std::move(filtered.nu);
  evaluation.diffuse = evaluation.fit.coefficients.head(filtered.flat);
  evaluation.log_determinant = evaluation.fit.log_determinant;
  for (const double nu : evaluation.nu) {
    if (nu == 0) continue;
    ++evaluation.residuals;
    evaluation.log_determinant += std::log(nu);
  }
  evaluation.residuals -= std::min(evaluation.residuals, static_cast<std::size_t>(filtered.flat));

  const std::vector<std::size_t>& positions = design_.LinearPositions();
  for (std::size_t j = 0; j < positions.size(); ++j) {
    const auto column = static_cast<std::size_t>(filtered.flat) + j;
    parameters[positions[j]] = evaluation.fit.dropped[column]
                                   ? MV::gMissingValue
                                   : evaluation.fit.coefficients[static_cast<Eigen::Index>(column)];
  }
  evaluation.parameters = std::move(parameters);
  evaluation.usable = true;
  return evaluation;
}

std::vector<bool> Likelihood::LeftOut() const {
  std::vector<bool> leftOut(design_.Spec().GetParameterCount(true), false);
  const std::vector<std::size_t>& linear = design_.LinearPositions();
  for (std::size_t j = 0; j < linear.size(); ++j) leftOut[linear[j]] = dropped_[j];
  return leftOut;
}

Eigen::MatrixXd Likelihood::RegressorsOf(const Eigen::MatrixXd& effects,
                                         const std::vector<double>& parameters) const {
  const Standardised filtered = Filter(NoiseModel(design_.Spec(), parameters), effects);
  if (!filtered.usable) return Eigen::MatrixXd(effects.rows(), 0);
  return filtered.columns.rightCols(effects.cols());
}

double Likelihood::CriterionAt(const std::vector<double>& parameters) const {
  return QuicklyAt(parameters).Criterion();
}

Eigen::VectorXd Likelihood::LinearAt(const std::vector<double>& parameters) const {
  const Evaluation at = QuicklyAt(parameters);
  if (!at.usable) return {};
  return at.fit.coefficients.tail(static_cast<Eigen::Index>(design_.LinearPositions().size()));
}

Eigen::VectorXd Likelihood::ErrorsAt(const std::vector<double>& parameters) const {
  const Eigen::MatrixXd effects = KeptEffects(parameters);
  const Standardised filtered = Filter(NoiseModel(design_.Spec(), parameters), effects);
  if (!filtered.usable) return {};
  Eigen::VectorXd errors = filtered.columns.col(0);
  const std::vector<std::size_t>& positions = design_.LinearPositions();
  for (std::size_t j = 0; j < positions.size(); ++j) {
    errors -= ValueOrZero(parameters[positions[j]]) *
              filtered.columns.col(lags_.cols() + static_cast<Eigen::Index>(j));
  }
  return errors;
}

}  // namespace tsffit
