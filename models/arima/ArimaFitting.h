#ifndef TSXPORT_MODELS_ARIMA_ARIMAFITTING_H_
#define TSXPORT_MODELS_ARIMA_ARIMAFITTING_H_

#include <tsffit/Arima.h>

#include "models/Series.h"
#include "models/arima/ArimaRequest.h"

namespace tsx::models {

// An ARIMA fit, and the search that led to it.
struct ArimaOutcome {
  tsffit::ArimaFit fit;
  unsigned models_tried = 0;  // 0: the orders were given
  double aicc = 0;            // where they were searched for
};

// Fits the request, which must be without fault on the series (see ArimaFault.h).
ArimaOutcome FitArimaSeries(const ArimaRequest& request, const Series& series,
                            unsigned seasonLength, int functionType);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_ARIMAFITTING_H_
