#ifndef TSXPORT_CLI_TABLE_PREDICTORFUTURE_H_
#define TSXPORT_CLI_TABLE_PREDICTORFUTURE_H_

#include "cli/table/TableSeries.h"

namespace tsx::cli {

// Lets the series end with its last value that is not missing; what its predictors have behind it
// becomes their future. A series without any value stays as it is.
void CutFuture(TableSeries& read);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_PREDICTORFUTURE_H_
