#ifndef TSXPORT_CLI_TABLE_SERIESREADER_H_
#define TSXPORT_CLI_TABLE_SERIESREADER_H_

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "cli/table/CaseRows.h"
#include "cli/table/ColumnRoles.h"
#include "cli/table/CsvReader.h"
#include "cli/table/NumberCell.h"
#include "cli/table/RowGroups.h"
#include "cli/table/TableSeries.h"
#include "cli/table/TimeColumn.h"

// From a table to the series in it.
namespace tsx::cli {

struct SeriesOptions {
  ColumnRequest columns;
  std::string name;  // of the models; the file's name without folder and ending if empty
  bool skipped_as_gaps = false;  // leave skipped cases out instead of giving them missing values
};

// Hands out the series of a table one after the other: for each value of the id column in order of
// first appearance, the variables in the order of their columns (or of the command line).
//
//   SeriesReader reader(table, options);
//   TableSeries next;
//   while (reader.Next(next)) Use(next);
//
// A model's name is the name given, when there is one variable and no id column; else
// NAME/VARIABLE, or with an id column NAME/ID, or NAME/ID/VARIABLE with several variables.
//
// Where there are predictors a series ends with its last value that is not missing: the rows behind
// it tell the predictors' future.
class SeriesReader {
 public:
  // Chooses the columns and reads times and ids of all rows. The table must outlive the reader.
  // Throws InputError and UsageError as the readers of columns, times and ids do.
  SeriesReader(const CsvTable& table, const SeriesOptions& options);

  // Reads the next series. False: there is none, and `next` is what it was. Throws InputError for
  // times that do not rise and for cells without a number; the reader is of no more use then.
  bool Next(TableSeries& next);

 private:
  void BeginGroup();
  std::shared_ptr<const tsxtimes::DateAxis> AxisOf(const RowGroup& group) const;
  TableSeries ReadVariable(std::size_t column);
  std::string ModelName(const std::string& variable) const;
  void ReadColumn(std::size_t column, std::vector<double>& values,
                  std::vector<text::Place>& places);
  void ReadPredictors(TableSeries& read);

  const CsvTable& table_;
  const ColumnRoles roles_;
  const TimeColumn times_;
  const std::string base_name_;
  const bool skipped_as_gaps_;
  const std::vector<RowGroup> groups_;
  NumberReader numbers_;
  std::size_t group_ = 0;                           // the next series' place among the groups
  std::size_t variable_ = 0;                        // and its place among the variables
  std::shared_ptr<const tsxtimes::DateAxis> axis_;  // of that group
  CaseRows case_rows_;                              // of that group
};

// Every series of the table, where all must be read before anything can be done with one.
std::vector<TableSeries> ReadSeries(const CsvTable& table, const SeriesOptions& options);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_SERIESREADER_H_
