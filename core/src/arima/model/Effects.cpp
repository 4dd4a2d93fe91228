#include "arima/model/Effects.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "series/Observed.h"

namespace tsffit {

double ValueOrZero(double value) { return IsMissing(value) ? 0 : value; }

namespace {

// The coefficients from position `first` on, as many as there are lags.
std::vector<double> Coefficients(std::span<const double> parameters, std::size_t first,
                                 const AMPowers& lags) {
  std::vector<double> c(lags.GetCount());
  for (std::size_t i = 0; i < c.size(); ++i) c[i] = ValueOrZero(parameters[first + i]);
  return c;
}

Polynomial FactorProduct(std::span<const double> parameters, std::size_t first,
                         const AMPowers& regular, const AMPowers& seasonal) {
  return Product(
      Minus(1, regular, Coefficients(parameters, first, regular)),
      Minus(1, seasonal, Coefficients(parameters, first + regular.GetCount(), seasonal)));
}

// Of a differencing; no more than what leaves room for lags to be added.
std::size_t DegreeOf(unsigned regular, unsigned seasonal, unsigned seasonLength) {
  const std::size_t degree = regular + std::size_t{seasonal} * seasonLength;
  return std::min(degree, std::numeric_limits<std::size_t>::max() / 2);
}

}  // namespace

Polynomial SeriesDifference(const AMModelSpec& spec) {
  unsigned regular = 0;
  unsigned seasonal = 0;
  spec.GetYDiff(regular, seasonal);
  return DifferencePolynomial(regular, seasonal, spec.GetSeasonLength(true));
}

Polynomial PredictorDifference(const AMModelSpec& spec, unsigned i) {
  unsigned regular = 0;
  unsigned seasonal = 0;
  unsigned delay = 0;
  spec.GetXDiffNDelay(i, regular, seasonal, delay);
  return DifferencePolynomial(regular, seasonal, spec.GetSeasonLength(true));
}

std::size_t DifferenceDegree(const AMModelSpec& spec) {
  unsigned regular = 0;
  unsigned seasonal = 0;
  spec.GetYDiff(regular, seasonal);
  return DegreeOf(regular, seasonal, spec.GetSeasonLength(true));
}

std::size_t PredictorDifferenceDegree(const AMModelSpec& spec, unsigned i) {
  unsigned regular = 0;
  unsigned seasonal = 0;
  unsigned delay = 0;
  spec.GetXDiffNDelay(i, regular, seasonal, delay);
  return DegreeOf(regular, seasonal, spec.GetSeasonLength(true));
}

// Equations (3) and (4) of Arima.h.
Arma NoiseModel(const AMModelSpec& spec, std::span<const double> parameters) {
  AMPowers regular;
  AMPowers seasonal;
  const std::size_t ar = spec.GetARStruct(regular, seasonal);
  const Polynomial phi = FactorProduct(parameters, ar, regular, seasonal);
  const std::size_t ma = spec.GetMAStruct(regular, seasonal);
  return ArmaOf(phi, FactorProduct(parameters, ma, regular, seasonal));
}

// Equations (5) and (6) of Arima.h.
TransferFunction TransferFunctionOf(const AMModelSpec& spec, unsigned i,
                                    std::span<const double> parameters) {
  TransferFunction transfer;
  unsigned regularDiff = 0;
  unsigned seasonalDiff = 0;
  unsigned delay = 0;
  spec.GetXDiffNDelay(i, regularDiff, seasonalDiff, delay);
  transfer.delay = delay;
  AMPowers regular;
  AMPowers seasonal;
  spec.GetXNumerator(i, regular, seasonal);
  const std::size_t first = spec.GetXRegressionCoeff(i);
  transfer.numerator =
      Minus(ValueOrZero(parameters[first]), regular, Coefficients(parameters, first + 1, regular));
  transfer.seasonal_numerator =
      Minus(1, seasonal, Coefficients(parameters, first + 1 + regular.GetCount(), seasonal));
  const std::size_t denominator = spec.GetXDenominator(i, regular, seasonal);
  transfer.denominator = FactorProduct(parameters, denominator, regular, seasonal);
  return transfer;
}

std::size_t PredictorReach(const AMModelSpec& spec, unsigned i) {
  unsigned regularDiff = 0;
  unsigned seasonalDiff = 0;
  unsigned delay = 0;
  spec.GetXDiffNDelay(i, regularDiff, seasonalDiff, delay);
  AMPowers regular;
  AMPowers seasonal;
  spec.GetXNumerator(i, regular, seasonal);
  return PredictorDifferenceDegree(spec, i) + delay + Degree(regular) + Degree(seasonal);
}

std::size_t FirstPeriod(const AMModelSpec& spec) {
  std::size_t first = DifferenceDegree(spec);
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    first = std::max(first, PredictorReach(spec, i));
  }
  return first;
}

// The table (7) of Arima.h.
double OutlierShape(int type, double decay, unsigned seasonLength, long steps) {
  if (steps < 0) return 0;
  switch (type) {
    case TSOutlierSpec::kAdditive:
      return steps == 0 ? 1 : 0;
    case TSOutlierSpec::kLevel:
      return 1;
    case TSOutlierSpec::kTransient:
      return std::pow(decay, static_cast<double>(steps));
    case TSOutlierSpec::kSeasonalAdditive:
      return steps % static_cast<long>(seasonLength) == 0 ? 1 : 0;
    case TSOutlierSpec::kTrend:
      return static_cast<double>(steps + 1);
    default:
      return 0;
  }
}

double DifferencedShape(const Polynomial& difference, int type, double decay, unsigned seasonLength,
                        long steps) {
  double sum = 0;
  for (std::size_t k = 0; k < difference.size(); ++k) {
    if (difference[k] == 0) continue;
    sum += difference[k] * OutlierShape(type, decay, seasonLength, steps - static_cast<long>(k));
  }
  return sum;
}

}  // namespace tsffit
