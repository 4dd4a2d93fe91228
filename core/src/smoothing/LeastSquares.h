#ifndef TSFFIT_SMOOTHING_LEASTSQUARES_H_
#define TSFFIT_SMOOTHING_LEASTSQUARES_H_

#include <Eigen/Core>
#include <cstddef>
#include <span>

#include "smoothing/Recursion.h"

namespace tsffit {

// The sum of squared one-step errors of one kind on one series, as a function of a parameter
// vector: the weights (order of ESModelSpec), then level, trend and seasonal values before the
// first case. The series is borrowed and should be of unit size.
class SmoothingProblem {
 public:
  // J'J, J'e and e'e for errors e and their Jacobian J; only the lower triangle of `matrix` is set.
  struct NormalEquations {
    double sse = 0;
    Eigen::VectorXd gradient;
    Eigen::MatrixXd matrix;
  };

  // `season_length` is 1 for kinds without a season.
  SmoothingProblem(const KindTraits& traits, std::span<const double> series,
                   std::size_t seasonLength);

  const KindTraits& Traits() const { return traits_; }
  std::span<const double> Series() const { return series_; }
  std::size_t SeasonLength() const { return season_length_; }

  Eigen::Index Size() const { return size_; }
  Eigen::Index WeightCount() const { return traits_.weight_count; }
  Eigen::VectorXd Pack(std::span<const double> weights, const Components& start) const;
  Gains GainsAt(const Eigen::VectorXd& parameters) const;
  Components StartAt(const Eigen::VectorXd& parameters) const;

  // Sum of squared errors; infinite outside the region of a multiplicative model.
  double Sse(const Eigen::VectorXd& parameters) const;

  // Exact derivatives by forward sensitivities: the same loop carries the derivatives of level,
  // trend and seasonal values by every parameter. False outside the region.
  bool Linearise(const Eigen::VectorXd& parameters, NormalEquations& out) const;

 private:
  KindTraits traits_;
  std::span<const double> series_;
  std::size_t season_length_;
  Eigen::Index size_;
};

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_LEASTSQUARES_H_
