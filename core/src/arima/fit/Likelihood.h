#ifndef TSFFIT_ARIMA_FIT_LIKELIHOOD_H_
#define TSFFIT_ARIMA_FIT_LIKELIHOOD_H_

#include <Eigen/Core>
#include <cstddef>
#include <optional>
#include <vector>

#include <tsffit/Arima.h>

#include "arima/model/Design.h"
#include "math/LeastSquares.h"

namespace tsffit {

// One value of the likelihood, the linear coefficients and the innovation variance eliminated.
struct Evaluation {
  bool usable = false;
  std::size_t residuals = 0;         // cases with a prediction error, less the diffuse values
  double log_determinant = 0;        // of the errors' covariance, over the innovation variance
  std::vector<double> parameters{};  // all of them; a dropped one is missing
  Eigen::VectorXd diffuse{};         // estimates of the values missing before the first row
  Eigen::VectorXd nu{};              // variances of the errors; 0 where there is none
  Eigen::MatrixXd regressors{};      // standardised: diffuse columns, then linear ones
  LeastSquaresFit fit{};             // of the standardised series on them

  // What a fit minimises: minus the log-likelihood, but for a constant.
  double Criterion() const;
  double LogLikelihood() const;
};

// The likelihood of a design under one method. Evaluations may run on several threads.
class Likelihood {
 public:
  Likelihood(const Design& design, ArimaMethod method);

  // At the searched coefficients in `parameters`; the linear ones are found.
  Evaluation At(std::vector<double> parameters) const;

  // Criterion() of At(), infinite where that is not usable; by the quickest filter that has it.
  double CriterionAt(const std::vector<double>& parameters) const;

  // The linear coefficients of At(), in the same way; empty where that is not usable.
  Eigen::VectorXd LinearAt(const std::vector<double>& parameters) const;

  // The standardised errors with the linear coefficients as given; empty when not usable.
  Eigen::VectorXd ErrorsAt(const std::vector<double>& parameters) const;

  // Whether a linear coefficient (by its place in LinearPositions) is left out for good, since the
  // data do not tell it from those before it.
  bool IsDropped(std::size_t linear) const { return dropped_[linear]; }

  // IsDropped() by position in the parameter vector.
  std::vector<bool> LeftOut() const;

  // Leaves a linear coefficient out for good if the data do not tell it from the others at `limit`,
  // which is where a search went that gained from ever larger values of it. Whether they do not.
  bool LeaveOutRunaway(std::size_t linear, const std::vector<double>& limit);

  // The standardised errors of columns on the differenced series, as `regressors` of At() has them.
  // Without columns when not usable.
  Eigen::MatrixXd RegressorsOf(const Eigen::MatrixXd& effects,
                               const std::vector<double>& parameters) const;

  // Whether the values that are missing before the first row can be told from the others.
  bool IsIdentified() const { return identified_; }

  const Design& GetDesign() const { return design_; }
  ArimaMethod Method() const { return method_; }

 private:
  struct Standardised;
  Standardised Filter(const Arma& arma, const Eigen::MatrixXd& effects) const;
  Standardised FilterDifferences(ArimaMethod method, const Arma& arma,
                                 const Eigen::MatrixXd& effects) const;
  Eigen::MatrixXd OnObserved(Eigen::MatrixXd effects) const;
  Standardised FilterGaps(const Arma& arma, const Eigen::MatrixXd& effects) const;
  Evaluation Eliminate(Standardised filtered, std::vector<double> parameters) const;
  Evaluation QuicklyAt(std::vector<double> parameters) const;
  Eigen::MatrixXd KeptEffects(const std::vector<double>& parameters) const;
  // By linear coefficient, whether `evaluation` does not tell it from those before it.
  std::vector<bool> UntoldIn(const Evaluation& evaluation, const Eigen::MatrixXd& effects) const;

  const Design& design_;
  ArimaMethod method_;
  // Of the series and of each missing value; without rows where not used.
  Eigen::MatrixXd differences_;
  Eigen::MatrixXd lags_;  // with missing cases: before the first row, of series and diffuse columns
  bool is_quick_ = false;  // FilterDifferences() takes no more time than the method's own filter
  std::vector<bool> dropped_;
  std::optional<Eigen::MatrixXd> effects_;  // where they do not depend on searched coefficients
  bool identified_ = true;
};

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_LIKELIHOOD_H_
