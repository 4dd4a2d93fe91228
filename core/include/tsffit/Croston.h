#ifndef TSFFIT_CROSTON_H_
#define TSFFIT_CROSTON_H_

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <tsfcore/Export.h>
#include <tsfcore/TSFCrModel.h>
#include <tsffit/FitStatus.h>
#include <tsffit/Forecast.h>

// Croston's method for intermittent demand: series in which most cases may be zero.
// Croston, J. D. (1972), "Forecasting and stock control for intermittent demands", Operational
// Research Quarterly 23, 289-303.
//
// The model
// ---------
// A case above 0 is a demand. Let y(t) be the cases, t(1) < t(2) < ... < t(m) the cases with a
// demand. Two series are smoothed, one value per demand:
//
//   sizes       z(j) = f(y(t(j))), f the identity, the natural logarithm or the square root
//   intervals   p(1) = t(1) counted from 1, p(j) = t(j) - t(j-1)
//
// each by simple smoothing with a weight of its own, its level started at the first value:
//
//   L(1) = x(1),   L(j) = L(j-1) + a (x(j) - L(j-1)),   j = 2 ... m             (1)
//
// Zeros move neither level. The demand rate, which is the forecast for every period to come, is
//
//   r = g(level of the sizes) / level of the intervals,   g the inverse of f.   (2)
//
// The transformation concerns the sizes alone: rates and errors are on the original scale. g has no
// bias correction, so that under the logarithm the rate is a median size per interval.
//
// The one-step forecast of a case is the rate before the case is known. The levels stand at their
// first values from the start of the series on, so the forecasts up to and including the first
// demand are z(1) / p(1), untransformed. The absolute errors |y(t) - r(t)| of all cases are the
// third series that is smoothed; its level starts at the error of the first case.
//
// Particular series
// -----------------
//   leading zeros    make the first interval long and are errors like others; they are not skipped
//   trailing zeros   move no level: the method learns at demands alone
//   missing cases    are passed over: they have no error and lengthen no interval, since nobody
//                    knows whether they held a demand. Intervals and the position of the first
//                    demand count the observed cases only; the fit's span begins with the first
//   no demand        refused (kNoDemand)
//   one demand       its size and its position are the levels
//   a negative case  refused (kNegative)
//
// Weights
// -------
// A weight that the caller does not fix is the one in [0.01, 1] with the least sum of squared
// one-step errors
//
//   S(a) = sum over j = 2 ... m of (x(j) - L(j-1))^2,                           (3)
//
// its level started at the first value as above. (A start that is estimated as well drives the
// weight to 0 on demand without memory.) S is a polynomial and may have several minima: its slope
// is evaluated on a grid and every valley between two grid points followed to its floor (Alefeld,
// Potra and Shi 1995, "Algorithm 748: enclosing zeros of continuous functions", ACM Transactions
// on Mathematical Software 21). The standard error is the root of (S / (m - 2)) / (S'' / 2), as in
// nonlinear least squares; it is missing on a bound. For the absolute errors, m is the number of
// cases rather than of demands.
//
// With fewer than 4 demands there is too little to estimate from, and where S is the same for all
// weights there is nothing to choose by: then the weight is 0.1, without a standard error.
namespace tsffit {

struct CrostonOptions {
  int function_type = TSTransformation::kNone;  // of the demand sizes
  // Fixed weights, each from 0 to 1; a weight that is not given is estimated.
  std::optional<double> size_weight{};
  std::optional<double> interval_weight{};
  std::optional<double> error_weight{};
  unsigned ljung_box_lags = 18;
};

// How one of the three series was smoothed.
struct CrostonSubmodel {
  double weight = 0;
  bool estimated = false;  // rather than fixed by the caller or set to 0.1
  double sse = 0;          // S at the weight; of the sizes on the transformed scale
};

struct CrostonSummary {
  std::size_t demands = 0;
  CrostonSubmodel sizes;
  CrostonSubmodel intervals;
  CrostonSubmodel errors;
};

struct CrostonFit {
  FitStatus status = FitStatus::kOk;
  std::string message;       // one line for people: what went wrong; empty when status is kOk
  std::size_t bad_case = 0;  // the offending case where one is to blame, counted from 0
  TSFCrModel model;          // empty unless status is kOk
  CrostonSummary summary;
  std::vector<double> fitted;  // one-step forecasts, one per case; missing before the fit's span
};

// Fits `series` (first case first, missing cases MV::gMissingValue). Never throws on data. Any
// number of threads may fit at once.
//
// The model's estimation record speaks of the one-step errors of all observed cases, on the
// original scale. Degrees of freedom are those cases less the estimated weights of sizes and
// intervals; the weight of the absolute errors moves no forecast and counts for nothing. Nothing is
// differenced, so the stationary R-squared is the R-squared.
//
//   const double sales[] = {0, 3, 0, 0, 2, 0, 4};
//   const auto fit = tsffit::FitCroston(sales, {.size_weight = 0.1, .interval_weight = 0.1});
//   const double rate = tsffit::Forecast(fit.model, 1).value[0];
TSF_EXPORT CrostonFit FitCroston(std::span<const double> series, const CrostonOptions& options);

// Which rate to forecast with.
enum class CrostonRate {
  kCroston,  // r as above
  // (1 - a / 2) r with a the weight of the intervals: r has a positive bias, since the mean of a
  // reciprocal is above the reciprocal of the mean. Syntetos, A. A. and Boylan, J. E. (2005), "The
  // accuracy of intermittent demand estimates", International Journal of Forecasting 21, 303-314.
  kSyntetosBoylan,
};

// Forecasts `horizon` periods, each with the same rate, from the final levels alone. The standard
// error is sqrt(pi / 2) times the level of the absolute errors, which is how mean absolute and
// standard deviation relate under the normal distribution (Brown 1959, "Statistical forecasting for
// inventory control"; the use is Croston's); limits follow from it, the lower one no less than 0.
// They tell the scatter of single periods, roughly: intermittent demand is far from normal. Missing
// where that level is. Empty vectors when the model has no usable levels or weights, or the
// confidence is not between 0 and 1.
TSF_EXPORT Forecasts Forecast(const TSFCrModel& model, unsigned horizon, double confidence = 0.95,
                              CrostonRate rate = CrostonRate::kCroston);

}  // namespace tsffit

#endif  // TSFFIT_CROSTON_H_
