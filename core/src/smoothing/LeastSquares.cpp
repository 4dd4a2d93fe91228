#include "smoothing/LeastSquares.h"

#include <array>
#include <cmath>
#include <limits>

namespace tsffit {

namespace {

using Eigen::Index;
using Eigen::VectorXd;

// Columns of the Jacobian that are gathered before they are added to J'J.
constexpr Index kBlock = 64;

// Derivatives of the gains by each weight.
struct GainDerivatives {
  std::array<Gains, 3> by_weight;
  int count = 0;
};

GainDerivatives DerivativesOf(const KindTraits& traits, std::span<const double> weights) {
  GainDerivatives all;
  all.count = traits.weight_count;
  for (int w = 0; w < all.count; ++w) {
    all.by_weight[static_cast<std::size_t>(w)] = GainSlopes(traits, weights, w);
  }
  return all;
}

// target[w] += factor * (derivative of one gain by weight w)
void AddGain(VectorXd& target, const GainDerivatives& gains, double Gains::*member, double factor) {
  for (int w = 0; w < gains.count; ++w) {
    target[w] += factor * (gains.by_weight[static_cast<std::size_t>(w)].*member);
  }
}

// Components together with their derivatives by every parameter.
struct Sensitivities {
  VectorXd level;
  VectorXd trend;
  Eigen::MatrixXd season;  // a column per position of the cycle
  VectorXd line;           // of q = level + damping * trend
  VectorXd scratch;
};

Sensitivities AtStart(const SmoothingProblem& problem) {
  const Index size = problem.Size();
  Sensitivities d;
  d.level = VectorXd::Unit(size, problem.WeightCount());
  d.line = VectorXd::Zero(size);
  d.scratch = VectorXd::Zero(size);
  Index next = problem.WeightCount() + 1;
  if (problem.Traits().trend) d.trend = VectorXd::Unit(size, next++);
  if (problem.Traits().season != Season::kNone) {
    const auto length = static_cast<Index>(problem.SeasonLength());
    d.season = Eigen::MatrixXd::Zero(size, length);
    d.season.bottomRows(length).setIdentity();
  }
  return d;
}

// Gathers rows of the Jacobian and adds them to the normal equations, a block at a time, so that
// memory does not grow with the series.
class NormalSum {
 public:
  NormalSum(Index size, SmoothingProblem::NormalEquations& out) : out_(out), rows_(size, kBlock) {
    out_.sse = 0;
    out_.gradient.setZero(size);
    out_.matrix.setZero(size, size);
  }
  // Where the next error's derivatives go.
  auto Next() { return rows_.col(used_); }
  void Take(double e) {
    errors_[used_] = e;
    if (++used_ == kBlock) Flush();
  }
  void Flush() {
    const auto rows = rows_.leftCols(used_);
    const auto errors = errors_.head(used_);
    out_.sse += errors.squaredNorm();
    out_.gradient.noalias() += rows * errors;
    out_.matrix.selfadjointView<Eigen::Lower>().rankUpdate(rows);
    used_ = 0;
  }

 private:
  SmoothingProblem::NormalEquations& out_;
  Eigen::MatrixXd rows_;
  Eigen::Matrix<double, kBlock, 1> errors_;
  Index used_ = 0;
};

template <bool kTrend, Season kSeason>
bool LineariseShape(const SmoothingProblem& problem, const VectorXd& parameters,
                    SmoothingProblem::NormalEquations& out) {
  using OneStep = Step<kTrend, kSeason>;
  const std::span<const double> series = problem.Series();
  const std::span<const double> weights(parameters.data(),
                                        static_cast<std::size_t>(problem.WeightCount()));
  const Gains g = GainsOf(problem.Traits(), weights);
  const GainDerivatives dg = DerivativesOf(problem.Traits(), weights);
  Components c = problem.StartAt(parameters);
  Sensitivities d = AtStart(problem);
  NormalSum sum(problem.Size(), out);

  std::size_t position = 0;
  for (const double y : series) {
    const double q = OneStep::TrendLine(c, g);
    const double s = kSeason == Season::kNone ? 0 : c.season[position];
    if (!OneStep::Allows(q, s)) return false;
    d.line = d.level;
    if constexpr (kTrend) {
      d.line += g.damping * d.trend;
      if (problem.Traits().damped) AddGain(d.line, dg, &Gains::damping, c.trend);
    }
    // The trend before its correction: damping * trend.
    if constexpr (kTrend) {
      if (problem.Traits().damped) {
        d.trend *= g.damping;
        AddGain(d.trend, dg, &Gains::damping, c.trend);
      }
    }
    if (y == MV::gMissingValue) {
      d.level = d.line;
      OneStep::Correct(c, g, position, q, 0);
    } else {
      const double e = y - OneStep::Forecast(q, s);
      auto de = sum.Next();
      if constexpr (kSeason == Season::kNone) {
        de = -d.line;
      } else {
        auto ds = d.season.col(static_cast<Index>(position));
        if constexpr (kSeason == Season::kAdditive) {
          de = -d.line - ds;
        } else {
          de = -s * d.line - q * ds;
        }
      }
      if constexpr (kSeason == Season::kMultiplicative) {
        // r = e / S corrects level and trend, u = e / q the season.
        auto ds = d.season.col(static_cast<Index>(position));
        const double r = e / s;
        const double u = e / q;
        d.scratch = -d.line - (y / (s * s)) * ds;
        d.level = d.line + g.level * d.scratch;
        AddGain(d.level, dg, &Gains::level, r);
        d.trend += g.trend * d.scratch;
        AddGain(d.trend, dg, &Gains::trend, r);
        ds = (1 - g.season) * ds - (g.season * y / (q * q)) * d.line;
        for (int w = 0; w < dg.count; ++w) {
          ds[w] += u * dg.by_weight[static_cast<std::size_t>(w)].season;
        }
      } else {
        d.level = d.line + g.level * de;
        AddGain(d.level, dg, &Gains::level, e);
        if constexpr (kTrend) {
          d.trend += g.trend * de;
          AddGain(d.trend, dg, &Gains::trend, e);
        }
        if constexpr (kSeason == Season::kAdditive) {
          auto ds = d.season.col(static_cast<Index>(position));
          ds += g.season * de;
          for (int w = 0; w < dg.count; ++w) {
            ds[w] += e * dg.by_weight[static_cast<std::size_t>(w)].season;
          }
        }
      }
      OneStep::Correct(c, g, position, q, e);
      sum.Take(e);
    }
    if (kSeason != Season::kNone && ++position == c.season.size()) position = 0;
  }
  sum.Flush();
  return std::isfinite(out.sse) && out.gradient.allFinite();
}

}  // namespace

SmoothingProblem::SmoothingProblem(const KindTraits& traits, std::span<const double> series,
                                   std::size_t seasonLength)
    : traits_(traits), series_(series), season_length_(seasonLength) {
  size_ = traits.weight_count + 1 + (traits.trend ? 1 : 0);
  if (traits.season != Season::kNone) size_ += static_cast<Index>(seasonLength);
}

VectorXd SmoothingProblem::Pack(std::span<const double> weights, const Components& start) const {
  VectorXd parameters(size_);
  Index next = 0;
  for (const double weight : weights) parameters[next++] = weight;
  parameters[next++] = start.level;
  if (traits_.trend) parameters[next++] = start.trend;
  for (const double value : start.season) parameters[next++] = value;
  return parameters;
}

Gains SmoothingProblem::GainsAt(const VectorXd& parameters) const {
  return GainsOf(traits_, {parameters.data(), static_cast<std::size_t>(WeightCount())});
}

Components SmoothingProblem::StartAt(const VectorXd& parameters) const {
  Components start;
  Index next = WeightCount();
  start.level = parameters[next++];
  if (traits_.trend) start.trend = parameters[next++];
  start.season.assign(parameters.data() + next, parameters.data() + size_);
  return start;
}

double SmoothingProblem::Sse(const VectorXd& parameters) const {
  Components components = StartAt(parameters);
  const Gains gains = GainsAt(parameters);
  double sse = 0;
  const auto addSquare = [&](std::size_t t, double forecast) {
    const double y = series_[t];
    if (y != MV::gMissingValue) sse += (y - forecast) * (y - forecast);
  };
  const bool inside = ForShape(traits_, [&]<bool kTrend, Season kSeason>() {
    return Walk<kTrend, kSeason>(series_, gains, components, addSquare);
  });
  return inside && std::isfinite(sse) ? sse : std::numeric_limits<double>::infinity();
}

bool SmoothingProblem::Linearise(const VectorXd& parameters, NormalEquations& out) const {
  return ForShape(traits_, [&]<bool kTrend, Season kSeason>() {
    return LineariseShape<kTrend, kSeason>(*this, parameters, out);
  });
}

}  // namespace tsffit
