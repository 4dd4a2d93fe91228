#ifndef TSFFIT_SMOOTHING_H_
#define TSFFIT_SMOOTHING_H_

#include <span>
#include <string>
#include <vector>

#include <tsfcore/ESModelSpec.h>
#include <tsfcore/Export.h>
#include <tsfcore/TSFModel.h>
#include <tsffit/FitStatus.h>

// Fitting exponential smoothing models with the embedded core.
//
// The seven kinds (Gardner 1985, "Exponential smoothing: the state of the art", Journal of
// Forecasting 4, 1-28; Gardner 2006, part II, International Journal of Forecasting 22, 637-666), in
// error-correction form, with weights a (level), g (trend), d (season), phi (damping), each in
// [0, 1]. With q = L + phi T (phi 1 unless the trend is damped, T 0 without a trend), S the
// seasonal value of the case's position in the cycle, f the one-step forecast and e = y - f:
//
//   kind                    f      L'           T'              S'
//   simple                  q      q + a e                                            (1)
//   Brown                   q      q + a(2-a)e  T + a^2 e                             (2)
//   Holt, damped trend      q      q + a e      phi T + a g e                         (3)
//   simple seasonal         q + S  q + a e                      S + (1-a) d e         (4)
//   additive Winters        q + S  q + a e      T + a g e       S + (1-a) d e         (5)
//   multiplicative Winters  q S    q + a e / S  T + a g e / S   S + (1-a) d e / q     (6)
//
// Brown's double smoothing is ARIMA(0,2,2) with the double root 1 - a; its weight is at least
// 0.001, since below that its state loses its digits. Multiplicative Winters corrects a season by e
// / q, as Ord, Koehler and Snyder (1997, Journal of the American Statistical Association 92,
// 1621-1629) do.
//
// A missing case passes the state on as an error of 0 would, and its error is not counted. Missing
// cases before the first observed one belong to no fit: the fit's span begins at the first observed
// case, and a fit of the series without them is the same. Missing cases at the end belong to the
// span, so that forecasts begin after them.
//
// A fit minimises the sum of squared one-step errors of all observed cases of the span, on the
// modelled (transformed) scale, over weights and starting components (L, T and every S before the
// first case) together. Weights spread over their box, each with starting components solved for,
// are ranked; the best are followed with a limited-memory BFGS on exact gradients, the best of
// those to the end; where two of them do not come to the same place, all are followed for longer.
// Seasons of more than about 100 periods start from the classical decomposition instead of solved
// components. The result does not depend on the unit of the series, nor on the thread, nor on
// chance.
//
//   tsffit::SmoothingOptions options;
//   options.kind = ESModelSpec::kMultiplicativeWinters;
//   options.season_length = 12;
//   const tsffit::SmoothingFit fit = tsffit::FitSmoothing(passengers, options);
//   if (fit.status != tsffit::FitStatus::kOk) std::cerr << fit.message << '\n';
//   const tsffit::Forecasts year = tsffit::Forecast(fit.model, 12);
namespace tsffit {

struct SmoothingOptions {
  int kind = ESModelSpec::kSimple;
  unsigned season_length = 1;  // periods in one season; kinds without a season ignore it
  int function_type = TSTransformation::kNone;
  unsigned ljung_box_lags = 18;  // 0: no test
};

struct FitSummary {
  double sse = 0;      // sum of squared one-step errors, modelled scale; 0 when only rounding is
                       // left, as on a constant series
  int iterations = 0;  // evaluations of the sum of squares that led from the winning start
  int starts = 0;      // starting points tried
  bool converged = false;  // a search begun anew at the solution gained nothing
};

struct SmoothingFit {
  FitStatus status = FitStatus::kOk;
  std::string message;       // one line for people: what went wrong; empty when status is kOk
  std::size_t bad_case = 0;  // the offending case where a value is to blame, counted from 0
  TSFModel model;            // empty unless status is kOk
  FitSummary summary;
  // One-step forecasts on the original scale, one per case of the series; missing before the first
  // observed case. Back-transformed without bias correction (see Forecast.h).
  std::vector<double> fitted;
};

// Fits `series` (first case first, missing cases MV::gMissingValue). Never throws on data; memory
// exhaustion passes through as std::bad_alloc. Any number of threads may fit at once. A fit that
// did not converge is delivered all the same: `summary.converged` tells.
//
// Time: 144 monthly values take about a millisecond, whatever the kind; it grows with the length of
// the series and hardly with that of the season.
//
// The model has estimates and standard errors (ESForecastState.h), the record of the fit
// (EstimationInfo.h) and the series as its history.
TSF_EXPORT SmoothingFit FitSmoothing(std::span<const double> series,
                                     const SmoothingOptions& options);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_H_
