#include "cli/table/RowGroups.h"

#include <map>
#include <numeric>

#include "cli/table/NumberCell.h"
#include "text/Quoting.h"
#include "text/Utf8.h"

namespace tsx::cli {
namespace {

void CheckId(const CsvTable& table, const CsvCell& cell) {
  if (IsMissingCell(cell)) throw InputError(table.file, cell.place, "the id is missing");
  if (text::IsCleanName(cell.text)) return;
  throw InputError(table.file, cell.place,
                   "the id " + text::Quoted(cell.text) + " holds control characters");
}

std::vector<RowGroup> GroupById(const CsvTable& table, std::size_t column) {
  std::vector<RowGroup> groups;
  std::map<std::string, std::size_t> indexes;
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const CsvCell& cell = table.rows[row][column];
    CheckId(table, cell);
    const auto [index, isNew] = indexes.emplace(cell.text, groups.size());
    if (isNew) groups.push_back({cell.text, {}});
    groups[index->second].rows.push_back(row);
  }
  return groups;
}

}  // namespace

std::vector<RowGroup> MakeRowGroups(const CsvTable& table, std::optional<std::size_t> idColumn) {
  if (idColumn) return GroupById(table, *idColumn);
  RowGroup all{"", std::vector<std::size_t>(table.rows.size())};
  std::iota(all.rows.begin(), all.rows.end(), std::size_t{0});
  return {all};
}

}  // namespace tsx::cli
