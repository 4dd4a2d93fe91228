#ifndef TSFFIT_ARIMA_ORDERS_DIFFERENCEORDERS_H_
#define TSFFIT_ARIMA_ORDERS_DIFFERENCEORDERS_H_

#include <span>
#include <vector>

#include <tsfcore/TSOutlierSpecList.h>
#include <tsffit/AutoArima.h>

namespace tsffit {

struct DifferenceOrders {
  unsigned regular = 0;
  unsigned seasonal = 0;
};

// The orders that AutoArima.h describes, for a series and predictors that can be fitted.
DifferenceOrders FindDifferenceOrders(std::span<const double> series,
                                      std::span<const std::vector<double>> predictors,
                                      const AutoArimaOptions& options,
                                      const TSOutlierSpecList& outliers);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_ORDERS_DIFFERENCEORDERS_H_
