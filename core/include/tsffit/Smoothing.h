#ifndef TSFFIT_SMOOTHING_H_
#define TSFFIT_SMOOTHING_H_

#include <span>
#include <string>
#include <vector>

#include <tsfcore/ESModelSpec.h>
#include <tsfcore/Export.h>
#include <tsfcore/TSFModel.h>

// Fitting exponential smoothing models with the embedded core.
namespace tsffit {

// Why a series could not be fitted.
enum class FitStatus {
  kOk,
  kBadOptions,   // no such kind or transformation, or a season length below 2 for a seasonal kind
  kNotFinite,    // an infinite value or a NaN in the series
  kTooShort,     // fewer non-missing cases than the model needs
  kNotPositive,  // a value <= 0 under the logarithm or multiplicative seasons
  kNegative,     // a value < 0 under the square root
};

struct SmoothingOptions {
  int kind = ESModelSpec::kSimple;
  unsigned season_length = 1;  // periods in one season; at least 2 for seasonal kinds
  int function_type = TSTransformation::kNone;
  unsigned ljung_box_lags = 18;
};

struct FitSummary {
  double sse = 0;      // sum of squared one-step errors, modelled scale
  int iterations = 0;  // of the winning start
  int starts = 0;      // starting points tried
  bool converged = false;
};

struct SmoothingFit {
  FitStatus status = FitStatus::kOk;
  std::string message;       // one line for people: what went wrong; empty when status is kOk
  std::size_t bad_case = 0;  // the offending case where one is to blame, counted from 0
  TSFModel model;            // empty unless status is kOk
  FitSummary summary;
  std::vector<double> fitted;  // one-step forecasts on the original scale, one per case
};

// Fits `series` (first case first, missing cases MV::gMissingValue). Never throws on data. Any
// number of threads may fit at once.
TSF_EXPORT SmoothingFit FitSmoothing(std::span<const double> series,
                                     const SmoothingOptions& options);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_H_
