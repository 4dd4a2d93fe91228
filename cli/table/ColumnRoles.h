#ifndef TSXPORT_CLI_TABLE_COLUMNROLES_H_
#define TSXPORT_CLI_TABLE_COLUMNROLES_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/table/CsvReader.h"

// Which column of a table is what.
namespace tsx::cli {

// What the command line says; empty where it says nothing.
struct ColumnRequest {
  std::string time{};
  std::string id{};
  std::vector<std::string> variables{};
  std::vector<std::string> predictors{};
};

struct ColumnRoles {
  std::optional<std::size_t> time;      // empty: cases are numbered from 1
  std::optional<std::size_t> id;        // empty: one series per variable
  std::vector<std::size_t> variables;   // at least one, each with a name
  std::vector<std::size_t> predictors;  // those asked for, in that order
};

// Finds the columns. Those asked for by name must be there and serve one purpose each, else
// UsageError. Where nothing is asked for:
//   - the time column is the first one named date, time, datetime, timestamp, period, month,
//     quarter or year; else the first whose first cell has the form of a date, quarter or month;
//     else the first of the table but the id, when it holds rising whole numbers (within each id)
//     and there is a column of numbers beside it; else there is none;
//   - the variables are all columns of numbers but the time and the predictors: those in which at
//     least every second cell that is not missing is a number. The words among them are errors that
//     reading tells. A column of rising whole numbers without a name holds row numbers and is
//     passed over.
// Throws InputError when no column of numbers is left, or one of them has no name; and when nothing
// is asked for and all names are times or numbers, the first one included: a case, not names.
ColumnRoles ChooseColumns(const CsvTable& table, const ColumnRequest& request);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_COLUMNROLES_H_
