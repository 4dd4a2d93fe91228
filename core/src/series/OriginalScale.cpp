#include "series/OriginalScale.h"

#include <cmath>

#include "series/ConfidenceWidth.h"
#include "series/Observed.h"
#include "series/Transform.h"

namespace tsffit {

Forecasts OnOriginalScale(const ForecastPath& path, double errorVariance, int functionType,
                          double confidence) {
  const double width = ConfidenceWidth(confidence);
  Forecasts forecasts;
  for (std::size_t h = 0; h < path.mean.size(); ++h) {
    forecasts.value.push_back(Untransformed(functionType, path.mean[h]));
    if (IsMissing(errorVariance)) {
      forecasts.std_error.push_back(MV::gMissingValue);
      forecasts.lower.push_back(MV::gMissingValue);
      forecasts.upper.push_back(MV::gMissingValue);
      continue;
    }
    const double error = std::sqrt(errorVariance * path.variance[h]);
    forecasts.std_error.push_back(error);
    forecasts.lower.push_back(Untransformed(functionType, path.mean[h] - width * error));
    forecasts.upper.push_back(Untransformed(functionType, path.mean[h] + width * error));
  }
  return forecasts;
}

}  // namespace tsffit
