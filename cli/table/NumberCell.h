#ifndef TSXPORT_CLI_TABLE_NUMBERCELL_H_
#define TSXPORT_CLI_TABLE_NUMBERCELL_H_

#include <optional>
#include <string>

#include "cli/table/CsvReader.h"

// Numbers in the cells of a table, whatever the locale.
namespace tsx::cli {

// An empty cell or "NA".
bool IsMissingCell(const CsvCell& cell);

// Whether the cell holds a number that ReadNumber() takes, in either decimal notation.
bool IsNumberCell(const CsvCell& cell);

// Reads the numeric cells of one table.
//
// The decimal character is the point. In a table separated by semicolons it may be the comma, as
// long as one table keeps to one of them: where both occur, "1.234" could be either of two numbers.
class NumberReader {
 public:
  explicit NumberReader(const CsvTable& table) : table_(table) {}

  // The number in `cell`, or MV::gMissingValue where it is missing. Throws InputError, naming
  // `columnName`, for anything else: words, "inf" and "nan", numbers beyond the range of a double.
  double Read(const CsvCell& cell, const std::string& columnName);

 private:
  void CheckDecimalCharacter(const CsvCell& cell, const std::string& columnName);

  const CsvTable& table_;
  std::optional<CsvCell> first_with_decimals_;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_NUMBERCELL_H_
