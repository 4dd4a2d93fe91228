#ifndef TSXPORT_CLI_TABLE_CSVREADER_H_
#define TSXPORT_CLI_TABLE_CSVREADER_H_

#include <string>
#include <string_view>
#include <vector>

#include "cli/Errors.h"

// Reading comma-separated values as people have them.
//
//   - The first line names the columns. Later lines have as many cells, or the file is refused;
//     empty lines at the end are passed over.
//   - The separator is a comma or a semicolon: whichever the header line has more of outside
//     quotes, the semicolon when they tie.
//   - A cell may stand in double quotes, and then hold separators, line ends and doubled quotes.
//     Blanks and tabs around a cell do not count, those inside its quotes do.
//   - Lines end in LF, CR LF or CR. A UTF-8 byte order mark is passed over.
namespace tsx::cli {

struct CsvCell {
  std::string text;
  text::Place place;  // where the cell begins, its opening quote included
};

struct CsvTable {
  std::string file;  // its name in messages
  char separator = ',';
  std::vector<CsvCell> header;             // names that are not empty are unique and clean
  std::vector<std::vector<CsvCell>> rows;  // each as long as the header
};

// Parses the bytes of a file. Throws InputError with the place and the cause for: an empty file, a
// NUL byte, text that is not UTF-8, a quote that is never closed or has text behind it, a line with
// too few or too many cells, a column name that comes twice or holds control characters, no line
// after the header.
CsvTable ParseCsv(std::string file, std::string_view bytes);

// Reads and parses a file; "-" reads standard input. Throws InputError, also when it cannot be
// read.
CsvTable ReadCsvFile(const std::string& path);

// The table as a file again: ParseCsv() of it gives an equal table, places aside.
std::string CsvText(const CsvTable& table);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_CSVREADER_H_
