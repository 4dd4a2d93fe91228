#ifndef TSFFIT_FORECAST_H_
#define TSFFIT_FORECAST_H_

#include <vector>

#include <tsfcore/Export.h>
#include <tsfcore/TSFModel.h>

namespace tsffit {

// Forecasts for 1, 2, ... periods after the end of the series; the four lists are equally long.
struct Forecasts {
  std::vector<double> value;      // on the original scale
  std::vector<double> std_error;  // of the forecast error, on the modelled (transformed) scale
  std::vector<double> lower;      // confidence limits, on the original scale
  std::vector<double> upper;
};

// Forecasts `horizon` periods from the model's final state alone, with limits that hold with
// probability `confidence`, between 0 and 1. Empty lists when the model is empty, when its state
// lacks a number that the recursion needs, and when `confidence` is no probability. Without an
// error variance, standard errors and limits are missing.
//
// An ARIMA model without predictors is forecast in the same call (Arima.h has the model and the
// overload for predictors): its means and variances are those of the state of its method, carried
// on.
//
// On the modelled scale of a smoothing model the forecast h periods ahead is, with L, T, S and the
// phase of ESForecastState::SmState and phi_h = phi + phi^2 + .. + phi^h (h when the trend is not
// damped),
//   q_h = L + phi_h T,  and q_h, q_h + S_h or q_h S_h by the kind's season                   (1)
//   (Brown: q_h = L + T (h - 1 + 1 / a)).
//
// Standard errors. With v the error variance of the fit and weights a, g, d:
//   - kinds without a multiplicative season: sqrt(v (1 + c_1^2 + .. + c_{h-1}^2)),
//     c_j = a + a g phi_j + (1 - a) d [j divisible by the season length]                     (2)
//     Hyndman, Koehler, Ord and Snyder (2008), "Forecasting with exponential smoothing",
//     equation 6.1 and table 6.1 (class 1).
//   - Brown: the same with c_j = a (2 - a) + j a^2                                           (3)
//     the psi weights of ARIMA(0,2,2) with the double root 1 - a (Box and Jenkins 1976, "Time
//     series analysis", section 5.1).
//   - multiplicative Winters with additive errors of constant variance, to first order in them:
//     sqrt(v (1 + c_{h,1}^2 + .. + c_{h,h-1}^2)), where an error j periods earlier counts
//     c_{h,j} = a (1 + j g) S_h / S_{h-j}
//               + (1 - a) d (q_h / q_{h-j}) [j divisible by the length]                      (4)
//     This is the form of Chatfield and Yar (1991), "Prediction intervals for multiplicative
//     Holt-Winters", International Journal of Forecasting 7, 31-37, with the ratio of trend lines
//     kept. Errors beyond the first order are left out.
//   Like the sources they take weights and state as known.
//
// Limits are normal: forecast -/+ z standard errors. Values and limits are transformed back without
// bias correction: under the logarithm exp, so that the value is the median; under the square root
// the square, and 0 for what is below 0.
TSF_EXPORT Forecasts Forecast(const TSFModel& model, unsigned horizon, double confidence = 0.95);

}  // namespace tsffit

#endif  // TSFFIT_FORECAST_H_
