#ifndef TSXPORT_MODELS_ARIMA_ARIMAROWS_H_
#define TSXPORT_MODELS_ARIMA_ARIMAROWS_H_

#include <cstddef>
#include <string>
#include <vector>

#include <tsfcore/ARMAForecastState.h>

#include "models/Description.h"
#include "models/Series.h"

// The rows that describe the parts of an ARIMA model.
namespace tsx::models {

// "exact maximum likelihood"
std::string ArimaMethodName(const ARMAForecastState& state);

// All coefficients but those of outliers.
std::vector<Estimate> CoefficientRows(const ARMAForecastState& state, const Series& series);

std::vector<Input> PredictorRows(const AMModelSpec& spec, const Series& series);

// `firstCase` is that of the fit, from which outliers count.
std::vector<Event> OutlierRows(const ARMAForecastState& state, const Series& series,
                               std::size_t firstCase);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_ARIMAROWS_H_
