#ifndef TSFFIT_SERIES_ORIGINALSCALE_H_
#define TSFFIT_SERIES_ORIGINALSCALE_H_

#include <vector>

#include <tsffit/Forecast.h>

namespace tsffit {

// Forecasts on the modelled scale, period by period: means, and variances of their errors in units
// of the error variance.
struct ForecastPath {
  std::vector<double> mean{};
  std::vector<double> variance{};
};

// The path as Forecast.h hands it out: values and limits on the original scale, standard errors on
// the modelled one; standard errors and limits are missing without an error variance. `confidence`
// is above 0 and below 1.
Forecasts OnOriginalScale(const ForecastPath& path, double errorVariance, int functionType,
                          double confidence);

}  // namespace tsffit

#endif  // TSFFIT_SERIES_ORIGINALSCALE_H_
