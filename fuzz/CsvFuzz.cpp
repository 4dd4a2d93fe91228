#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "cli/Errors.h"
#include "cli/table/CsvReader.h"
#include "cli/table/SeriesReader.h"

// Any bytes as a CSV file. They give either a table, which written and read again gives the same
// table, or an error at a place inside the file. From a table come either series, one value for
// each case, or again an error at such a place.

namespace {

using namespace tsx::cli;

void Require(bool holds, const char* law) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", law);
  std::abort();
}

// A place may lie behind the last character and behind the last line end.
void CheckPlace(tsx::text::Place place, std::string_view bytes) {
  std::size_t lineEnds = 0;
  for (const char c : bytes) lineEnds += c == '\n' || c == '\r' ? 1 : 0;
  Require(1 <= place.line && place.line <= lineEnds + 1, "the line of an error is in the file");
  Require(1 <= place.column && place.column <= bytes.size() + 1, "the column of an error is too");
}

bool SameTexts(const std::vector<CsvCell>& a, const std::vector<CsvCell>& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i].text != b[i].text) return false;
  }
  return true;
}

void CheckRoundTrip(const CsvTable& table) {
  const CsvTable again = ParseCsv("again.csv", CsvText(table));
  Require(SameTexts(table.header, again.header), "a written header reads the same");
  Require(table.rows.size() == again.rows.size(), "as many rows are read as were written");
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    Require(SameTexts(table.rows[i], again.rows[i]), "a written row reads the same");
  }
}

void CheckSeries(const TableSeries& read) {
  const auto& [series, places] = read;
  Require(!series.values.empty(), "a series has values");
  Require(series.values.size() == series.cases.size(), "each value has its case");
  Require(series.values.size() == places.values.size(), "each value has its place");
  Require(series.cases.front() == 0, "the first case exists");
  Require(series.cases.back() + 1 == series.axis->CaseCount(), "the last case exists");
  Require(!series.axis->CaseText(series.axis->CaseCount()).empty(), "the next case has a time");
}

void CheckAllSeries(const CsvTable& table, const ColumnRequest& columns) {
  for (const bool skippedAsGaps : {false, true}) {
    SeriesReader reader(table, {columns, "", skippedAsGaps});
    TableSeries next;
    while (reader.Next(next)) CheckSeries(next);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  try {
    const CsvTable table = ParseCsv("fuzz.csv", bytes);
    CheckRoundTrip(table);
    ColumnRequest columns;
    CheckAllSeries(table, columns);
    columns.id = table.header.front().text;  // once more as a long table
    CheckAllSeries(table, columns);
  } catch (const InputError& error) {
    CheckPlace(error.place(), bytes);
  } catch (const UsageError&) {  // no such column for the ids
  }
  return 0;
}
