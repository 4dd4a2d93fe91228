#include "cli/table/SeriesReader.h"

#include <filesystem>
#include <numeric>
#include <utility>

#include <tsfcore/MV.h>

#include "cli/table/PredictorFuture.h"
#include "text/Quoting.h"
#include "text/Utf8.h"
#include "text/Words.h"

namespace tsx::cli {
namespace {

std::string BaseName(const CsvTable& table, const std::string& given) {
  if (!given.empty()) return given;
  const std::string stem = std::filesystem::path(table.file).stem().string();
  return text::IsCleanName(stem) ? stem : text::Printable(stem);
}

}  // namespace

SeriesReader::SeriesReader(const CsvTable& table, const SeriesOptions& options)
    : table_(table),
      roles_(ChooseColumns(table, options.columns)),
      times_(roles_.time ? ReadTimes(table, *roles_.time) : TimeColumn{}),
      base_name_(BaseName(table, options.name)),
      skipped_as_gaps_(options.skipped_as_gaps),
      groups_(MakeRowGroups(table, roles_.id)),
      numbers_(table) {}

bool SeriesReader::Next(TableSeries& next) {
  if (group_ == groups_.size()) return false;
  if (variable_ == 0) BeginGroup();
  next = ReadVariable(roles_.variables[variable_]);
  if (++variable_ == roles_.variables.size()) {
    variable_ = 0;
    ++group_;
  }
  return true;
}

void SeriesReader::BeginGroup() {
  const RowGroup& group = groups_[group_];
  axis_ = AxisOf(group);
  // Times without a regular step would spread few values over any number of cases.
  const bool skippedAsGaps = skipped_as_gaps_ || !axis_->Fault().empty();
  case_rows_ = FindCaseRows(group.rows, axis_->row_cases, skippedAsGaps);
}

std::shared_ptr<const tsxtimes::DateAxis> SeriesReader::AxisOf(const RowGroup& group) const {
  std::vector<std::int64_t> ticks(group.rows.size());
  std::iota(ticks.begin(), ticks.end(), std::int64_t{1});
  if (roles_.time) {
    CheckOrder(table_, *roles_.time, times_, group.rows);
    for (std::size_t i = 0; i < ticks.size(); ++i) ticks[i] = times_.ticks[group.rows[i]];
  }
  return std::make_shared<const tsxtimes::DateAxis>(tsxtimes::MakeDateAxis(times_.form, ticks));
}

TableSeries SeriesReader::ReadVariable(std::size_t column) {
  TableSeries read;
  read.series.variable = table_.header[column].text;
  read.series.model_name = ModelName(read.series.variable);
  read.series.axis = axis_;
  read.series.cases = case_rows_.cases;
  ReadColumn(column, read.series.values, read.places.values);
  ReadPredictors(read);
  return read;
}

std::string SeriesReader::ModelName(const std::string& variable) const {
  std::vector<std::string> parts = {base_name_};
  if (roles_.id) parts.push_back(groups_[group_].id);
  if (roles_.variables.size() > 1) parts.push_back(variable);
  return text::Joined(parts, "/");
}

void SeriesReader::ReadColumn(std::size_t column, std::vector<double>& values,
                              std::vector<text::Place>& places) {
  for (const std::size_t row : case_rows_.rows) {
    const bool skipped = row == kNoRow;
    const std::string& name = table_.header[column].text;
    values.push_back(skipped ? MV::gMissingValue : numbers_.Read(table_.rows[row][column], name));
    places.push_back(skipped ? text::Place{} : table_.rows[row][column].place);
  }
}

void SeriesReader::ReadPredictors(TableSeries& read) {
  for (const std::size_t column : roles_.predictors) {
    models::Predictor& predictor = read.series.predictors.emplace_back();
    PredictorPlaces& places = read.places.predictors.emplace_back();
    predictor.name = table_.header[column].text;
    ReadColumn(column, predictor.values, places.values);
  }
  if (!roles_.predictors.empty()) CutFuture(read);
}

std::vector<TableSeries> ReadSeries(const CsvTable& table, const SeriesOptions& options) {
  SeriesReader reader(table, options);
  std::vector<TableSeries> all;
  TableSeries next;
  while (reader.Next(next)) all.push_back(std::move(next));
  return all;
}

}  // namespace tsx::cli
