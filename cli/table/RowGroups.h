#ifndef TSXPORT_CLI_TABLE_ROWGROUPS_H_
#define TSXPORT_CLI_TABLE_ROWGROUPS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/table/CsvReader.h"

namespace tsx::cli {

// The rows of one id, or all rows.
struct RowGroup {
  std::string id;
  std::vector<std::size_t> rows;  // rising
};

// The rows by what stands in the id column, in order of first appearance; without such a column all
// rows. Throws InputError for an id that is missing or holds control characters.
std::vector<RowGroup> MakeRowGroups(const CsvTable& table, std::optional<std::size_t> idColumn);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_ROWGROUPS_H_
