#ifndef TSFFIT_ARIMA_MODEL_EFFECTS_H_
#define TSFFIT_ARIMA_MODEL_EFFECTS_H_

#include <cstddef>
#include <span>
#include <vector>

#include <tsfcore/AMModelSpec.h>

#include "math/Polynomial.h"

namespace tsffit {

// The specification as polynomials, and what predictors and outliers do. Used by the fit and by the
// forecast alike.

// D(B) of the series and D_i(B) of predictor i.
Polynomial SeriesDifference(const AMModelSpec& spec);
Polynomial PredictorDifference(const AMModelSpec& spec, unsigned i);

// Their degrees, also where the polynomials would not fit into memory.
std::size_t DifferenceDegree(const AMModelSpec& spec);
std::size_t PredictorDifferenceDegree(const AMModelSpec& spec, unsigned i);

// phi(B) and theta(B) at the parameter vector. Missing parameters count as 0 here and below.
Arma NoiseModel(const AMModelSpec& spec, std::span<const double> parameters);

// How a predictor acts on the differenced series.
struct TransferFunction {
  std::size_t delay = 0;
  Polynomial numerator = {0};           // omega_0 - omega_1 B - .., without the seasonal factor
  Polynomial seasonal_numerator = {1};  // 1 - Omega_1 B^s - ..
  Polynomial denominator = {1};
};
TransferFunction TransferFunctionOf(const AMModelSpec& spec, unsigned i,
                                    std::span<const double> parameters);

// Periods before the first one that the likelihood may begin with: every lag exists from there on.
std::size_t FirstPeriod(const AMModelSpec& spec);

// Values of predictor i that its effect in one period reaches back over: the degrees of its
// differencing and numerator and its delay.
std::size_t PredictorReach(const AMModelSpec& spec, unsigned i);

// Size of an outlier's effect on the series `steps` periods after its start, for a size of 1; 0
// before it. Not for innovational ones, which act through the noise model.
double OutlierShape(int type, double decay, unsigned seasonLength, long steps);

// The same on the differenced series.
double DifferencedShape(const Polynomial& difference, int type, double decay, unsigned seasonLength,
                        long steps);

// Missing as 0.
double ValueOrZero(double value);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_MODEL_EFFECTS_H_
