#ifndef TSXPORT_MODELS_ARIMA_OUTLIERTIME_H_
#define TSXPORT_MODELS_ARIMA_OUTLIERTIME_H_

#include <cstddef>
#include <optional>

#include "models/Series.h"
#include "models/arima/ArimaRequest.h"

namespace tsx::models {

// Where an outlier stands among the cases of the series, counted from 0; empty when its time is
// none of them. The time has the form of the series' times or is the number of a case of the axis,
// from 1. Numbers of four digits are years where the times are; where times are numbers, they are
// those.
std::optional<std::size_t> IndexOfOutlier(const Series& series, const OutlierRequest& outlier);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_OUTLIERTIME_H_
