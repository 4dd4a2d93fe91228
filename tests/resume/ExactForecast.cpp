#include "ExactForecast.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>

#include "Outliers.h"

namespace test {

namespace {

Eigen::Index Index(std::size_t i) { return static_cast<Eigen::Index>(i); }

// sum of polynomial[j] values[t - j]; what is before the list is `before`.
double At(const Polynomial& polynomial, const List& values, std::size_t t, double before = 0) {
  double sum = 0;
  for (std::size_t j = 0; j < polynomial.size(); ++j) {
    sum += polynomial[j] * (j <= t ? values[t - j] : before);
  }
  return sum;
}

double Sum(const Polynomial& polynomial) {
  double sum = 0;
  for (const double coefficient : polynomial) sum += coefficient;
  return sum;
}

// The predictor after its transformation and differencing. Differences begin when all their cases
// are there.
List Modelled(const ReadTransformation& transformation, const List& predictor) {
  List values;
  for (const double value : predictor) values.push_back(Apply(transformation.function, value));
  List modelled;
  for (std::size_t t = 0; t < values.size(); ++t) {
    const bool there = t >= Degree(transformation.differences);
    modelled.push_back(there ? At(transformation.differences, values, t) : 0);
  }
  return modelled;
}

// U from the first case on: the predictor has had its first value for ever.
List TransferFunction(const ReadPredictor& predictor, const List& values) {
  const List x = Modelled(predictor.transformation, values);
  const double output = Sum(predictor.numerator) / Sum(predictor.denominator) * x.front();
  const std::size_t delay = predictor.transformation.delay;
  List effect;
  for (std::size_t t = 0; t < x.size(); ++t) {
    double input = 0;
    for (std::size_t k = 0; k < predictor.numerator.size(); ++k) {
      input += predictor.numerator[k] * (t >= delay + k ? x[t - delay - k] : x.front());
    }
    for (std::size_t j = 1; j < predictor.denominator.size(); ++j) {
      input -= predictor.denominator[j] * (j <= t ? effect[t - j] : output);
    }
    effect.push_back(input);
  }
  return effect;
}

// What D(B) Z is without the noise, in the cases of the fit and the periods to come.
List Effects(const ReadArima& model, const ModelData& data, std::size_t periods) {
  List effects(periods, model.constant);
  for (std::size_t i = 0; i < model.predictors.size(); ++i) {
    const List effect = TransferFunction(model.predictors[i], data.predictors.at(i));
    for (std::size_t t = 0; t < periods; ++t) effects[t] += effect.at(t);
  }
  for (std::size_t t = 0; t < periods; ++t) {
    effects[t] += DifferencedOutliers(model, static_cast<long>(t));
  }
  return effects;
}

// The first case in the likelihood: all that it looks back to is there.
std::size_t FirstCase(const ReadArima& model) {
  std::size_t first = Degree(model.transformation.differences);
  for (const ReadPredictor& predictor : model.predictors) {
    const ReadTransformation& transformation = predictor.transformation;
    first = std::max(first, Degree(transformation.differences) + transformation.delay +
                                Degree(predictor.numerator));
  }
  return first;
}

// Of the ARMA process with innovations of variance 1, at lags 0 .. count - 1: the equations of
// lags 0 .. p first, which hold each other, then one after the other.
List Autocovariances(const ReadArima& model, std::size_t count) {
  const std::size_t p = Degree(model.ar);
  const std::size_t q = Degree(model.ma);
  const List psi = Expansion(model.ma, model.ar, q);
  const auto errors = [&](std::size_t lag) {
    double sum = 0;
    for (std::size_t l = lag; l <= q; ++l) sum += model.ma[l] * psi[l - lag];
    return sum;
  };
  Eigen::MatrixXd equations = Eigen::MatrixXd::Zero(Index(p + 1), Index(p + 1));
  Eigen::VectorXd right(Index(p + 1));
  for (std::size_t k = 0; k <= p; ++k) {
    right(Index(k)) = errors(k);
    for (std::size_t j = 0; j <= p; ++j) {
      equations(Index(k), Index(j > k ? j - k : k - j)) += model.ar[j];
    }
  }
  const Eigen::VectorXd first = equations.fullPivLu().solve(right);
  List gamma(first.begin(), first.end());
  for (std::size_t k = p + 1; k < count; ++k) {
    double value = errors(k);
    for (std::size_t j = 1; j <= p; ++j) value -= model.ar[j] * gamma[k - j];
    gamma.push_back(value);
  }
  return gamma;
}

Eigen::MatrixXd Covariance(const ReadArima& model, std::size_t size) {
  const List gamma = Autocovariances(model, size);
  Eigen::MatrixXd covariance(Index(size), Index(size));
  for (std::size_t i = 0; i < size; ++i) {
    for (std::size_t j = 0; j < size; ++j) {
      covariance(Index(i), Index(j)) = gamma[i > j ? i - j : j - i];
    }
  }
  return covariance;
}

List TransformedWithHorizon(const ReadArima& model, const ModelData& data, std::size_t horizon) {
  List z;
  for (const double value : data.series) z.push_back(Apply(model.transformation.function, value));
  z.resize(z.size() + horizon, std::nan(""));
  return z;
}

double LogDeterminant(const Eigen::LLT<Eigen::MatrixXd>& factor) {
  return 2 * factor.matrixLLT().diagonal().array().log().sum();
}

double LogLikelihood(double sumOfSquares, std::size_t residuals, double logDeterminant) {
  const auto n = static_cast<double>(residuals);
  return -n / 2 * (std::log(2 * M_PI * sumOfSquares / n) + 1) - logDeterminant / 2;
}

// N from the first case of the likelihood on, as known + design * (what is not known of Z).
class Noise {
 public:
  Noise(const ReadArima& model, const ModelData& data, std::size_t horizon)
      : model_(model),
        z_(TransformedWithHorizon(model, data, horizon)),
        effects_(Effects(model, data, z_.size())),
        first_(FirstCase(model)) {
    // Values before the first case count as far as its differences look back.
    for (std::size_t t = first_ - M(); t < z_.size(); ++t) {
      if (std::isnan(z_[t])) unknown_.push_back(t);
    }
  }

  std::size_t Unknown() const { return unknown_.size(); }
  std::size_t Cases() const { return z_.size() - first_; }

  Eigen::VectorXd Known() const {
    List z = z_;
    for (double& value : z) value = std::isnan(value) ? 0 : value;
    Eigen::VectorXd known(Index(Cases()));
    for (std::size_t t = first_; t < z.size(); ++t) {
      known(Index(t - first_)) = At(model_.transformation.differences, z, t) - effects_[t];
    }
    return known;
  }

  Eigen::MatrixXd Design() const {
    const Polynomial& differences = model_.transformation.differences;
    Eigen::MatrixXd design = Eigen::MatrixXd::Zero(Index(Cases()), Index(Unknown()));
    for (std::size_t u = 0; u < Unknown(); ++u) {
      for (std::size_t j = 0; j < differences.size(); ++j) {
        const std::size_t t = unknown_[u] + j;
        if (t >= first_ && t < z_.size()) design(Index(t - first_), Index(u)) = differences[j];
      }
    }
    return design;
  }

 private:
  std::size_t M() const { return Degree(model_.transformation.differences); }

  const ReadArima& model_;
  List z_;
  List effects_;
  std::size_t first_;
  std::vector<std::size_t> unknown_;
};

}  // namespace

ExactForecast ForecastByDensity(const ReadArima& model, const ModelData& data,
                                std::size_t horizon) {
  // In the density of N, exp(-(known + design u)' V^-1 (known + design u) / 2), the unknown u are
  // normal about the least squares solution.
  const Noise noise(model, data, horizon);
  const Eigen::LLT<Eigen::MatrixXd> factor(Covariance(model, noise.Cases()));
  const Eigen::VectorXd known = factor.matrixL().solve(noise.Known());
  const Eigen::MatrixXd design = factor.matrixL().solve(noise.Design());
  const Eigen::LLT<Eigen::MatrixXd> normal(design.transpose() * design);
  const Eigen::VectorXd solution = -normal.solve(design.transpose() * known);
  const Eigen::MatrixXd covariance =
      normal.solve(Eigen::MatrixXd::Identity(solution.size(), solution.size()));

  ExactForecast forecast;
  for (Eigen::Index i = solution.size() - Index(horizon); i < solution.size(); ++i) {
    forecast.z.push_back(solution(i));
    forecast.relative_variance.push_back(covariance(i, i));
  }
  forecast.sum_of_squares = (known + design * solution).squaredNorm();
  forecast.residuals = static_cast<std::size_t>(known.size() - solution.size());
  forecast.log_likelihood = LogLikelihood(forecast.sum_of_squares, forecast.residuals,
                                          LogDeterminant(factor) + LogDeterminant(normal));
  return forecast;
}

ExactForecast ForecastByConditionalErrors(const ReadArima& model, const ModelData& data,
                                          std::size_t horizon) {
  List z = TransformedWithHorizon(model, data, horizon);
  const List effects = Effects(model, data, z.size());
  const Polynomial& differences = model.transformation.differences;
  const std::size_t n = data.series.size();
  const std::size_t first = FirstCase(model);
  const std::size_t conditioned = first + Degree(model.ar);
  const List psi = Expansion(model.ma, Product(model.ar, differences), horizon);

  ExactForecast forecast;
  List noise(z.size());
  List errors(z.size());
  double variance = 0;
  for (std::size_t t = first; t < z.size(); ++t) {
    // With a noise, an error and a value of 0 in place of the case's own, these sums are what the
    // past contributes.
    if (t < n) noise[t] = At(differences, z, t) - effects[t];
    const double past = At(model.ma, errors, t) - At(model.ar, noise, t) + noise[t];
    if (t < conditioned) continue;
    if (t < n) {
      errors[t] = noise[t] - past;
      forecast.sum_of_squares += errors[t] * errors[t];
      ++forecast.residuals;
      continue;
    }
    noise[t] = past;
    z[t] = 0;
    z[t] = effects[t] + noise[t] - At(differences, z, t);
    variance += psi[t - n] * psi[t - n];
    forecast.z.push_back(z[t]);
    forecast.relative_variance.push_back(variance);
  }
  forecast.log_likelihood = LogLikelihood(forecast.sum_of_squares, forecast.residuals, 0);
  return forecast;
}

}  // namespace test
