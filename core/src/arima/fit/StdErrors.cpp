#include "arima/fit/StdErrors.h"

#include <Eigen/Cholesky>
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include <tsfcore/MV.h>

#include "arima/model/Effects.h"

namespace tsffit {

namespace {

// Curvature is taken in the coordinates of the search, where nothing is near a border: in the
// coefficients the likelihood bends too fast for differences beside a unit root. At a maximum the
// Hessian follows the coordinates as a tensor, so that nothing is lost by it.
struct Free {
  Eigen::Index coordinate = 0;
  double step = 0;
  double second_difference = 0;  // of the criterion
};

// A second difference this much larger than the noise in its values is curvature.
constexpr double kSignal = 100;

// Steps of the differences in coordinates, which are about 1 in size: a thousandth, and a hundredth
// where that does not stand out from the noise (docs/decisions.md has what shorter ones did).
constexpr double kStep = 1e-3;
constexpr double kLongStep = 1e-2;

// Steps in coefficients: shares of their size, or of kSmall where they are smaller; shorter than
// kShortest they would be rounding.
constexpr double kSmall = 0.1;
constexpr double kShortest = 1e-8;

// Moves of all coordinates too small to matter: the curvature changes the criterion by some 1e-16
// over them, so that what it changes is noise.
constexpr double kNoMove = 1e-9;
constexpr int kNoMoves = 4;

// A pivot of a matrix with a unit diagonal below this share is none: what is left of it after
// elimination is rounding.
constexpr double kLeastPivot = 1e-12;

// The largest step, halved from a thousandth of the coefficient's size, that stays in the region
// with something to spare; 0 when there is none.
double StepWithin(const Block& block, std::vector<double> parameters, std::size_t position) {
  const double value = parameters[position];
  double step = kStep * std::max(std::abs(value), kSmall);
  while (step > kShortest) {
    bool inside = true;
    for (const double side : {-2.0, 2.0}) {
      parameters[position] = value + side * step;
      inside = inside && IsInside(block, parameters);
    }
    if (inside) return step;
    step /= 2;
  }
  return 0;
}

// The likelihood around its maximum.
class Surroundings {
 public:
  Surroundings(const Likelihood& likelihood, const SearchSpace& space, const Evaluation& solution)
      : likelihood_(likelihood),
        space_(space),
        solution_(solution),
        point_(space.PointAt(solution.parameters)),
        centre_(CriterionAt(point_)),
        noise_(Noise()) {
    Eigen::Index coordinate = 0;
    for (const Block& block : space.Blocks()) {
      for (std::size_t i = 0; i < block.Count(); ++i, ++coordinate) {
        if (IsAtEdge(block, solution.parameters)) continue;
        const std::optional<Free> free = FreeAt(coordinate, StepsOf(block, i));
        if (free) free_.push_back(*free);
      }
    }
  }

  const std::vector<Free>& Coordinates() const { return free_; }
  Eigen::Index Count() const { return static_cast<Eigen::Index>(free_.size()); }

  // Whether the curvature stands out from the noise. Beside several unit roots at a time it may
  // not: products of factors leave them in the last digits of their coefficients.
  bool IsClear() const {
    return std::all_of(free_.begin(), free_.end(), [this](const Free& free) {
      return free.second_difference > kSignal * noise_;
    });
  }

  // Of the criterion, by central differences.
  Eigen::MatrixXd Hessian() const {
    Eigen::MatrixXd hessian(Count(), Count());
    for (Eigen::Index i = 0; i < Count(); ++i) {
      const auto& [row, step, bend] = free_[static_cast<std::size_t>(i)];
      hessian(i, i) = bend / (step * step);
      for (Eigen::Index j = 0; j < i; ++j) {
        const auto& [column, other, otherBend] = free_[static_cast<std::size_t>(j)];
        double mixed = 0;
        for (const double a : {1.0, -1.0}) {
          for (const double b : {1.0, -1.0}) {
            Eigen::VectorXd moved = Moved(row, a * step);
            moved[column] += b * other;
            mixed += a * b * CriterionAt(moved);
          }
        }
        hessian(i, j) = hessian(j, i) = mixed / (4 * step * other);
      }
    }
    return hessian;
  }

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
  Eigen::VectorXd Moved(Eigen::Index coordinate, double by) const {
    Eigen::VectorXd moved = point_;
    moved[coordinate] += by;
    return moved;
  }

  // Lengths of steps to try, shortest first.
  std::vector<double> StepsOf(const Block& block, std::size_t i) const {
    if (block.HasPartials() || block.kind == BlockKind::kDecay) return {kStep, kLongStep};
    const double step = StepWithin(block, solution_.parameters, block.first + i);
    return step > 0 ? std::vector<double>{step} : std::vector<double>();
  }

  // Nothing for a coefficient that moves nothing: the decay of an outlier in the last case.
  std::optional<Free> FreeAt(Eigen::Index coordinate, const std::vector<double>& steps) const {
    std::optional<Free> free;
    for (const double step : steps) {
      const double up = CriterionAt(Moved(coordinate, step)) - centre_;
      if (up == 0) return std::nullopt;
      const double down = CriterionAt(Moved(coordinate, -step)) - centre_;
      free = {.coordinate = coordinate, .step = step, .second_difference = up + down};
      if (free->second_difference > kSignal * noise_) break;
    }
    return free;
  }

  // The greatest difference that moves too small to matter make in the criterion.
  double Noise() const {
    double noise = 0;
    for (int k = 1; k <= kNoMoves; ++k) {
      const Eigen::VectorXd moved = point_.array() + kNoMove * k;
      const double difference = std::abs(CriterionAt(moved) - centre_);
      if (std::isfinite(difference)) noise = std::max(noise, difference);
    }
    return noise;
  }

  // Those at the edge stay what they are.
  std::vector<double> ParametersAt(const Eigen::VectorXd& point) const {
    std::vector<double> parameters = solution_.parameters;
    if (!space_.Parameters(point, parameters)) return {};
    for (const Block& block : space_.Blocks()) {
      if (!IsAtEdge(block, solution_.parameters)) continue;
      std::copy_n(solution_.parameters.begin() + static_cast<std::ptrdiff_t>(block.first),
                  block.Count(), parameters.begin() + static_cast<std::ptrdiff_t>(block.first));
    }
    return parameters;
  }

  double CriterionAt(const Eigen::VectorXd& point) const {
    const std::vector<double> parameters = ParametersAt(point);
    return parameters.empty() ? std::numeric_limits<double>::infinity()
                              : likelihood_.CriterionAt(parameters);
  }

  const Likelihood& likelihood_;
  const SearchSpace& space_;
  const Evaluation& solution_;
  Eigen::VectorXd point_;
  double centre_;
  double noise_;
  std::vector<Free> free_;
};

// The inverse of a positive definite matrix, scaled to a unit diagonal in between.
std::optional<Eigen::MatrixXd> InversePositive(const Eigen::MatrixXd& matrix) {
  if (!matrix.allFinite() || !(matrix.diagonal().array() > 0).all()) return std::nullopt;
  const Eigen::VectorXd scale = matrix.diagonal().cwiseSqrt().cwiseInverse();
  const Eigen::LDLT<Eigen::MatrixXd> factors(scale.asDiagonal() * matrix * scale.asDiagonal());
  if (factors.info() != Eigen::Success || !(factors.vectorD().array() > kLeastPivot).all()) {
    return std::nullopt;
  }
  const Eigen::MatrixXd inverse =
      factors.solve(Eigen::MatrixXd::Identity(matrix.rows(), matrix.cols()));
  return scale.asDiagonal() * inverse * scale.asDiagonal();
}

// Variances of the coordinates together, and of each linear coefficient.
struct Variances {
  Eigen::MatrixXd coordinates;
  Eigen::VectorXd linear;
};

// By the inverse of the joint Hessian, put together from that of the profile likelihood (Patefield
// 1977, "On the maximized likelihood function", Sankhya B 39, 92-96).
std::optional<Variances> FromHessian(const Likelihood& likelihood, const Surroundings& around,
                                     const Evaluation& solution) {
  if (!around.IsClear()) return std::nullopt;
  const std::optional<Eigen::MatrixXd> coordinates = InversePositive(around.Hessian());
  if (!coordinates) return std::nullopt;
  const double variance = solution.fit.sse / static_cast<double>(solution.residuals);
  const auto count = static_cast<Eigen::Index>(likelihood.GetDesign().LinearPositions().size());
  const Eigen::MatrixXd slopes = around.Slopes(count, [&](const std::vector<double>& parameters) {
    return parameters.empty() ? Eigen::VectorXd() : likelihood.LinearAt(parameters);
  });
  const Eigen::MatrixXd given = InverseGram(solution.regressors, solution.fit.dropped);
  const Eigen::MatrixXd linear =
      variance * given.bottomRightCorner(count, count) + slopes * *coordinates * slopes.transpose();
  return Variances{.coordinates = *coordinates, .linear = linear.diagonal()};
}

std::optional<Variances> FromJacobian(const Likelihood& likelihood, const Surroundings& around,
                                      const Evaluation& solution, unsigned estimated) {
  const Eigen::Index count = around.Count();
  const Eigen::Index linear = solution.regressors.cols();
  if (count + linear == 0) return std::nullopt;
  Eigen::MatrixXd jacobian(solution.regressors.rows(), count + linear);
  jacobian.rightCols(linear) = solution.regressors;
  jacobian.leftCols(count) =
      around.Slopes(jacobian.rows(), [&](const std::vector<double>& parameters) {
        return parameters.empty() ? Eigen::VectorXd() : likelihood.ErrorsAt(parameters);
      });
  Eigen::MatrixXd gram = jacobian.transpose() * jacobian;
  for (Eigen::Index j = 0; j < linear; ++j) {
    if (!solution.fit.dropped[static_cast<std::size_t>(j)]) continue;
    gram.row(count + j).setZero();
    gram.col(count + j).setZero();
    gram(count + j, count + j) = 1;
  }
  const std::optional<Eigen::MatrixXd> inverse = InversePositive(gram);
  if (!inverse) return std::nullopt;
  const double variance = solution.fit.sse / static_cast<double>(solution.residuals - estimated);
  const Eigen::VectorXd diagonal = inverse->diagonal();
  return Variances{.coordinates = variance * inverse->topLeftCorner(count, count),
                   .linear = variance * diagonal.tail(linear)};
}

}  // namespace

std::vector<double> ArimaStdErrors(const Likelihood& likelihood, const SearchSpace& space,
                                   const Evaluation& solution, unsigned estimated) {
  std::vector<double> errors(solution.parameters.size(), MV::gMissingValue);
  const Surroundings around(likelihood, space, solution);
  const std::optional<Variances> variances =
      likelihood.Method() == ArimaMethod::kCls
          ? FromJacobian(likelihood, around, solution, estimated)
          : FromHessian(likelihood, around, solution);
  if (!variances) return errors;

  const std::vector<std::size_t>& searched = space.Positions();
  const Eigen::MatrixXd slopes =
      around.Slopes(space.Dimension(), [&](const std::vector<double>& parameters) {
        Eigen::VectorXd values(parameters.empty() ? 0 : space.Dimension());
        for (Eigen::Index i = 0; i < values.size(); ++i) {
          values[i] = parameters[searched[static_cast<std::size_t>(i)]];
        }
        return values;
      });
  const Eigen::VectorXd coefficients =
      (slopes * variances->coordinates * slopes.transpose()).diagonal();
  for (const Free& free : around.Coordinates()) {
    errors[searched[static_cast<std::size_t>(free.coordinate)]] =
        std::sqrt(coefficients[free.coordinate]);
  }
  const std::vector<std::size_t>& linear = likelihood.GetDesign().LinearPositions();
  const std::size_t diffuse = solution.fit.dropped.size() - linear.size();
  for (std::size_t j = 0; j < linear.size(); ++j) {
    if (solution.fit.dropped[diffuse + j]) continue;
    errors[linear[j]] = std::sqrt(variances->linear[static_cast<Eigen::Index>(j)]);
  }
  return errors;
}

}  // namespace tsffit
