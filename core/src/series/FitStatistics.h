#ifndef TSFFIT_SERIES_FITSTATISTICS_H_
#define TSFFIT_SERIES_FITSTATISTICS_H_

#include <cstddef>
#include <span>

#include <tsfcore/EstimationInfo.h>

namespace tsffit {

// Differencing (1 - B)^regular (1 - B^season_length)^seasonal.
struct Differencing {
  unsigned regular = 0;
  unsigned seasonal = 0;
  std::size_t season_length = 1;
};

// One fit over its span, case by case; all four lists are equally long. Missing where the series
// is; errors (and fitted and observed with them) also where there is no forecast to compare with.
struct FittedSeries {
  std::span<const double> observed;         // original scale
  std::span<const double> fitted;           // one-step forecasts, original scale
  std::span<const double> modelled;         // transformed series
  std::span<const double> modelled_errors;  // transformed series minus its one-step forecasts
  std::size_t spent = 0;  // errors that the starting values account for; no cases of their own
};

// Everything of the record but the span: degrees of freedom, error variance, statistics and
// Ljung-Box test, by the formulas of EstimationInfo.h. `estimated` counts the estimated parameters
// and is below the number of observed cases.
EstimationInfo::Fields FitStatistics(const FittedSeries& fit, unsigned estimated,
                                     const Differencing& differencing, unsigned ljungBoxLags);

}  // namespace tsffit

#endif  // TSFFIT_SERIES_FITSTATISTICS_H_
