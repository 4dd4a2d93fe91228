#ifndef TSXPORT_REPORT_FORECASTTABLE_H_
#define TSXPORT_REPORT_FORECASTTABLE_H_

#include <string>
#include <vector>

#include "models/ModelChoice.h"

namespace tsx::report {

// The forecasts of all fitted series as CSV with the columns
//   series    the model's name
//   time      of the case, in the form of the input
//   forecast, lower95, upper95   on the original scale; empty where undefined
// `horizon` lines per series, in the order of the series. Hopeless series have none.
std::string ForecastTable(const std::vector<models::SeriesFit>& fits, unsigned horizon);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_FORECASTTABLE_H_
