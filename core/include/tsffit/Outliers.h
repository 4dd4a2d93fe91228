#ifndef TSFFIT_OUTLIERS_H_
#define TSFFIT_OUTLIERS_H_

#include <cstddef>
#include <span>
#include <vector>

#include <tsfcore/Export.h>
#include <tsfcore/TSOutlierSpec.h>
#include <tsffit/Arima.h>

// Outliers found in the course of an ARIMA fit.
//
// After Chen, C. and Liu, L.-M. (1993), "Joint estimation of model parameters and outlier effects
// in time series", Journal of the American Statistical Association 88, 284-297. In their stages:
//
//   I    Fit. Pass the unit effect of every type at every case through the noise filter of the
//        fitted model, as the series was, and clear it of the constant and of what else the model
//        holds; the residuals regressed on it give the size of the outlier, and over a scale of the
//        residuals that outliers do not move (1.483 times the median absolute deviation) its tau.
//        Type and case are not read off the largest tau: its rivals, of every type and within two
//        cases, are each estimated jointly with the model, and the likelihood decides. The outlier
//        joins the model, provisionally, when tau or its test (see II) is critical; and again.
//   II   Take the outliers out of the joint fit one at a time, the weakest first, as long as one is
//        below the critical value. The test is the likelihood ratio, the root of twice the
//        difference of the log-likelihoods with and without it, which has no need of a standard
//        error. Look again whether another type or a neighbouring case serves an outlier better.
//   III  Look for outliers once more, with the parameters of the fit that has them all.
//
// A transient outlier is looked for, and compared with other types, with the decay
// `transient_decay`; so it is neither preferred for its additional parameter nor refused because of
// it. Once it has joined the model its decay, the second parameter, is estimated.
//
// Where two types have the same effect, the first of additive, level, transient, innovational,
// seasonal additive and trend is taken: in white noise there are no innovational outliers beside
// additive ones, in a random walk none beside shifts of the level, in the last case of a series
// nothing but additive ones, and a shift of the level in the second case is an additive outlier in
// the first. Where types nearly agree, as in an autoregression of first order with coefficient 0.7
// a transient and an innovational outlier do, the data decide between them as well as they can.
//
// Outliers are found in cases that the likelihood sees: not in missing ones, nor before the lags of
// predictors let it begin. What happens there shows, if at all, in the first case after it.
namespace tsffit {

struct OutlierSearch {
  // An outlier must reach this value: the root of twice the gain in log-likelihood. 0: by the
  // number of observed cases and of types, so that at most one series without outliers in twenty
  // shows one; CriticalOutlierValue tells.
  double critical_value = 0;

  // What to look for: any but kNone and kVarianceChange; duplicates count once. Seasonal outliers
  // are looked for only in models with a season of at least 2. Empty: nothing.
  std::vector<TSOutlierSpec::Type> types = {TSOutlierSpec::kAdditive, TSOutlierSpec::kLevel,
                                            TSOutlierSpec::kTransient,
                                            TSOutlierSpec::kInnovational};

  double transient_decay = 0.7;  // between 0 and 1, both excluded

  // Outliers to find at most, those given not counted, and no more than a fit has cases for. 0: one
  // for every twenty observed cases, at least one and at most 20.
  std::size_t max_outliers = 0;
};

// The critical value that OutlierSearch::critical_value 0 stands for, with `observed` cases and
// `types` types to look for: what a normal variable exceeds in absolute value with probability
// 0.05 / (2 * observed * types). In simulations of autoregressions, moving averages and seasonal
// models, 50 to 250 cases, two to four series of 100 without outliers showed one.
TSF_EXPORT double CriticalOutlierValue(std::size_t observed, std::size_t types);

// As FitArima, of which it is the fit with the outliers of `options.spec` and, after those and in
// order of time, the outliers found. A fit in which none is found is that of FitArima. The outliers
// given stay in the model whatever they contribute, and no other is looked for at their case with
// their type. A search that cannot be made (`search` out of its range: kBadOptions; a model that
// cannot be fitted even without outliers: the status of that fit) says so as FitArima would.
//
// A series half of whose residuals are the same has no scale to judge outliers by; none is found.
//
// Time: about ten fits for each outlier, and as many again to test them where there are several: 5
// to 20 ms for 150 cases, with missing cases and transient outliers given as long as a second for
// each. Deterministic; never throws on data; memory exhaustion passes through as
// std::bad_alloc. Any number of threads.
//
//   tsffit::ArimaOptions options;  // a mean, and what disturbs it
//   options.spec.has_constant = true;
//   const tsffit::ArimaFit fit = tsffit::FitArimaDetectingOutliers(nile, {}, options);
TSF_EXPORT ArimaFit FitArimaDetectingOutliers(std::span<const double> series,
                                              std::span<const std::vector<double>> predictors,
                                              const ArimaOptions& options,
                                              const OutlierSearch& search = {});

}  // namespace tsffit

#endif  // TSFFIT_OUTLIERS_H_
