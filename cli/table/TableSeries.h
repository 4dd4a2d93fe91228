#ifndef TSXPORT_CLI_TABLE_TABLESERIES_H_
#define TSXPORT_CLI_TABLE_TABLESERIES_H_

#include "cli/table/SeriesPlaces.h"
#include "models/Series.h"

namespace tsx::cli {

// A series as a table holds it: what it says, and where its cells stand.
struct TableSeries {
  models::Series series;
  SeriesPlaces places;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_TABLESERIES_H_
