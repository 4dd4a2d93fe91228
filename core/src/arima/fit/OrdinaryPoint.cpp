#include "arima/fit/OrdinaryPoint.h"

namespace tsffit {

namespace {

// The first coefficient of every factor at an ordinary point: any numbers inside the region, all
// different, so that no factor is another's and none is 1 or cancels.
constexpr double kOrdinaryAr = 0.3;
constexpr double kOrdinaryMa = -0.4;
constexpr double kOrdinaryNumerator = 0.25;
constexpr double kOrdinaryDenominator = 0.35;
constexpr double kOrdinaryDecay = 0.5;

// Sets the first coefficient of each factor from position `at` on.
void SetFirst(std::size_t at, const AMPowers& regular, const AMPowers& seasonal, double value,
              std::vector<double>& parameters) {
  if (regular.GetCount() > 0) parameters[at] = value;
  if (seasonal.GetCount() > 0) parameters[at + regular.GetCount()] = value;
}

}  // namespace

std::vector<double> OrdinaryPoint(const AMModelSpec& spec) {
  std::vector<double> parameters(spec.GetParameterCount(true), 0.0);
  AMPowers regular;
  AMPowers seasonal;
  const std::size_t ar = spec.GetARStruct(regular, seasonal);
  SetFirst(ar, regular, seasonal, kOrdinaryAr, parameters);
  const std::size_t ma = spec.GetMAStruct(regular, seasonal);
  SetFirst(ma, regular, seasonal, kOrdinaryMa, parameters);
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    spec.GetXNumerator(i, regular, seasonal);
    SetFirst(spec.GetXRegressionCoeff(i) + 1 + regular.GetCount(), {}, seasonal, kOrdinaryNumerator,
             parameters);
    const std::size_t denominator = spec.GetXDenominator(i, regular, seasonal);
    SetFirst(denominator, regular, seasonal, kOrdinaryDenominator, parameters);
  }
  const TSOutlierSpecList& outliers = spec.GetOutliers();
  for (unsigned j = 0; j < outliers.GetOutlierSpecCount(false); ++j) {
    if (outliers.GetOutlierSpec(j).GetType() != TSOutlierSpec::kTransient) continue;
    parameters[spec.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 1)] = kOrdinaryDecay;
  }
  return parameters;
}

}  // namespace tsffit
