#include "cli/table/Series.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <numeric>
#include <utility>

#include <tsfcore/MV.h>

#include "cli/table/NumberCell.h"
#include "cli/table/TimeColumn.h"
#include "text/Text.h"

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
    if (!text::IsCleanName(cell.text)) {
      throw InputError(table.file, cell.place,
                       "the id " + text::Quoted(cell.text) + " holds control characters");
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
  return text::IsCleanName(stem) ? stem : text::Printable(stem);
}

std::string ModelName(const std::string& base, const ColumnRoles& roles, const std::string& id,
                      const std::string& variable) {
  std::vector<std::string> parts = {base};
  if (roles.id) parts.push_back(id);
  if (roles.variables.size() > 1) parts.push_back(variable);
  return text::Joined(parts, "/");
}

constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

// The cases of a group, and the row of each; kNoRow for skipped ones.
struct CaseRows {
  std::vector<std::size_t> cases;
  std::vector<std::size_t> rows;
};

CaseRows FindCaseRows(const DateAxis& axis, const Group& group, bool skippedAsGaps) {
  CaseRows found;
  for (std::size_t i = 0; i < group.rows.size(); ++i) {
    const std::size_t at = axis.row_cases[i];
    const std::size_t next = found.cases.empty() ? 0 : found.cases.back() + 1;
    for (std::size_t skipped = next; skipped < at && !skippedAsGaps; ++skipped) {
      found.cases.push_back(skipped);
      found.rows.push_back(kNoRow);
    }
    found.cases.push_back(at);
    found.rows.push_back(group.rows[i]);
  }
  return found;
}

// Reads the cells of one column in these rows.
void ReadColumn(const CsvTable& table, std::size_t column, const std::vector<std::size_t>& rows,
                NumberReader& numbers, std::vector<double>& values,
                std::vector<text::Place>& places) {
  for (const std::size_t row : rows) {
    const bool skipped = row == kNoRow;
    const std::string& name = table.header[column].text;
    values.push_back(skipped ? MV::gMissingValue : numbers.Read(table.rows[row][column], name));
    places.push_back(skipped ? text::Place{} : table.rows[row][column].place);
  }
}

// Makes the values from `count` on the predictor's future, as far as they follow one another.
void CutPredictor(PredictorColumn& predictor, const std::vector<std::size_t>& cases,
                  std::size_t count) {
  for (std::size_t i = count; i < cases.size(); ++i) {
    if (cases[i] != cases[i - 1] + 1 || predictor.values[i] == MV::gMissingValue) {
      predictor.future_end = PlaceOfCase(predictor.places, i);
      break;
    }
    predictor.future.push_back(predictor.values[i]);
    predictor.future_places.push_back(predictor.places[i]);
  }
  predictor.values.resize(count);
  predictor.places.resize(count);
}

// The axis of the cases up to `last`, one of those that have a row.
std::shared_ptr<const DateAxis> CutAxis(DateAxis axis, std::size_t last) {
  std::erase_if(axis.row_cases, [last](std::size_t at) { return at > last; });
  return std::make_shared<const DateAxis>(std::move(axis));
}

// Lets the series end with its last value; what predictors have behind it is their future.
void CutFuture(Series& series) {
  const auto last = std::find_if(series.values.rbegin(), series.values.rend(),
                                 [](double value) { return value != MV::gMissingValue; });
  const auto count = static_cast<std::size_t>(series.values.rend() - last);
  if (count == 0 || count == series.values.size()) return;
  for (PredictorColumn& predictor : series.predictors) CutPredictor(predictor, series.cases, count);
  series.values.resize(count);
  series.places.resize(count);
  series.cases.resize(count);
  series.axis = CutAxis(*series.axis, series.cases.back());
}

void AddPredictors(Series& series, const CsvTable& table, const ColumnRoles& roles,
                   const std::vector<std::size_t>& rows, NumberReader& numbers) {
  for (const std::size_t column : roles.predictors) {
    PredictorColumn predictor;
    predictor.name = table.header[column].text;
    ReadColumn(table, column, rows, numbers, predictor.values, predictor.places);
    series.predictors.push_back(std::move(predictor));
  }
  if (!series.predictors.empty()) CutFuture(series);
}

}  // namespace

text::Place PlaceOfCase(const std::vector<text::Place>& places, std::size_t i) {
  const auto first = places.begin() + static_cast<std::ptrdiff_t>(i);
  const auto found =
      std::find_if(first, places.end(), [](const text::Place& place) { return place.line != 0; });
  return found == places.end() ? text::Place{} : *found;
}

bool HasGaps(const Series& series) { return series.cases.size() < series.axis->CaseCount(); }

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
    const CaseRows found = FindCaseRows(*axis, group, skippedAsGaps);
    for (const std::size_t column : roles.variables) {
      Series series;
      series.variable = table.header[column].text;
      series.model_name = ModelName(base, roles, group.id, series.variable);
      series.axis = axis;
      series.cases = found.cases;
      ReadColumn(table, column, found.rows, numbers, series.values, series.places);
      AddPredictors(series, table, roles, found.rows, numbers);
      all.push_back(std::move(series));
    }
  }
  return all;
}

}  // namespace tsx::cli
