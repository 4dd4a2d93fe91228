#ifndef TSFFIT_ARIMA_H_
#define TSFFIT_ARIMA_H_

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include <tsfcore/AMModelSpec.h>
#include <tsfcore/Export.h>
#include <tsfcore/TSFModel.h>
#include <tsffit/FitStatus.h>
#include <tsffit/Forecast.h>

// ARIMA models with transfer functions and outliers, fitted by the embedded core.
//
// The model
// ---------
// Box, G. E. P. and Jenkins, G. M. (1976), "Time series analysis, forecasting and control". Let
// Z = f(y) be the transformed series, D(B) = (1 - B)^d (1 - B^s)^Ds, and x*_i = D_i(B) f_i(x_i) the
// transformed and differenced predictors, each with a transformation and orders of its own. Then
//
//   D(B) Z_t = c + sum_i [num_i(B) / den_i(B)] x*_i(t - b_i) + sum_j D(B) o_j(t) + N_t         (1)
//   phi(B) N_t = theta(B) a_t,                                    a_t independent, N(0, v)     (2)
//
// with the constant c, the mean of the differenced series (not the intercept, which differs by
// phi(1)), delays b_i, and the polynomials
//
//   phi(B)   = (1 - phi_1 B - ...)(1 - Phi_1 B^s - ...)           any list of lags in either   (3)
//   theta(B) = (1 - theta_1 B - ...)(1 - Theta_1 B^s - ...)       factor                       (4)
//   num_i(B) = (omega_0 - omega_1 B - ...)(1 - Omega_1 B^s - ...)                              (5)
//   den_i(B) = (1 - delta_1 B - ...)(1 - Delta_1 B^s - ...)                                    (6)
//
// Outliers o_j with size w from case T on, each through the same differencing as the series:
//
//   additive           w at t = T                                                              (7)
//   level              w for t >= T
//   transient          w d^(t - T) for t >= T, the decay d between 0 and 1, its second parameter
//   seasonal additive  w at t = T, T + s, T + 2 s ..
//   trend              w (t - T + 1) for t >= T
//   innovational       w theta(B) / (phi(B) D(B)) of a pulse at T, that is w added to a_T
//
// Before the series
// -----------------
// The first d + s Ds values of Z are conditioned upon; what follows has the exact likelihood of the
// stationary process. A predictor that is not differenced is taken to have had its first value for
// ever (its transfer function starts in the steady state); of a differenced one the differences
// that reach back before its first value are 0; and the likelihood starts at the first case where
// every lag exists: the largest of d + s Ds and, over the predictors, of the degree of D_i plus b_i
// plus the degree of num_i.
//
// Estimation
// ----------
// Constant, numerators and sizes are eliminated by generalised least squares, both sides passed
// through the filter of the noise model; ARMA coefficients, denominators, seasonal factors of
// numerators and decays are searched with limited-memory BFGS from several starts (the method of
// Hannan and Rissanen 1982, "Recursive estimation of mixed autoregressive-moving average order",
// Biometrika 69, 81-94, the conditional solution and points spread over the region). A factor whose
// lags are multiples 1 to k of one lag is searched in its partial autocorrelations
// (Barndorff-Nielsen and Schou 1973, "On the parametrization of autoregressive models by partial
// autocorrelations", Journal of Multivariate Analysis 3, 408-419; Monahan 1984, "A note on
// enforcing stationarity in ARMA models", Biometrika 71, 403-404), any other in its coefficients,
// points outside the region refused; so every AR factor and denominator is stationary and every MA
// factor invertible, or on the edge of it. Near a unit root of the AR part a constant is hardly
// identified, least so by kCls, which has no likelihood of the first cases to hold it: where least
// squares would cross the border, the model is a walk with a drift that only its forecasts tell,
// the constant any large number, and neither coefficient has a standard error.
//
//   kMl       exact likelihood: without missing values by the recursions of Morf, Sidhu and Kailath
//             (1974, "Some new algorithms for recursive estimation in constant, linear,
//             discrete-time systems", IEEE Transactions on Automatic Control 19, 315-323), with
//             missing values by the Kalman filter with the last values of Z in its state (Harvey
//             and Pierse 1984, "Estimating missing observations in economic time series", Journal
//             of the American Statistical Association 79, 125-131). Values missing among the first
//             d + s Ds are estimated as if they had a flat prior (Ansley and Kohn 1985, Annals of
//             Statistics 13, 1286-1316).
//   kMlTheta  the same likelihood by the innovations algorithm (Brockwell and Davis 1991, "Time
//             series: theory and methods", section 5.3). No missing values.
//   kCls      least sum of squares of the residuals after the first p + P s, with residuals of 0
//             before (Box and Jenkins 1976, section 7.1.3). No missing values.
//
// What is delivered comes from the filter of the method. While a search looks for the maximum of
// the exact likelihood it takes the quickest filter that has it: that of Morf, Sidhu and Kailath
// for kMlTheta too, and with each missing value as one more coefficient where there are not many
// (Gomez, Maravall and Pena 1999, "Missing observations in ARIMA models: skipping approach versus
// additive outlier approach", Journal of Econometrics 88, 341-363).
//
// Standard errors: of the inverse Hessian of the negative log-likelihood with v concentrated out,
// in the coefficients as they are exported, all of them together (kMl, kMlTheta); of v (J'J)^-1, J
// the Jacobian of the residuals, v the error variance (kCls). Missing: on the edge of the region,
// where there is no such thing (an MA root on the unit circle), where the curvature cannot be told
// from rounding (several roots beside the circle at a time), and where the matrix is not positive
// definite.
//
// A coefficient that the data cannot tell from those before it (a predictor that is constant over
// the sample beside a constant; the second of two identical outliers) is left out: its estimate is
// missing and counts for nothing. So is a transient outlier without a most likely size: one that
// begins in a case that the likelihood does not see (a missing one) and has faded when the next one
// is seen but for a first remainder, from any height; and one that begins where a shift of the
// level would show in nothing (the first case, beside differences or a constant) and does not fade.
namespace tsffit {

enum class ArimaMethod { kMl, kMlTheta, kCls };

struct ArimaOptions {
  // The model to fit. A seasonal factor's lags are in periods: {12, 24}. Outliers count their cases
  // from the first case of `series`; in the fitted model they count from the first case of the fit.
  AMModelSpec::Fields spec{};
  ArimaMethod method = ArimaMethod::kMl;
  unsigned ljung_box_lags = 18;  // 0: no test
};

struct ArimaSummary {
  double log_likelihood = 0;  // of the differenced series; conditional for kCls
  double sse = 0;             // sum of squared residuals, standardised by their relative variance
  double error_variance = 0;  // sse / (residuals - estimated coefficients); both are missing where
                              // they overflow
  std::size_t residuals = 0;  // cases in the likelihood
  unsigned estimated = 0;     // coefficients estimated; the error variance is not one
  int evaluations = 0;        // of the likelihood, over all starts
  int starts = 0;
  bool converged = false;  // a search begun anew at the solution gained nothing
};

struct ArimaFit {
  FitStatus status = FitStatus::kOk;
  std::string message;       // one line for people: what went wrong; empty when status is kOk
  std::size_t bad_case = 0;  // the offending case, where one is to blame, counted from 0
  int bad_predictor = -1;    // the predictor it belongs to; -1: the series
  TSFModel model;            // empty unless status is kOk
  ArimaSummary summary;
  std::vector<double> fitted;  // one-step forecasts, original scale, one per case; missing before
                               // the first one
  std::vector<double> residuals;  // standardised, on the modelled scale, missing likewise
};

// Fits `series` (first case first, missing cases MV::gMissingValue) on `predictors`, one list for
// each predictor of the specification, as long as the series and without missing values. Missing
// cases before the first observed one belong to no fit: the fit's span begins there. Missing cases
// at the end belong to it, so that forecasts begin after them. Never throws on data; memory
// exhaustion passes through as std::bad_alloc. Any number of threads may fit at once. A fit that
// did not converge is delivered all the same: `summary.converged` tells.
//
// Time: the airline model on 144 monthly values takes about a millisecond; time grows with the
// length of the series and with the largest lag, and with the number of missing values. On four
// years of days with a season of a year it takes a second or two, with hundreds of missing values
// half a minute.
//
//   tsffit::ArimaOptions options;  // the airline model on the logarithm
//   options.spec.season_length = 12;
//   options.spec.y_transform = TSTransformation(TSTransformation::kLogarithm);
//   options.spec.non_seasonal_diff = options.spec.seasonal_diff = 1;
//   options.spec.ma = {.non_seasonal = {1}, .seasonal = {12}};
//   const tsffit::ArimaFit fit = tsffit::FitArima(passengers, {}, options);
//   const tsffit::Forecasts year = tsffit::Forecast(fit.model, 12);
TSF_EXPORT ArimaFit FitArima(std::span<const double> series,
                             std::span<const std::vector<double>> predictors,
                             const ArimaOptions& options);

// Forecasts `horizon` periods from the model's final state alone, given the predictors' values in
// these periods: one list for each predictor, each at least `horizon` long, first the period after
// the end of the series (after the state, and longer by the deficit, when that has a period
// deficit). Values, standard errors
// and limits as for smoothing models (Forecast.h); the parameters and the predictors' values count
// as known. Empty lists also when a predictor's values are too few, not finite or outside the
// domain of its transformation, and when the state lacks a number. A missing estimate counts as 0.
TSF_EXPORT Forecasts Forecast(const TSFModel& model, unsigned horizon,
                              std::span<const std::vector<double>> futurePredictors,
                              double confidence = 0.95);

// The same for values in braces, one pair for each predictor and one around them; {} for a model
// without predictors.
inline Forecasts Forecast(const TSFModel& model, unsigned horizon,
                          std::initializer_list<std::vector<double>> futurePredictors,
                          double confidence = 0.95) {
  const std::span<const std::vector<double>> values(futurePredictors.begin(),
                                                    futurePredictors.size());
  return Forecast(model, horizon, values, confidence);
}

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_H_
