#include "smoothing/ComponentSolve.h"

#include <Eigen/Cholesky>
#include <Eigen/Core>
#include <cmath>

namespace tsffit {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

constexpr int kMostHalvings = 2;

// J'J (lower triangle) and J'e, gathered a block of cases at a time so that memory does not grow
// with the series.
class NormalSum {
 public:
  explicit NormalSum(Index size)
      : matrix_(MatrixXd::Zero(size, size)), right_(VectorXd::Zero(size)), rows_(size, kBlock) {}
  auto Next() { return rows_.col(used_); }  // where the next error's derivatives go
  void Take(double e) {
    errors_[used_] = e;
    if (++used_ == kBlock) Flush();
  }
  // The step that solves the normal equations. The tiny ridge settles what the cases leave open:
  // a season and the level may trade constants.
  VectorXd Step() {
    Flush();
    matrix_.diagonal() *= 1 + kRidge;
    matrix_.diagonal().array() += kRidge * matrix_.diagonal().maxCoeff();
    return matrix_.selfadjointView<Eigen::Lower>().ldlt().solve(-right_);
  }

 private:
  static constexpr Index kBlock = 64;
  static constexpr double kRidge = 1e-11;

  void Flush() {
    if (used_ == 0) return;  // Eigen's rankUpdate() divides by the number of columns
    const auto rows = rows_.leftCols(used_);
    right_.noalias() += rows * errors_.head(used_);
    matrix_.selfadjointView<Eigen::Lower>().rankUpdate(rows);
    used_ = 0;
  }

  MatrixXd matrix_;
  VectorXd right_;
  MatrixXd rows_;
  Eigen::Matrix<double, kBlock, 1> errors_;
  Index used_ = 0;
};

// Derivatives of level, trend and season by every starting component.
struct Sensitivities {
  VectorXd level;
  VectorXd trend;
  MatrixXd season;  // a column per position of the cycle
  VectorXd line;    // of q = level + damping * trend
  VectorXd ratio;   // of e / S
};

Sensitivities AtStart(const SmoothingProblem& problem) {
  const auto size = static_cast<Index>(problem.Layout().size - problem.WeightCount());
  const auto length = static_cast<Index>(problem.Layout().size - problem.Layout().season);
  Sensitivities d;
  d.level = VectorXd::Unit(size, 0);
  if (problem.Traits().trend) d.trend = VectorXd::Unit(size, 1);
  d.season = MatrixXd::Zero(size, length);
  d.season.bottomRows(length).setIdentity();
  d.line = VectorXd::Zero(size);
  d.ratio = VectorXd::Zero(size);
  return d;
}

template <bool kTrend>
void Line(const Gains& g, Sensitivities& d) {
  if constexpr (kTrend) {
    if (g.damping != 1) d.trend *= g.damping;
    d.line = d.level + d.trend;
  } else {
    d.line = d.level;
  }
}

// Derivatives of the error into `de`, and those of the components after its correction.
template <bool kTrend, Season kSeason, class Column>
void Differentiate(const Gains& g, double q, double s, double y, Index position, Sensitivities& d,
                   Column de) {
  if constexpr (kSeason == Season::kMultiplicative) {
    auto ds = d.season.col(position);
    de = -s * d.line - q * ds;
    d.ratio = -d.line - (y / (s * s)) * ds;
    d.level = d.line + g.level * d.ratio;
    d.trend += g.trend * d.ratio;
    ds = (1 - g.season) * ds - (g.season * y / (q * q)) * d.line;
  } else {
    if constexpr (kSeason == Season::kAdditive) {
      auto ds = d.season.col(position);
      de = -d.line - ds;
      ds += g.season * de;
    } else {
      de = -d.line;
    }
    d.level = d.line + g.level * de;
    if constexpr (kTrend) d.trend += g.trend * de;
  }
}

// The Gauss-Newton step of the starting components; empty outside the region of the model.
template <bool kTrend, Season kSeason>
VectorXd GaussNewtonStep(const SmoothingProblem& problem, std::span<const double> parameters) {
  using OneStep = Step<kTrend, kSeason>;
  const Gains g = problem.GainsAt(parameters);
  Components c = problem.StartAt(parameters);
  Sensitivities d = AtStart(problem);
  NormalSum sum(d.level.size());
  std::size_t position = 0;
  for (const double y : problem.Series()) {
    const double q = OneStep::TrendLine(c, g);
    const double s = kSeason == Season::kNone ? 0 : c.season[position];
    if (!OneStep::Allows(q, s)) return {};
    Line<kTrend>(g, d);
    if (IsMissing(y)) {
      d.level = d.line;
      OneStep::Pass(c, g, q);
    } else {
      Differentiate<kTrend, kSeason>(g, q, s, y, static_cast<Index>(position), d, sum.Next());
      sum.Take(y - OneStep::Forecast(q, s));
      OneStep::Correct(c, g, position, q, y);
    }
    if (kSeason != Season::kNone && ++position == c.season.size()) position = 0;
  }
  return sum.Step();
}

}  // namespace

double SolveComponents(SmoothingProblem& problem, std::vector<double>& parameters) {
  const double sse = problem.Sse(parameters);
  const VectorXd step = ForShape(problem.Traits(), [&]<bool kTrend, Season kSeason>() {
    return GaussNewtonStep<kTrend, kSeason>(problem, parameters);
  });
  if (step.size() == 0 || !step.allFinite()) return sse;
  std::vector<double> trial(parameters);
  double share = 1;
  for (int halvings = 0; halvings <= kMostHalvings; ++halvings, share /= 2) {
    for (Index j = 0; j < step.size(); ++j) {
      const std::size_t i = problem.WeightCount() + static_cast<std::size_t>(j);
      trial[i] = parameters[i] + share * step[j];
    }
    const double trialSse = problem.Sse(trial);
    if (trialSse < sse) {
      parameters = std::move(trial);
      return trialSse;
    }
  }
  return sse;
}

}  // namespace tsffit
