#include "arima/fit/Target.h"

#include <algorithm>

#include "math/Descent.h"

namespace tsffit {

Target::Target(const Likelihood& likelihood, const SearchSpace& space)
    : likelihood_(likelihood),
      space_(space),
      parameters_(likelihood.GetDesign().Spec().GetParameterCount(true), 0.0) {}

double Target::operator()(const Eigen::VectorXd& point) {
  ++evaluations_;
  return space_.Parameters(point, parameters_) ? likelihood_.CriterionAt(parameters_)
                                               : std::numeric_limits<double>::infinity();
}

// Per case, so that the curvature is about 1 and a first step along the gradient about right: a
// longer one ends where the coordinates no longer move the likelihood.
double Target::Minimise(const Effort& effort, Eigen::VectorXd& point) {
  const auto cases = static_cast<double>(likelihood_.GetDesign().Rows());
  const DescentOptions options{.max_steps = effort.steps, .tolerance = effort.gain / cases};
  return cases *
         Descend([&](const Eigen::VectorXd& at) { return (*this)(at) / cases; }, options, point);
}

Evaluation Target::At(const Eigen::VectorXd& point) {
  space_.Parameters(point, parameters_);
  return likelihood_.At(parameters_);
}

bool IsBetter(const Candidate& a, const Candidate& b) { return a.value < b.value; }

void KeepBest(std::size_t count, std::vector<Candidate>& candidates) {
  std::sort(candidates.begin(), candidates.end(), IsBetter);
  candidates.resize(std::min(candidates.size(), count));
}

}  // namespace tsffit
