#ifndef TSFFIT_FITSTATUS_H_
#define TSFFIT_FITSTATUS_H_

namespace tsffit {

// Why a series could not be fitted, by any method of the embedded core. The first reason found
// counts, in the order options, values by case, length.
enum class FitStatus {
  kOk,
  kBadOptions,     // options that no model has: no such kind, method or transformation, a season
                   // length below 2 for a seasonal kind, a weight or a lag out of its range
  kNotFinite,      // an infinite value, a NaN, or a value beyond 1e300; in ARIMA fits beyond 1e150
                   // once transformed, squares of which are no numbers
  kTooShort,       // fewer observed cases than the model needs: in smoothing 2 m + 2 for a season
                   // of m periods, else 4 with a trend and 3 without; or, in smoothing, a period of
                   // the season that is missing in every season
  kNotPositive,    // a value <= 0 under the logarithm or multiplicative seasons, or a value <= 1
                   // under both
  kNegative,       // a value < 0 under the square root or in Croston's method
  kNoDemand,       // no value > 0, in Croston's method
  kMissing,        // a missing value under a method that cannot pass over it, or in a predictor
  kNotIdentified,  // the model says nothing about these data: no variation left to explain, or, in
                   // ARIMA fits, a period of the season that is missing in every season
};

}  // namespace tsffit

#endif  // TSFFIT_FITSTATUS_H_
