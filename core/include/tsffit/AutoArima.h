#ifndef TSFFIT_AUTOARIMA_H_
#define TSFFIT_AUTOARIMA_H_

#include <optional>
#include <span>
#include <vector>

#include <tsfcore/AMModelSpec.h>
#include <tsfcore/Export.h>
#include <tsfcore/TSOutlierSpecList.h>
#include <tsfcore/TSTransformation.h>
#include <tsffit/Arima.h>
#include <tsffit/Outliers.h>

// The ARIMA model found by the embedded core: orders of differencing by tests, the other orders by
// a stepwise search for the least corrected criterion of Akaike.
//
// After Hyndman, R. J. and Khandakar, Y. (2008), "Automatic time series forecasting: the forecast
// package for R", Journal of Statistical Software 27(3). ARIMA(p,d,q)(P,D,Q)m with or without a
// constant:
//
//   D   A seasonal difference is taken when the strength of the season, 1 - var(remainder) /
//       var(season + remainder), is above 0.64, as long as D is below its limit and the series
//       has more than two seasons. Wang, X., Smith, K. and Hyndman, R. (2006),
//       "Characteristic-based clustering for time series data", Data Mining and Knowledge Discovery
//       13, 335-364; the limit of 0.64 is that of R's package. The decomposition is that of
//       Cleveland, R. B., Cleveland, W. S., McRae, J. E. and Terpenning, I. (1990), "STL: a
//       seasonal-trend decomposition procedure based on loess", Journal of Official Statistics 6,
//       3-73: no robustness iterations, seasonal window 11, trend window the least odd number
//       from 1.5 m / (1 - 1.5 / 11).
//   d   Differences are taken while the test of level stationarity of Kwiatkowski, D., Phillips,
//       P. C. B., Schmidt, P. and Shin, Y. (1992), "Testing the null hypothesis of stationarity
//       against the alternative of a unit root", Journal of Econometrics 54, 159-178, rejects at
//       5 % (critical value 0.463; lag truncation 3 sqrt(n) / 13, as in R's package), as long as d
//       is below its limit.
//
// Both tests see the transformed series without its missing cases at either end, cleared by least
// squares of the predictors (each with its delay, none of its lags) and of the outliers given. STL
// has missing cases inside interpolated linearly, each from its neighbours in the same season of
// the cycle, their remainders uncounted; the test of stationarity closes the gaps, as if the
// observed cases followed one another. A difference that would leave a predictor constant is not
// taken.
//
// The search begins at the models (2,2)(1,1), (0,0)(0,0), (1,0)(1,0) and (0,1)(0,1), and (0,0)(0,0)
// without constant, as far as the limits allow, and tries the neighbours of the best model so far:
// p, q or both one more or less, P, Q or both one more or less, with the constant and without.
// The limits are those of the options and, as in R's package, a third of the observed cases for p
// and q, a third of the seasons that these would fill for P and Q, and m - 1 for p where P may be
// above 0, for q where Q may. With fewer than 10 observed cases the search begins with no order
// above 1 and no seasonal one.
// Where the paper goes on from the best model alone, it goes on from the best four, until the
// neighbours of each have been tried; so it gets past models that are refused. An exhaustive search
// tries all models up to an order instead.
//
// The criterion is
//
//   AICc = -2 LL + 2 k + 2 k (k + 1) / (n - k - 1),                                            (1)
//
// where n is the number of residuals and k the number of coefficients estimated plus one for the
// error variance (Hurvich, C. M. and Tsai, C.-L. 1989, "Regression and time series model selection
// in small samples", Biometrika 76, 297-307). It is made of the exact likelihood for every model,
// whatever `method` says about the final fit, and compares models with the same differences only.
// Where n is at most 3 the criterion is AIC, without the last term.
//
// A model is refused when the fit fails, when 3 < n <= k + 1, or when its AR or MA polynomial has a
// root of modulus below 1.01 (1.001 in the paper; R's package has since moved to 1.01).
namespace tsffit {

struct AutoArimaOptions {
  unsigned season_length = 1;  // periods in one season; 1: no seasonal part
  int function_type = TSTransformation::kNone;
  ArimaMethod method = ArimaMethod::kMl;  // of the final fit

  // As in AMModelSpec, one for each list of values. Their own orders of differencing are replaced
  // by those of the series, so that the model is a regression with ARIMA errors, unless
  // `keep_predictor_differences` is set.
  std::vector<AMModelSpec::Predictor> predictors{};
  bool keep_predictor_differences = false;

  TSOutlierSpecList outliers{};  // known ones; cases counted from the first case of the series
  bool detect_outliers = false;  // look for others: in the model found first, then look for the
                                 // model again with what there was, then for outliers once more;
                                 // none where they would leave n <= k + 1
  OutlierSearch outlier_search{};

  // Orders of differencing to use whatever the tests would say.
  std::optional<unsigned> non_seasonal_diff{};
  std::optional<unsigned> seasonal_diff{};

  // Whether to have a constant. Not told: the search chooses while d + D is at most 1, and there is
  // none with more differences.
  std::optional<bool> constant{};

  unsigned max_p = 5;
  unsigned max_q = 5;
  unsigned max_P = 2;
  unsigned max_Q = 2;
  unsigned max_order = 5;   // of p + q + P + Q, in an exhaustive search
  bool exhaustive = false;  // all models within the limits instead of a stepwise search
  unsigned max_d = 2;
  unsigned max_D = 1;

  unsigned ljung_box_lags = 18;  // as ArimaOptions
};

struct AutoArimaFit {
  // As FitArima; fit.model has the orders found. A series that a constant, the predictors and the
  // outliers given cannot be fitted to, as it is or differenced, has the status of that fit: a
  // value outside the domain of the transformation, too few cases, nothing left to explain (a
  // constant, a straight line). kNotIdentified also when no model could be fitted or all were
  // refused.
  ArimaFit fit;
  double aicc = 0;            // of the model found, by exact likelihood; missing without one
  unsigned models_tried = 0;  // fits made in the search for the orders
};

// Finds and fits a model of `series` (first case first, missing cases MV::gMissingValue) on
// `predictors`, one list for each predictor in `options`, as long as the series and without missing
// values. Deterministic; never throws on data; memory exhaustion passes through as std::bad_alloc.
// Any number of threads.
//
//   tsffit::AutoArimaOptions options;
//   options.season_length = 12;
//   options.function_type = TSTransformation::kLogarithm;
//   const tsffit::AutoArimaFit found = tsffit::FitAutoArima(passengers, {}, options);
//   if (found.fit.status != tsffit::FitStatus::kOk) std::cerr << found.fit.message << '\n';
TSF_EXPORT AutoArimaFit FitAutoArima(std::span<const double> series,
                                     std::span<const std::vector<double>> predictors,
                                     const AutoArimaOptions& options);

}  // namespace tsffit

#endif  // TSFFIT_AUTOARIMA_H_
