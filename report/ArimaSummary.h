#ifndef TSXPORT_REPORT_ARIMASUMMARY_H_
#define TSXPORT_REPORT_ARIMASUMMARY_H_

#include <string>
#include <vector>

#include <tsfcore/ARMAForecastState.h>

#include "models/Series.h"

// What a fitted ARIMA model looks like to people, in texts of one line each.
namespace tsx::cli {

// "exact maximum likelihood"
std::string ArimaMethodText(const ARMAForecastState& state);

// The coefficients but those of outliers, as a table with a heading; empty where there are none.
std::vector<std::string> CoefficientTexts(const ARMAForecastState& state, const Series& series);

// "law, delayed by 3, differenced once", for each predictor.
std::vector<std::string> PredictorTexts(const AMModelSpec& spec, const Series& series);

// "level from 1899: -247.78 (s.e. 28)", for each outlier. `firstCase` is that of the fit.
std::vector<std::string> OutlierTexts(const ARMAForecastState& state, const Series& series,
                                      std::size_t firstCase);

}  // namespace tsx::cli

#endif  // TSXPORT_REPORT_ARIMASUMMARY_H_
