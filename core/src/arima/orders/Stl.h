#ifndef TSFFIT_ARIMA_ORDERS_STL_H_
#define TSFFIT_ARIMA_ORDERS_STL_H_

#include <cstddef>
#include <span>
#include <vector>

namespace tsffit {

struct SeasonalDecomposition {
  std::vector<double> season;
  std::vector<double> trend;
};

// Decomposes `series`, which has no missing cases and more than two seasons of `seasonLength`
// periods, by loess: Cleveland, R. B., Cleveland, W. S., McRae, J. E. and Terpenning, I. (1990),
// "STL: a seasonal-trend decomposition procedure based on loess", Journal of Official Statistics 6,
// 3-73. Two passes of the inner loop and no outer one; the seasonal smoother is locally constant
// with window 11, trend and low-pass smoothers are locally linear with the windows that section 3
// of the paper recommends. Every point is smoothed by itself, none interpolated.
SeasonalDecomposition DecomposeSeason(std::span<const double> series, std::size_t seasonLength);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_ORDERS_STL_H_
