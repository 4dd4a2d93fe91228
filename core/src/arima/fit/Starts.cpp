#include "arima/fit/Starts.h"

#include <algorithm>
#include <cmath>

namespace tsffit {

namespace {

// Where nothing is known about a decay.
constexpr double kMiddleDecay = 0.5;

// Order of the long autoregression: 10 log10(n) lags, as R's ar() takes by default, at most a
// quarter of the cases.
Eigen::Index LongOrder(Eigen::Index cases) {
  const double lags = std::ceil(10 * std::log10(static_cast<double>(cases)));
  return std::min(static_cast<Eigen::Index>(lags), cases / 4);
}

// The series less its linear effects, all noise taken as white; 0 where it is missing.
Eigen::VectorXd WhiteResiduals(const Likelihood& likelihood, const SearchSpace& space) {
  std::vector<double> parameters(likelihood.GetDesign().Spec().GetParameterCount(true), 0.0);
  for (const Block& block : space.Blocks()) {
    if (block.kind == BlockKind::kDecay) parameters[block.first] = kMiddleDecay;
  }
  return likelihood.At(std::move(parameters)).fit.residuals;
}

// The series `lag` periods earlier, for the rows from `first` on.
Eigen::VectorXd Lagged(const Eigen::VectorXd& series, Eigen::Index first, std::size_t lag) {
  return series.segment(first - static_cast<Eigen::Index>(lag), series.size() - first);
}

// Innovations by an autoregression of the given order; 0 before it starts.
Eigen::VectorXd LongAutoregression(const Eigen::VectorXd& series, Eigen::Index order) {
  Eigen::MatrixXd lags(series.size() - order, order);
  for (Eigen::Index k = 0; k < order; ++k) {
    lags.col(k) = Lagged(series, order, static_cast<std::size_t>(k + 1));
  }
  Eigen::VectorXd innovations = Eigen::VectorXd::Zero(series.size());
  innovations.tail(series.size() - order) =
      SolveLeastSquares(series.tail(series.size() - order), lags).residuals;
  return innovations;
}

bool IsNoiseFactor(const Block& block) {
  return block.kind == BlockKind::kAr || block.kind == BlockKind::kMa;
}

// Coefficients and longest lag of the noise factors.
struct NoiseLags {
  Eigen::Index count = 0;
  Eigen::Index largest = 0;
};

NoiseLags LagsOf(const SearchSpace& space) {
  NoiseLags lags;
  for (const Block& block : space.Blocks()) {
    if (!IsNoiseFactor(block)) continue;
    for (std::uint32_t i = 0; i < block.Count(); ++i) {
      lags.largest = std::max(lags.largest, static_cast<Eigen::Index>(block.lags.GetPower(i)));
      ++lags.count;
    }
  }
  return lags;
}

// The series' own lags and those of the innovations, a column for each noise coefficient, for the
// rows from `first` on.
Eigen::MatrixXd LaggedColumns(const SearchSpace& space, const Eigen::VectorXd& series,
                              const Eigen::VectorXd& innovations, Eigen::Index first,
                              Eigen::Index count) {
  Eigen::MatrixXd columns(series.size() - first, count);
  Eigen::Index column = 0;
  for (const Block& block : space.Blocks()) {
    if (!IsNoiseFactor(block)) continue;
    for (std::uint32_t i = 0; i < block.Count(); ++i) {
      const std::size_t lag = block.lags.GetPower(i);
      if (block.kind == BlockKind::kAr) {
        columns.col(column++) = Lagged(series, first, lag);
      } else {
        columns.col(column++) = -Lagged(innovations, first, lag);
      }
    }
  }
  return columns;
}

// The parameter vector with these noise coefficients, in the order of the blocks.
std::vector<double> ParametersWith(const Eigen::VectorXd& noise, const Likelihood& likelihood,
                                   const SearchSpace& space) {
  std::vector<double> parameters(likelihood.GetDesign().Spec().GetParameterCount(true), 0.0);
  const double* value = noise.data();
  for (const Block& block : space.Blocks()) {
    if (block.kind == BlockKind::kDecay) parameters[block.first] = kMiddleDecay;
    if (!IsNoiseFactor(block)) continue;
    std::copy(value, value + block.Count(),
              parameters.begin() + static_cast<std::ptrdiff_t>(block.first));
    value += block.Count();
  }
  return parameters;
}

}  // namespace

std::optional<Eigen::VectorXd> HannanRissanenStart(const Likelihood& likelihood,
                                                   const SearchSpace& space) {
  const auto [count, largest] = LagsOf(space);
  const Eigen::VectorXd series = WhiteResiduals(likelihood, space);
  const Eigen::Index order = LongOrder(series.size());
  const Eigen::Index first = space.Has(BlockKind::kMa) ? order + largest : largest;
  const Eigen::Index rows = series.size() - first;
  if (count == 0 || order < 1 || rows < count + 2) return std::nullopt;

  const Eigen::VectorXd innovations = LongAutoregression(series, order);
  const LeastSquaresFit fit =
      SolveLeastSquares(series.tail(rows), LaggedColumns(space, series, innovations, first, count));
  return space.PointAt(ParametersWith(fit.coefficients, likelihood, space));
}

Eigen::VectorXd SpreadStart(const SearchSpace& space, const Spread& spread) {
  Eigen::VectorXd point = Eigen::VectorXd::Zero(space.Dimension());
  Eigen::Index at = 0;
  for (const Block& block : space.Blocks()) {
    double value = 0;
    if (block.kind == BlockKind::kAr) value = spread.ar;
    if (block.kind == BlockKind::kMa) value = spread.ma;
    if (block.kind == BlockKind::kStable) value = spread.denominator;
    point[at] = block.HasPartials() ? std::atanh(value) : value;
    at += static_cast<Eigen::Index>(block.Count());
  }
  return point;
}

std::optional<Eigen::VectorXd> CycleStart(const SearchSpace& space, const Cycle& cycle) {
  Eigen::VectorXd point = Eigen::VectorXd::Zero(space.Dimension());
  std::uint32_t unit = 0;  // the first lag of the AR factor; the MA factors come after those of AR
  Eigen::Index at = 0;
  for (const Block& block : space.Blocks()) {
    const bool hasRoom = block.HasPartials() && block.Count() > 1;
    const bool isAr = hasRoom && block.kind == BlockKind::kAr && unit == 0;
    const bool isMa = hasRoom && block.kind == BlockKind::kMa && unit == block.lags.GetPower(0);
    if (isAr) unit = block.lags.GetPower(0);
    if (isAr || isMa) {  // 1 - 2 r cos(w) B + r^2 B^2
      const double r = isAr ? cycle.ar : cycle.ma;
      point[at] = std::atanh(2 * r * std::cos(cycle.frequency) / (1 + r * r));
      point[at + 1] = std::atanh(-r * r);
    }
    if (isMa) return point;
    at += static_cast<Eigen::Index>(block.Count());
  }
  return std::nullopt;
}

}  // namespace tsffit
