#ifndef TSFFIT_ARIMA_ORDERS_UNITROOTS_H_
#define TSFFIT_ARIMA_ORDERS_UNITROOTS_H_

#include <cstddef>
#include <span>
#include <vector>

namespace tsffit {

// Tests that tell orders of differencing. A missing case is MV::gMissingValue; a value or its
// difference with a missing one is missing.

// Whether all observed values agree to eight digits, or fewer than two are observed.
bool IsConstant(std::span<const double> series);

// x_t - x_(t-lag); shorter by `lag`.
std::vector<double> DifferencedBy(std::span<const double> series, std::size_t lag);

// The observed values, one after another.
std::vector<double> Observed(std::span<const double> series);

// The statistic of level stationarity of Kwiatkowski, Phillips, Schmidt and Shin (1992), with
// Bartlett's window truncated at 3 sqrt(n) / 13 lags. `series` is complete and not constant.
double KpssStatistic(std::span<const double> series);

// 1 - var(remainder) / var(season + remainder), at least 0, of the decomposition by loess (Wang,
// Smith and Hyndman 2006). More than two seasons, at least one case observed.
double SeasonalStrength(std::span<const double> series, std::size_t seasonLength);

// Differences at lag 1 that the tests ask for: while the first rejects at 5 %, at most `limit`.
unsigned NonSeasonalDifferences(std::span<const double> series, unsigned limit);

// Differences at lag `seasonLength`: while the strength is above 0.64, at most `limit`.
unsigned SeasonalDifferences(std::span<const double> series, std::size_t seasonLength,
                             unsigned limit);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_ORDERS_UNITROOTS_H_
