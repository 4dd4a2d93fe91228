#ifndef TSFFIT_ARIMA_FILTER_NOISEFILTER_H_
#define TSFFIT_ARIMA_FILTER_NOISEFILTER_H_

#include <Eigen/Core>
#include <cstddef>
#include <deque>
#include <vector>

#include "math/Polynomial.h"

namespace tsffit {

// Three filters that turn a stationary series, and every regressor beside it, into one-step
// prediction errors. Each takes a matrix with one column per series (rows are periods), replaces
// the columns by their errors and sets `nu`, the errors' variances in units of the innovation
// variance. Filtering is linear, so that the error of a combination of columns is the same
// combination of errors. False when the model's numbers leave the range of doubles.

// Exact, for the stationary process: the Chandrasekhar-type recursions of Morf, Sidhu and Kailath
// (1974), which carry a rank-one change of the state's covariance instead of the covariance; r
// operations a period and column, r the length of the state. With T the transition, F the variance
// of the prediction, K = T P Z' the gain before it is divided by F, P(t+1) - P(t) = w c c' and c_0
// the first element of c:
//   error = y - x_0,   x' = T x + K error / F                                             (1)
//   F' = F + w c_0^2,   K' = K + w c_0 T c,   c' = T c - (c_0 / F') K',
//   w' = w + w^2 c_0^2 / F                                                                (2)
bool FilterExactly(const Arma& arma, Eigen::MatrixXd& columns, Eigen::VectorXd& nu);

// The same errors and variances by the innovations algorithm on the transformed process (Brockwell
// and Davis 1991, section 5.3).
bool FilterByThetas(const Arma& arma, Eigen::MatrixXd& columns, Eigen::VectorXd& nu);

// Conditional errors, by equation (2) of Arima.h solved for a_t: 0 for the first p periods and
// before, p the degree of the autoregression; nu is 0 there and 1 afterwards.
bool FilterConditionally(const Arma& arma, Eigen::MatrixXd& columns, Eigen::VectorXd& nu);

// The theta recursion of Brockwell and Davis (1991, equations 5.3.5 to 5.3.9) one row at a time,
// with no more of the past than a next row needs. m = max(p, q); the transformed process is the
// series over the innovations' standard deviation up to period m and its moving average afterwards.
class ThetaRecursion {
 public:
  // At the start of the series, before row 0.
  explicit ThetaRecursion(const Arma& arma);

  // Continues after `count` rows, count above m, of which the last q are given, oldest first: row i
  // is theta(i, 1) .. theta(i, q).
  ThetaRecursion(const Arma& arma, std::size_t count, std::vector<std::vector<double>> thetas,
                 std::vector<double> nus);

  // Computes the next row, which predicts from as many periods as rows came before it: theta(i, j)
  // multiplies the error j periods back. Below row m as many as there are periods, later q.
  const std::vector<double>& NextRow();

  // The variance of the prediction by the latest row.
  double Nu() const { return nus_.back(); }
  std::size_t Count() const { return count_; }

  // The rows and variances kept, oldest first.
  const std::deque<std::vector<double>>& Rows() const { return rows_; }
  const std::deque<double>& Nus() const { return nus_; }

 private:
  double Kappa(std::size_t i, std::size_t j) const;
  double ThetaAt(std::size_t row, std::size_t j) const;

  std::vector<double> ar_;
  std::size_t q_;
  std::size_t m_;
  std::vector<double> gamma_;     // of the process, lags 0 .. 2 m
  std::vector<double> ma_gamma_;  // of its moving-average part, lags 0 .. q
  std::size_t count_ = 0;
  std::deque<std::vector<double>> rows_;
  std::deque<double> nus_;
};

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FILTER_NOISEFILTER_H_
