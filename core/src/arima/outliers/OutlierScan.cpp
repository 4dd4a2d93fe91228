#include "arima/outliers/OutlierScan.h"

#include <algorithm>
#include <cmath>

#include "arima/model/Effects.h"
#include "math/Polynomial.h"

namespace tsffit {

namespace {

// Columns filtered at a time.
constexpr std::size_t kBlock = 256;

// An effect is told from those of the model when more than this share of it is not theirs.
constexpr double kLeastShare = 1e-8;

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  if (values.size() % 2 == 1) return *middle;
  return 0.5 * (*middle + *std::max_element(values.begin(), middle));
}

// Of the residuals of the observed cases; the factor makes it the standard deviation of normal
// ones, and the degrees of freedom are counted as for that.
double RobustScale(const Evaluation& evaluation) {
  constexpr double kNormal = 1.4826022185056018;  // 1 / the upper quartile of the normal
  std::vector<double> residuals;
  for (Eigen::Index t = 0; t < evaluation.nu.size(); ++t) {
    if (evaluation.nu[t] > 0) residuals.push_back(evaluation.fit.residuals[t]);
  }
  if (residuals.empty()) return 0;
  const double centre = Median(residuals);
  for (double& residual : residuals) residual = std::abs(residual - centre);
  const auto count = static_cast<double>(residuals.size());
  const auto spent = static_cast<double>(evaluation.regressors.cols());
  return kNormal * Median(residuals) * std::sqrt(count / std::max(count - spent, 1.0));
}

// Gram-Schmidt, twice; what the columns before it explain leaves no vector.
Eigen::MatrixXd OrthonormalBasis(const Eigen::MatrixXd& columns) {
  Eigen::MatrixXd basis(columns.rows(), columns.cols());
  Eigen::Index size = 0;
  for (Eigen::Index j = 0; j < columns.cols(); ++j) {
    Eigen::VectorXd rest = columns.col(j);
    const double norm = rest.norm();
    for (int pass = 0; pass < 2; ++pass) {
      const Eigen::VectorXd along = basis.leftCols(size).transpose() * rest;
      rest -= basis.leftCols(size) * along;
    }
    if (rest.norm() <= kLeastShare * norm) continue;
    basis.col(size++) = rest / rest.norm();
  }
  return basis.leftCols(size);
}

}  // namespace

OutlierScan::OutlierScan(const Likelihood& likelihood, const std::vector<double>& parameters)
    : likelihood_(likelihood), parameters_(parameters) {
  const Evaluation evaluation = likelihood.At(parameters);
  if (!evaluation.usable) return;
  residuals_ = evaluation.fit.residuals;
  basis_ = OrthonormalBasis(evaluation.regressors);
  scale_ = RobustScale(evaluation);
}

Eigen::MatrixXd OutlierScan::Effects(int type, double decay, std::size_t begin,
                                     std::size_t end) const {
  const Design& design = likelihood_.GetDesign();
  const std::size_t rows = design.Rows();
  const std::size_t cases = design.First() + rows;
  const bool innovational = type == TSOutlierSpec::kInnovational;
  // What a case at a distance of `steps` has of an outlier, for every distance.
  std::vector<double> shape(cases);
  if (innovational) shape = PsiWeights(NoiseModel(design.Spec(), parameters_), cases);
  for (std::size_t steps = 0; steps < cases && !innovational; ++steps) {
    shape[steps] = DifferencedShape(design.Difference(), type, decay,
                                    design.Spec().GetSeasonLength(true), static_cast<long>(steps));
  }
  Eigen::MatrixXd effects = Eigen::MatrixXd::Zero(static_cast<Eigen::Index>(rows),
                                                  static_cast<Eigen::Index>(end - begin));
  for (std::size_t at = begin; at < end; ++at) {
    // Innovations before the first residual are not the model's.
    if (innovational && at < design.First()) continue;
    for (std::size_t t = std::max(at, design.First()); t < cases; ++t) {
      effects(static_cast<Eigen::Index>(t - design.First()),
              static_cast<Eigen::Index>(at - begin)) = shape[t - at];
    }
  }
  return effects;
}

std::vector<double> OutlierScan::TausOf(int type, double decay) const {
  const std::size_t cases = likelihood_.GetDesign().First() + likelihood_.GetDesign().Rows();
  std::vector<double> taus(cases, 0.0);
  for (std::size_t begin = 0; begin < cases; begin += kBlock) {
    const std::size_t end = std::min(begin + kBlock, cases);
    const Eigen::MatrixXd columns =
        likelihood_.RegressorsOf(Effects(type, decay, begin, end), parameters_);
    if (columns.cols() == 0) return {};
    const Eigen::MatrixXd own = columns - basis_ * (basis_.transpose() * columns);
    for (std::size_t at = begin; at < end; ++at) {
      const auto j = static_cast<Eigen::Index>(at - begin);
      const double norm = own.col(j).norm();
      if (norm <= kLeastShare * std::max(columns.col(j).norm(), kLeastShare)) continue;
      taus[at] = std::abs(own.col(j).dot(residuals_)) / (scale_ * norm);
    }
  }
  return taus;
}

}  // namespace tsffit
