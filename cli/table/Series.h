#ifndef TSXPORT_CLI_TABLE_SERIES_H_
#define TSXPORT_CLI_TABLE_SERIES_H_

#include <memory>
#include <string>
#include <vector>

#include "cli/table/ColumnRoles.h"
#include "cli/table/CsvReader.h"
#include "times/DateAxis.h"

// From a table to the series in it.
namespace tsx::cli {

// A column that helps to explain a series.
struct PredictorColumn {
  std::string name;
  std::vector<double> values;  // by the cases of the series
  std::vector<text::Place> places;
  std::vector<double> future;  // of the cases behind the series, up to the first one without
  std::vector<text::Place> future_places;
  text::Place future_end;  // where the first unknown value is; line 0 when the table ends before it
};

struct Series {
  std::string model_name;
  std::string variable;                  // the column's name
  std::shared_ptr<const DateAxis> axis;  // shared by the variables of the same rows
  std::vector<double> values;            // by case; MV::gMissingValue where there is none
  std::vector<std::size_t> cases;        // the axis' case of each value
  std::vector<text::Place> places;       // where each value stands; line 0 for skipped cases
  std::vector<PredictorColumn> predictors;
};

// Where case `i` of `places` stands; for a skipped one, which has no row, where the next one does.
text::Place PlaceOfCase(const std::vector<text::Place>& places, std::size_t i);

// Whether cases of the axis were left out of the series rather than given missing values.
bool HasGaps(const Series& series);

struct SeriesOptions {
  ColumnRequest columns;
  std::string name;  // of the models; the file's name without folder and ending if empty
  bool skipped_as_gaps = false;  // leave skipped cases out instead of giving them missing values
};

// Reads every series of the table: the variables in the order of their columns (or of the command
// line), for each value of the id column in order of first appearance.
//
// A model's name is the name given, when there is one variable and no id column; else
// NAME/VARIABLE, or with an id column NAME/ID, or NAME/ID/VARIABLE with several variables.
//
// Where there are predictors a series ends with its last value that is not missing: the rows behind
// it tell the predictors' future.
//
// Throws InputError and UsageError as the readers of cells and columns do.
std::vector<Series> ReadSeries(const CsvTable& table, const SeriesOptions& options);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_SERIES_H_
