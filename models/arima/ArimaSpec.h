#ifndef TSXPORT_MODELS_ARIMA_ARIMASPEC_H_
#define TSXPORT_MODELS_ARIMA_ARIMASPEC_H_

#include <string>
#include <vector>

#include <tsfcore/AMModelSpec.h>

#include "models/Series.h"
#include "models/arima/ArimaRequest.h"

// From an ARIMA request and its series to the specification of a model.
namespace tsx::models {

// The specification to fit. The request must be without fault on the series (see ArimaFault.h).
// Outliers count their cases from the first one of the series.
AMModelSpec::Fields MakeArimaSpec(const ArimaRequest& request, const Series& series,
                                  unsigned seasonLength, int functionType);

// "ARIMA(0,1,1)(0,1,1)12 of the logarithm with a constant". Lags other than 1 to p stand in
// brackets; those of seasonal factors count seasons.
std::string ArimaTitle(const AMModelSpec& spec);

// How many periods ahead the predictors allow to forecast; no limit without predictors.
unsigned KnownHorizon(const AMModelSpec& spec, const Series& series);

// The predictors' values in the `horizon` periods behind the series. With a delay the last periods'
// values have no effect within the horizon; where they are not known, the last known one is there.
std::vector<std::vector<double>> FutureValues(const Series& series, unsigned horizon);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_ARIMASPEC_H_
