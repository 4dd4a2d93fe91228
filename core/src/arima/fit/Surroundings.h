#ifndef TSFFIT_ARIMA_FIT_SURROUNDINGS_H_
#define TSFFIT_ARIMA_FIT_SURROUNDINGS_H_

#include <Eigen/Core>
#include <optional>
#include <vector>

#include "arima/fit/Likelihood.h"
#include "arima/fit/SearchSpace.h"

namespace tsffit {

// Curvature is taken in the coordinates of the search, where nothing is near a border: in the
// coefficients the likelihood bends too fast for differences beside a unit root. At a maximum the
// Hessian follows the coordinates as a tensor, so that nothing is lost by it.
struct FreeCoordinate {
  Eigen::Index coordinate = 0;
  double step = 0;
  double second_difference = 0;  // of the criterion
};

// The likelihood around its maximum, over those coordinates that are not at the edge of the region
// and that move it.
class Surroundings {
 public:
  Surroundings(const Likelihood& likelihood, const SearchSpace& space, const Evaluation& solution);

  const std::vector<FreeCoordinate>& Coordinates() const { return free_; }
  Eigen::Index Count() const { return static_cast<Eigen::Index>(free_.size()); }

  // Whether the curvature stands out from the noise. Beside several unit roots at a time it may
  // not: products of factors leave them in the last digits of their coefficients.
  bool IsClear() const;

  // Of the criterion, by central differences.
  Eigen::MatrixXd Hessian() const;

  // Central differences of what `f` makes of the parameters, a vector of length `rows`, a column
  // for each coordinate; columns of 0 where `f` has no value.
  template <typename F>
  Eigen::MatrixXd Slopes(Eigen::Index rows, const F& f) const {
    Eigen::MatrixXd slopes = Eigen::MatrixXd::Zero(rows, Count());
    for (Eigen::Index i = 0; i < Count(); ++i) {
      const auto& [coordinate, step, bend] = free_[static_cast<std::size_t>(i)];
      const Eigen::VectorXd up = f(ParametersAt(Moved(coordinate, step)));
      const Eigen::VectorXd down = f(ParametersAt(Moved(coordinate, -step)));
      if (up.size() == rows && down.size() == rows) slopes.col(i) = (up - down) / (2 * step);
    }
    return slopes;
  }

 private:
  Eigen::VectorXd Moved(Eigen::Index coordinate, double by) const;

  // Lengths of steps to try, shortest first.
  std::vector<double> StepsOf(const Block& block, std::size_t i) const;

  // Nothing for a coefficient that moves nothing: the decay of an outlier in the last case.
  std::optional<FreeCoordinate> FreeAt(Eigen::Index coordinate,
                                       const std::vector<double>& steps) const;

  // The greatest difference that moves too small to matter make in the criterion.
  double Noise() const;

  // Those at the edge stay what they are.
  std::vector<double> ParametersAt(const Eigen::VectorXd& point) const;

  double CriterionAt(const Eigen::VectorXd& point) const;

  const Likelihood& likelihood_;
  const SearchSpace& space_;
  const Evaluation& solution_;
  Eigen::VectorXd point_;
  double centre_;
  double noise_;
  std::vector<FreeCoordinate> free_;
};

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_SURROUNDINGS_H_
