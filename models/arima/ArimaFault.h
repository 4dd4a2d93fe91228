#ifndef TSXPORT_MODELS_ARIMA_ARIMAFAULT_H_
#define TSXPORT_MODELS_ARIMA_ARIMAFAULT_H_

#include "models/ModelClass.h"

namespace tsx::models {

// Why an ARIMA model cannot go with a series, before any fit: lags beyond the series, predictors
// with missing values up to the end of the series, known for less than the horizon behind it or
// there outside the domain of their transformation, and outliers at times that the series has not.
Fault FindArimaFault(const Task& task);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_ARIMAFAULT_H_
