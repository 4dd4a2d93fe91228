#ifndef TSXPORT_CLI_TABLE_TIMECOLUMN_H_
#define TSXPORT_CLI_TABLE_TIMECOLUMN_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include <tsxtimes/TimeValue.h>

#include "cli/table/CsvReader.h"

namespace tsx::cli {

// The times of a table, one per row.
struct TimeColumn {
  tsxtimes::TimeForm form;          // of the first time; all have its unit
  std::vector<std::int64_t> ticks;  // see tsxtimes::TimeValue
};

// Reads the column. Numbers that all have four digits and lie between 1000 and 2999 are years.
// Throws InputError for a cell that is no time, an impossible time (1999-13, 2023-02-30), a missing
// one, and a time of another form than those above it.
TimeColumn ReadTimes(const CsvTable& table, std::size_t column);

// Throws InputError unless the times of `rows` rise strictly from row to row.
void CheckOrder(const CsvTable& table, std::size_t column, const TimeColumn& times,
                const std::vector<std::size_t>& rows);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_TIMECOLUMN_H_
