#ifndef TSXPORT_CLI_COMMANDS_DIALECTCHECK_H_
#define TSXPORT_CLI_COMMANDS_DIALECTCHECK_H_

#include <string>
#include <vector>

#include <tsxport/DialectFacts.h>

#include "cli/table/TableSeries.h"
#include "models/ModelRequest.h"

// What a dialect has no place for. A document that left it out would be read without complaint, and
// forecast wrongly; so the run is refused, and the line for people names the format that has room.
namespace tsx::cli {

// Throws UsageError when the request is for a model or a transformation that the dialect has no
// place for.
void CheckModelFor(const DialectFacts& dialect, const models::ModelRequest& request);

// Throws InputError for the first series that the dialect has no place for: because of a missing
// value, or where the kind is left to choose, because of the class that claims the series. `file`
// is the table's name.
void CheckSeriesFor(const DialectFacts& dialect, const std::string& file,
                    const std::vector<TableSeries>& all, const models::ModelRequest& request);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_DIALECTCHECK_H_
