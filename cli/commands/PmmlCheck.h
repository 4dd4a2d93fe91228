#ifndef TSXPORT_CLI_COMMANDS_PMMLCHECK_H_
#define TSXPORT_CLI_COMMANDS_PMMLCHECK_H_

#include <string>
#include <vector>

#include "models/ModelChoice.h"

// What PMML has no place for. A document that left it out would be read without complaint, and
// forecast wrongly; so the run is refused, and the line for people names the format that has room.
namespace tsx::cli {

// Throws UsageError when the request is for Croston's method, ARIMA or a transformation.
void CheckModelForPmml(const ModelRequest& request);

// Throws InputError for the first series with a missing value, and where the kind is left to
// choose, for the first one with intermittent demand. `file` is the table's name.
void CheckSeriesForPmml(const std::string& file, const std::vector<TableSeries>& all,
                        const ModelRequest& request);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_PMMLCHECK_H_
