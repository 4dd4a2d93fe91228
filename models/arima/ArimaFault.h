#ifndef TSXPORT_MODELS_ARIMA_ARIMAFAULT_H_
#define TSXPORT_MODELS_ARIMA_ARIMAFAULT_H_

#include <string>

#include "cli/table/TableSeries.h"
#include "models/arima/ArimaRequest.h"

namespace tsx::cli {

// Why a request cannot go with a series, before any fit; no cause when it can.
struct ArimaFault {
  std::string cause;
  text::Place place;
};

// Looks for seasons without a season length or over gaps, lags beyond the series, predictors with
// missing values up to the end of the series, known for less than `horizon` periods behind it or
// there outside the domain of their transformation, and outliers at times that the series has not.
ArimaFault FindArimaFault(const ArimaRequest& request, const TableSeries& read,
                          unsigned seasonLength, unsigned horizon);

}  // namespace tsx::cli

#endif  // TSXPORT_MODELS_ARIMA_ARIMAFAULT_H_
