#include "cli/Series.h"

#include <filesystem>
#include <map>
#include <numeric>
#include <utility>

#include <tsfcore/MV.h>

#include "cli/NumberCell.h"
#include "cli/Text.h"
#include "cli/TimeColumn.h"

namespace tsx::cli {
namespace {

// The rows of one id, or all rows.
struct Group {
  std::string id;
  std::vector<std::size_t> rows;
};

std::vector<Group> GroupById(const CsvTable& table, std::size_t column) {
  std::vector<Group> groups;
  std::map<std::string, std::size_t> indexes;
  for (std::size_t row = 0; row < table.rows.size(); ++row) {
    const CsvCell& cell = table.rows[row][column];
    if (IsMissingCell(cell)) throw InputError(table.file, cell.place, "the id is missing");
    if (!IsCleanName(cell.text)) {
      throw InputError(table.file, cell.place,
                       "the id " + Quoted(cell.text) + " holds control characters");
    }
    const auto [index, isNew] = indexes.emplace(cell.text, groups.size());
    if (isNew) groups.push_back({cell.text, {}});
    groups[index->second].rows.push_back(row);
  }
  return groups;
}

std::vector<Group> MakeGroups(const CsvTable& table, const ColumnRoles& roles) {
  if (roles.id) return GroupById(table, *roles.id);
  Group all{"", std::vector<std::size_t>(table.rows.size())};
  std::iota(all.rows.begin(), all.rows.end(), std::size_t{0});
  return {all};
}

std::shared_ptr<const DateAxis> AxisOf(const CsvTable& table, const ColumnRoles& roles,
                                       const TimeColumn& times, const Group& group) {
  std::vector<std::int64_t> ticks(group.rows.size());
  std::iota(ticks.begin(), ticks.end(), std::int64_t{1});
  if (roles.time) {
    CheckOrder(table, *roles.time, times, group.rows);
    for (std::size_t i = 0; i < ticks.size(); ++i) ticks[i] = times.ticks[group.rows[i]];
  }
  return std::make_shared<const DateAxis>(MakeDateAxis(times.form, ticks));
}

std::string BaseName(const CsvTable& table, const std::string& given) {
  if (!given.empty()) return given;
  const std::string stem = std::filesystem::path(table.file).stem().string();
  return IsCleanName(stem) ? stem : Printable(stem);
}

std::string ModelName(const std::string& base, const ColumnRoles& roles, const std::string& id,
                      const std::string& variable) {
  std::vector<std::string> parts = {base};
  if (roles.id) parts.push_back(id);
  if (roles.variables.size() > 1) parts.push_back(variable);
  return Joined(parts, "/");
}

// Puts the cells of one column and group on their cases.
void FillValues(Series& series, const CsvTable& table, std::size_t column, const Group& group,
                NumberReader& numbers, bool skippedAsGaps) {
  for (std::size_t i = 0; i < group.rows.size(); ++i) {
    const std::size_t at = series.axis->row_cases[i];
    const std::size_t next = series.cases.empty() ? 0 : series.cases.back() + 1;
    for (std::size_t skipped = next; skipped < at && !skippedAsGaps; ++skipped) {
      series.cases.push_back(skipped);
      series.values.push_back(MV::gMissingValue);
      series.places.push_back({});
    }
    const CsvCell& cell = table.rows[group.rows[i]][column];
    series.cases.push_back(at);
    series.values.push_back(numbers.Read(cell, series.variable));
    series.places.push_back(cell.place);
  }
}

}  // namespace

std::vector<Series> ReadSeries(const CsvTable& table, const SeriesOptions& options) {
  const ColumnRoles roles = ChooseColumns(table, options.columns);
  const TimeColumn times = roles.time ? ReadTimes(table, *roles.time) : TimeColumn{};
  const std::string base = BaseName(table, options.name);
  NumberReader numbers(table);

  std::vector<Series> all;
  for (const Group& group : MakeGroups(table, roles)) {
    const auto axis = AxisOf(table, roles, times, group);
    // Times without a regular step would spread few values over any number of cases.
    const bool skippedAsGaps = options.skipped_as_gaps || !axis->Fault().empty();
    for (const std::size_t column : roles.variables) {
      Series series;
      series.variable = table.header[column].text;
      series.model_name = ModelName(base, roles, group.id, series.variable);
      series.axis = axis;
      FillValues(series, table, column, group, numbers, skippedAsGaps);
      all.push_back(std::move(series));
    }
  }
  return all;
}

}  // namespace tsx::cli
