#include "GoOn.h"

#include <Eigen/Dense>
#include <algorithm>
#include <stdexcept>

#include "Outliers.h"

namespace test {

namespace {

// The value `back` periods before the end of a list that holds the newest value last.
double Back(const List& list, std::size_t back) { return list.at(list.size() - back); }

// sum of -c_j times the value j periods before the end: what 1 - c B - .. takes off.
double Taken(const Polynomial& polynomial, const List& values) {
  double sum = 0;
  for (std::size_t j = 1; j < polynomial.size(); ++j) sum -= polynomial[j] * Back(values, j);
  return sum;
}

// The polynomial applied to the newest value of a list.
double AtEnd(const Polynomial& polynomial, const List& values) {
  double sum = 0;
  for (std::size_t j = 0; j < polynomial.size(); ++j) sum += polynomial[j] * Back(values, j + 1);
  return sum;
}

// U(n), U(n + 1) ..
List TransferFunction(const ReadPredictor& predictor, const List& future, std::size_t horizon) {
  const ReadTransformation& transformation = predictor.transformation;
  // num(B) B^delay D(B), what U takes from f(predictor) before its denominator.
  Polynomial delayed(transformation.delay + 1);
  delayed.back() = 1;
  const Polynomial input =
      Product(Product(predictor.numerator, delayed), transformation.differences);

  List values = predictor.values;
  List outputs = predictor.outputs;
  List effect;
  for (std::size_t h = 0; h < horizon; ++h) {
    values.push_back(Apply(transformation.function, future.at(h)));
    outputs.push_back(AtEnd(input, values) + Taken(predictor.denominator, outputs));
    effect.push_back(outputs.back());
  }
  return effect;
}

// Kalman filter: the state vector and the last values of Z, newest first, move on together.
class Filter {
 public:
  explicit Filter(const ReadArima& model)
      : model_(model),
        r_(static_cast<Eigen::Index>(std::max(Degree(model.ar), Degree(model.ma) + 1))),
        zs_(static_cast<Eigen::Index>(std::max<std::size_t>(Differences().size() - 1, 1))) {
    ReadVector();
    ReadOmega();
    MakeStep();
  }

  NextPeriod Next(double known) {
    mean_ = step_ * mean_;
    mean_(r_) += known;
    covariance_ = step_ * covariance_ * step_.transpose() + error_ * error_.transpose();
    return {.z = mean_(r_), .relative_variance = covariance_(r_, r_)};
  }

 private:
  const Polynomial& Differences() const { return model_.transformation.differences; }

  // Without values of Z in the vector those of FinalZ are there and exact.
  void ReadVector() {
    const List& given = model_.state.vector;
    mean_ = Eigen::VectorXd::Zero(r_ + zs_);
    for (std::size_t i = 0; i < given.size(); ++i) {
      mean_(static_cast<Eigen::Index>(i)) = given[i];
    }
    if (static_cast<Eigen::Index>(given.size()) > r_) return;
    for (std::size_t k = 1; k < Differences().size(); ++k) {
      mean_(r_ + static_cast<Eigen::Index>(k) - 1) = Back(model_.state.z, k);
    }
  }

  void ReadOmega() {
    covariance_ = Eigen::MatrixXd::Zero(r_ + zs_, r_ + zs_);
    const List& omega = model_.state.omega;
    std::size_t at = 0;
    for (std::size_t row = 0; row < model_.state.vector.size(); ++row) {
      for (std::size_t column = 0; column <= row; ++column, ++at) {
        const auto i = static_cast<Eigen::Index>(row);
        const auto j = static_cast<Eigen::Index>(column);
        covariance_(i, j) = covariance_(j, i) = omega.at(at);
      }
    }
    if (at != omega.size()) throw std::runtime_error("FinalOmega is not of the vector's order");
  }

  void MakeStep() {
    step_ = Eigen::MatrixXd::Zero(r_ + zs_, r_ + zs_);
    error_ = Eigen::VectorXd::Zero(r_ + zs_);
    for (Eigen::Index i = 0; i < r_; ++i) {
      const auto k = static_cast<std::size_t>(i);
      if (k + 1 < model_.ar.size()) step_(i, 0) = -model_.ar[k + 1];
      if (i + 1 < r_) step_(i, i + 1) = 1;
      if (k < model_.ma.size()) error_(i) = model_.ma[k];
    }
    // Z is the next alpha_0 and what the differences take from the last values.
    step_.row(r_) = step_.row(0);
    error_(r_) = 1;
    for (std::size_t k = 1; k < Differences().size(); ++k) {
      step_(r_, r_ + static_cast<Eigen::Index>(k) - 1) = -Differences()[k];
    }
    for (Eigen::Index i = 1; i < zs_; ++i) step_(r_ + i, r_ + i - 1) = 1;
  }

  const ReadArima& model_;
  Eigen::Index r_, zs_;
  Eigen::VectorXd mean_, error_;
  Eigen::MatrixXd covariance_, step_;
};

// N by past errors, weighted with the rows of a recursion; the differences undone.
class Recursion {
 public:
  explicit Recursion(const ReadArima& model)
      : model_(model),
        noise_(model.state.noise),
        z_(model.state.z),
        values_(model.state.iterations) {
    const List& predicted = model.state.predicted_noise;
    for (std::size_t i = 0; i < noise_.size(); ++i) errors_.push_back(noise_[i] - predicted.at(i));
    if (model.state.element == "ARIMAMLSpState") {
      thetas_ = model.state.thetas;
      nu_ = model.state.nu;
    }
  }

  NextPeriod Next(double known) {
    const List row = NextRow();
    double noise = Taken(model_.ar, noise_);
    for (std::size_t j = 1; j <= row.size(); ++j) noise += row[j - 1] * Back(errors_, j);
    noise_.push_back(noise);
    errors_.push_back(0);
    z_.push_back(known + noise + Taken(model_.transformation.differences, z_));
    return {.z = z_.back(), .relative_variance = Variance(row)};
  }

 private:
  std::size_t Q() const { return Degree(model_.ma); }

  List NextRow() {
    if (model_.state.element == "ARIMAMLSpState") return ContinuedRow();
    List row;
    for (std::size_t j = 1; j <= Q(); ++j) row.push_back(model_.ma[j]);
    nu_.push_back(1);
    return row;
  }

  // The next row of the innovations algorithm; it predicts the next value.
  List ContinuedRow() {
    const std::size_t q = Q();
    List row(q);
    for (std::size_t lag = q; lag >= 1; --lag) {
      double sum = Kappa(lag);
      const List& then = thetas_.at(thetas_.size() - lag);
      for (std::size_t i = lag + 1; i <= q; ++i)
        sum -= then[i - lag - 1] * row[i - 1] * Back(nu_, i);
      row[lag - 1] = sum / Back(nu_, lag);
    }
    double variance = Kappa(0);
    for (std::size_t j = 1; j <= q; ++j) variance -= row[j - 1] * row[j - 1] * Back(nu_, j);
    thetas_.push_back(row);
    nu_.push_back(variance);
    ++values_;
    return row;
  }

  // Of the value to predict with that `lag` values before it: the first ones, as many as the
  // longest lag, are values of N itself, the others of the moving average phi(B) N.
  double Kappa(std::size_t lag) const {
    const std::size_t other = values_ + 1 - lag;
    const bool ofNoise = other <= std::max(Degree(model_.ar), Q());
    const List weights = ofNoise ? Expansion(model_.ma, model_.ar, Q()) : model_.ma;
    double sum = 0;
    for (std::size_t l = 0; l + lag <= Q(); ++l) sum += weights[l] * model_.ma[l + lag];
    return sum;
  }

  // The errors of N and Z as combinations of the periods' own errors, which are uncorrelated.
  double Variance(const List& row) {
    const std::size_t now = noise_errors_.size();
    List noise(now + 1);
    noise[now] = 1;
    for (std::size_t j = 1; j <= now; ++j) {
      if (j <= Degree(model_.ar)) AddTo(noise, noise_errors_[now - j], -model_.ar[j]);
      if (j <= row.size()) noise[now - j] += row[j - 1];
    }
    const Polynomial& differences = model_.transformation.differences;
    List z = noise;
    for (std::size_t j = 1; j <= now && j < differences.size(); ++j) {
      AddTo(z, z_errors_[now - j], -differences[j]);
    }
    noise_errors_.push_back(noise);
    z_errors_.push_back(z);
    double variance = 0;
    for (std::size_t i = 0; i <= now; ++i) variance += z[i] * z[i] * Back(nu_, now + 1 - i);
    return variance;
  }

  static void AddTo(List& sum, const List& summand, double weight) {
    for (std::size_t i = 0; i < summand.size(); ++i) sum[i] += weight * summand[i];
  }

  const ReadArima& model_;
  List noise_, errors_, z_;
  std::vector<List> thetas_;
  List nu_;
  std::size_t values_;  // of N so far
  std::vector<List> noise_errors_, z_errors_;
};

template <class Stepper>
std::vector<NextPeriod> Run(Stepper stepper, const List& known) {
  std::vector<NextPeriod> periods;
  for (const double value : known) periods.push_back(stepper.Next(value));
  return periods;
}

}  // namespace

List KnownPart(const ReadArima& model, const std::vector<List>& futures, std::size_t horizon) {
  List known(horizon, model.constant);
  for (std::size_t i = 0; i < model.predictors.size(); ++i) {
    const List effect = TransferFunction(model.predictors[i], futures.at(i), horizon);
    for (std::size_t h = 0; h < horizon; ++h) known[h] += effect[h];
  }
  for (std::size_t h = 0; h < horizon; ++h) {
    known[h] += DifferencedOutliers(model, model.length + static_cast<long>(h));
  }
  return known;
}

std::vector<NextPeriod> GoOn(const ReadArima& model, const std::vector<List>& futures,
                             std::size_t horizon) {
  const List known = KnownPart(model, futures, horizon);
  if (model.state.element == "ARIMAMLState") return Run(Filter(model), known);
  return Run(Recursion(model), known);
}

}  // namespace test
