#ifndef TSFFIT_FORECAST_H_
#define TSFFIT_FORECAST_H_

#include <vector>

#include <tsfcore/Export.h>
#include <tsfcore/TSFModel.h>

namespace tsffit {

// Forecasts for 1, 2, ... periods after the end of the series.
struct Forecasts {
  std::vector<double> value;      // on the original scale
  std::vector<double> std_error;  // on the modelled (transformed) scale
  std::vector<double> lower;      // confidence limits, on the original scale
  std::vector<double> upper;
};

// Forecasts `horizon` periods from the model's final state alone, with limits that hold with
// probability `confidence`. Empty vectors when the model has no state.
TSF_EXPORT Forecasts Forecast(const TSFModel& model, unsigned horizon, double confidence = 0.95);

}  // namespace tsffit

#endif  // TSFFIT_FORECAST_H_
