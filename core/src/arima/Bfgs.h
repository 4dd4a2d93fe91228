#ifndef TSFFIT_ARIMA_BFGS_H_
#define TSFFIT_ARIMA_BFGS_H_

#include <Eigen/Core>
#include <functional>

namespace tsffit {

struct BfgsOptions {
  int max_iterations = 200;
  double tolerance = 1e-9;   // stop when a step gains less, twice running
  double difference = 1e-5;  // step of the central differences
};

struct BfgsResult {
  double value = 0;
  bool converged = false;
};

// Lowers `f` from `point`, which is replaced by the best point met, with gradients by central
// differences and steps of at most 1 (Broyden 1970, Fletcher 1970, Goldfarb 1970, Shanno 1970;
// Nocedal and Wright 2006, "Numerical optimization", algorithm 6.1, with backtracking). `f` may be
// infinite: such points are stepped back from, which line searches that interpolate do not survive.
// A start where `f` is infinite stays where it is.
BfgsResult MinimiseBfgs(const std::function<double(const Eigen::VectorXd&)>& f,
                        const BfgsOptions& options, Eigen::VectorXd& point);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_BFGS_H_
