#ifndef TSFFIT_MATH_LEASTSQUARES_H_
#define TSFFIT_MATH_LEASTSQUARES_H_

#include <Eigen/Core>
#include <vector>

namespace tsffit {

struct LeastSquaresFit {
  Eigen::VectorXd coefficients;  // 0 for a dropped column
  std::vector<bool> dropped;
  Eigen::VectorXd residuals;
  double sse = 0;
  // ln of the determinant of X'X for the first `leading` columns.
  double log_determinant = 0;
};

// Least squares of `y` on the columns of `x` by modified Gram-Schmidt, each column orthogonalised
// twice (Bjorck 1967, "Solving linear least squares problems by Gram-Schmidt orthogonalization",
// BIT 7, 1-21). A column that those before it explain to rounding is dropped.
LeastSquaresFit SolveLeastSquares(const Eigen::VectorXd& y, const Eigen::MatrixXd& x,
                                  Eigen::Index leading = 0);

// (X'X)^-1 with rows and columns of 0 for dropped columns.
Eigen::MatrixXd InverseGram(const Eigen::MatrixXd& x, const std::vector<bool>& dropped);

}  // namespace tsffit

#endif  // TSFFIT_MATH_LEASTSQUARES_H_
