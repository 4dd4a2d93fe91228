#ifndef TSFFIT_ARIMA_FIT_TARGET_H_
#define TSFFIT_ARIMA_FIT_TARGET_H_

#include <Eigen/Core>
#include <cstddef>
#include <limits>
#include <vector>

#include "arima/fit/Likelihood.h"
#include "arima/fit/SearchSpace.h"

namespace tsffit {

// How long one search goes on.
struct Effort {
  double gain = 0;  // log-likelihood; it ends with a step that gains less
  int steps = 0;    // points at which a gradient is taken, at most
};

// A likelihood as a function of search coordinates, with a count of its evaluations. Its values are
// those of Likelihood::CriterionAt(): differences are differences of the log-likelihood.
class Target {
 public:
  Target(const Likelihood& likelihood, const SearchSpace& space);

  // Infinite outside the region.
  double operator()(const Eigen::VectorXd& point);

  // Lowers the value from `point`, which is replaced by the best point met; returns its value.
  double Minimise(const Effort& effort, Eigen::VectorXd& point);

  Evaluation At(const Eigen::VectorXd& point);

  int Evaluations() const { return evaluations_; }

 private:
  const Likelihood& likelihood_;
  const SearchSpace& space_;
  std::vector<double> parameters_;
  int evaluations_ = 0;
};

// A point on the way to the maximum.
struct Candidate {
  Eigen::VectorXd point;
  double value = std::numeric_limits<double>::infinity();
};

bool IsBetter(const Candidate& a, const Candidate& b);

// The best `count`, best first.
void KeepBest(std::size_t count, std::vector<Candidate>& candidates);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_TARGET_H_
