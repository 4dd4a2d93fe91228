#include "arima/model/Design.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "arima/model/Effects.h"
#include "series/Observed.h"

namespace tsffit {

namespace {

// D(B) applied; 0 for the periods that it does not reach.
std::vector<double> Differenced(const Polynomial& difference, const std::vector<double>& series) {
  std::vector<double> w(series.size(), 0.0);
  for (std::size_t t = Degree(difference); t < series.size(); ++t) {
    for (std::size_t k = 0; k < difference.size(); ++k) w[t] += difference[k] * series[t - k];
  }
  return w;
}

double LargestOf(const std::vector<double>& values) {
  double largest = 0;
  for (const double value : values) largest = std::max(largest, std::abs(value));
  return largest;
}

// The same, 0 throughout where only rounding is left: of a constant, or of a line differenced
// twice, whose values are none of the doubles.
std::vector<double> DifferencedOrNothing(const Polynomial& difference,
                                         const std::vector<double>& series) {
  std::vector<double> w = Differenced(difference, series);
  double terms = 0;
  for (const double c : difference) terms += std::abs(c);
  const double rounding = 2 * std::numeric_limits<double>::epsilon() * terms * LargestOf(series);
  if (difference.size() > 1 && LargestOf(w) <= rounding) std::fill(w.begin(), w.end(), 0.0);
  return w;
}

// What a filter makes of a series, and its value in the steady state before the series.
struct Response {
  std::vector<double> values;
  double before = 0;
};

// num(B) / den(B) of equation (1) of Arima.h, for a series that had the value `before` for ever.
Response SteadyFilter(const Polynomial& numerator, const Polynomial& denominator,
                      const std::vector<double>& series, double before) {
  const double steady = before == 0 ? 0 : before * SumOf(numerator) / SumOf(denominator);
  std::vector<double> moved(series.size());
  for (std::size_t t = 0; t < series.size(); ++t) {
    for (std::size_t k = 0; k < numerator.size() && k <= t; ++k) {
      moved[t] += numerator[k] * (series[t - k] - before);
    }
    for (std::size_t k = 1; k < denominator.size() && k <= t; ++k) {
      moved[t] -= denominator[k] * moved[t - k];
    }
  }
  for (double& value : moved) value += steady;
  return {.values = std::move(moved), .before = steady};
}

}  // namespace

Design::Design(const AMModelSpec& spec, ArimaData data)
    : spec_(spec),
      data_(std::move(data)),
      difference_(SeriesDifference(spec)),
      first_(FirstPeriod(spec)) {
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    differenced_predictors_.push_back(
        DifferencedOrNothing(PredictorDifference(spec, i), data_.predictors[i]));
  }

  bool constant = false;
  const std::size_t position = spec.GetMeanYPresent(constant);
  if (constant) linear_.push_back(position);
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    AMPowers regular;
    AMPowers seasonal;
    spec.GetXNumerator(i, regular, seasonal);
    for (std::size_t k = 0; k <= regular.GetCount(); ++k) {
      linear_.push_back(spec.GetXRegressionCoeff(i) + k);
    }
  }
  const TSOutlierSpecList& outliers = spec.GetOutliers();
  for (unsigned j = 0; j < outliers.GetOutlierSpecCount(false); ++j) {
    if (outliers.GetOutlierSpec(j).GetType() == TSOutlierSpec::kNone) continue;
    linear_.push_back(spec.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 0));
  }

  for (std::size_t t = first_ - Degree(difference_); t < data_.series.size(); ++t) {
    const bool missing = IsMissing(data_.series[t]);
    if (t >= first_) missing_rows_.push_back(missing);
    if (missing) missing_cases_.push_back(t);
  }
}

Eigen::MatrixXd Design::Effects(std::span<const double> parameters) const {
  const auto rows = static_cast<Eigen::Index>(Rows());
  Eigen::MatrixXd effects(rows, static_cast<Eigen::Index>(linear_.size()));
  Eigen::Index column = 0;
  bool constant = false;
  spec_.GetMeanYPresent(constant);
  if (constant) effects.col(column++).setOnes();
  for (unsigned i = 0; i < spec_.GetXCount(); ++i) AddPredictor(i, parameters, effects, column);
  for (unsigned j = 0; j < spec_.GetOutliers().GetOutlierSpecCount(false); ++j) {
    AddOutlier(j, parameters, effects, column);
  }
  return effects;
}

bool Design::EffectsAreFixed() const {
  for (unsigned i = 0; i < spec_.GetXCount(); ++i) {
    AMPowers regular;
    AMPowers seasonal;
    spec_.GetXNumerator(i, regular, seasonal);
    if (seasonal.GetCount() > 0) return false;
    spec_.GetXDenominator(i, regular, seasonal);
    if (regular.GetCount() + seasonal.GetCount() > 0) return false;
  }
  for (unsigned j = 0; j < spec_.GetOutliers().GetOutlierSpecCount(false); ++j) {
    const int type = spec_.GetOutliers().GetOutlierSpec(j).GetType();
    if (type == TSOutlierSpec::kTransient || type == TSOutlierSpec::kInnovational) return false;
  }
  return true;
}

void Design::AddPredictor(unsigned i, std::span<const double> parameters, Eigen::MatrixXd& effects,
                          Eigen::Index& column) const {
  const TransferFunction transfer = TransferFunctionOf(spec_, i, parameters);
  const std::vector<double>& x = differenced_predictors_[i];
  const bool isDifferenced = Degree(PredictorDifference(spec_, i)) > 0;
  const Response response = SteadyFilter(transfer.seasonal_numerator, transfer.denominator, x,
                                         isDifferenced ? 0 : x.front());
  const auto add = [&](double sign, std::size_t lag) {
    for (std::size_t row = 0; row < Rows(); ++row) {
      const std::size_t t = row + first_;
      effects(static_cast<Eigen::Index>(row), column) =
          sign * (t < lag ? response.before : response.values[t - lag]);
    }
    ++column;
  };
  AMPowers regular;
  AMPowers seasonal;
  spec_.GetXNumerator(i, regular, seasonal);
  add(1, transfer.delay);
  for (std::uint32_t k = 0; k < regular.GetCount(); ++k) {
    add(-1, transfer.delay + regular.GetPower(k));
  }
}

void Design::AddOutlier(unsigned j, std::span<const double> parameters, Eigen::MatrixXd& effects,
                        Eigen::Index& column) const {
  const TSOutlierSpecList& outliers = spec_.GetOutliers();
  const TSOutlierSpec& outlier = outliers.GetOutlierSpec(j);
  if (outlier.GetType() == TSOutlierSpec::kNone) return;
  const std::size_t position = spec_.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 0);
  const double decay =
      outlier.GetType() == TSOutlierSpec::kTransient ? ValueOrZero(parameters[position + 1]) : 0;
  const bool innovational = outlier.GetType() == TSOutlierSpec::kInnovational;
  const long cases = static_cast<long>(data_.series.size()) - outlier.GetStartIndex();
  const std::vector<double> psi =
      innovational ? PsiWeights(NoiseModel(spec_, parameters), static_cast<std::size_t>(cases))
                   : std::vector<double>();
  for (std::size_t row = 0; row < Rows(); ++row) {
    const long steps = static_cast<long>(row + first_) - outlier.GetStartIndex();
    double effect = 0;
    if (!innovational) {
      effect = DifferencedShape(difference_, outlier.GetType(), decay, spec_.GetSeasonLength(true),
                                steps);
    } else if (steps >= 0) {
      effect = psi[static_cast<std::size_t>(steps)];
    }
    effects(static_cast<Eigen::Index>(row), column) = effect;
  }
  ++column;
}

Eigen::VectorXd Design::Differenced() const {
  std::vector<double> z = data_.series;
  for (std::size_t t = 1; t < z.size(); ++t) {
    if (IsMissing(z[t])) z[t] = z[t - 1];
  }
  const std::vector<double> w = tsffit::Differenced(difference_, z);
  return Eigen::Map<const Eigen::VectorXd>(w.data() + first_, static_cast<Eigen::Index>(Rows()));
}

Eigen::MatrixXd Design::DifferencesWithMissing() const {
  Eigen::MatrixXd columns = Eigen::MatrixXd::Zero(
      static_cast<Eigen::Index>(Rows()), static_cast<Eigen::Index>(1 + missing_cases_.size()));
  columns.col(0) = Differenced();
  for (std::size_t j = 0; j < missing_cases_.size(); ++j) {
    for (std::size_t k = 0; k < difference_.size(); ++k) {
      const std::size_t t = missing_cases_[j] + k;
      if (t < first_ || t >= data_.series.size()) continue;
      columns(static_cast<Eigen::Index>(t - first_), static_cast<Eigen::Index>(j + 1)) =
          -difference_[k];
    }
  }
  return columns;
}

Eigen::VectorXd Design::LagsBeforeFirst() const {
  Eigen::VectorXd lags(static_cast<Eigen::Index>(Degree(difference_)));
  for (Eigen::Index k = 0; k < lags.size(); ++k) {
    lags[k] = data_.series[first_ - 1 - static_cast<std::size_t>(k)];
  }
  return lags;
}

Eigen::VectorXd Design::Undifferenced() const {
  Eigen::VectorXd z(static_cast<Eigen::Index>(Rows()));
  for (Eigen::Index row = 0; row < z.size(); ++row) {
    z[row] = ValueOrZero(data_.series[first_ + static_cast<std::size_t>(row)]);
  }
  return z;
}

Eigen::MatrixXd Design::Integrated(const Eigen::MatrixXd& columns) const {
  Eigen::MatrixXd sums = columns;
  for (Eigen::Index t = 0; t < sums.rows(); ++t) {
    for (std::size_t k = 1; k < difference_.size(); ++k) {
      const Eigen::Index before = t - static_cast<Eigen::Index>(k);
      if (before >= 0 && difference_[k] != 0) sums.row(t) -= difference_[k] * sums.row(before);
    }
  }
  return sums;
}

}  // namespace tsffit
