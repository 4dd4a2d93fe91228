#include "cli/table/TimeColumn.h"

#include <algorithm>

#include "cli/table/NumberCell.h"
#include "text/Quoting.h"

namespace tsx::cli {
namespace {

using tsxtimes::MayBeYear;
using tsxtimes::ParsedTime;
using tsxtimes::TimeUnit;
using tsxtimes::TimeValue;

TimeValue ReadTime(const CsvTable& table, const CsvCell& cell) {
  if (IsMissingCell(cell)) throw InputError(table.file, cell.place, "the time is missing");
  const ParsedTime time = tsxtimes::ParseTime(cell.text);
  if (time.value) return *time.value;
  if (!time.impossible.empty()) {
    throw InputError(table.file, cell.place, text::Quoted(cell.text) + ": " + time.impossible);
  }
  throw InputError(table.file, cell.place,
                   text::Quoted(cell.text) +
                       " is not a time (1949-01, 1960-Q1, 1871, a running number, 2020-02-29 or "
                       "2020-02-29 13:45)");
}

// `times` are numbers.
bool AreYears(const CsvTable& table, std::size_t column, const TimeColumn& times) {
  const auto hasFourDigits = [column](const auto& row) { return row[column].text.size() == 4; };
  return std::all_of(times.ticks.begin(), times.ticks.end(), MayBeYear) &&
         std::all_of(table.rows.begin(), table.rows.end(), hasFourDigits);
}

}  // namespace

TimeColumn ReadTimes(const CsvTable& table, std::size_t column) {
  TimeColumn times;
  for (const auto& row : table.rows) {
    const CsvCell& cell = row[column];
    const TimeValue time = ReadTime(table, cell);
    if (times.ticks.empty()) times.form = time.form;
    if (time.form.unit != times.form.unit) {
      throw InputError(table.file, cell.place,
                       text::Quoted(cell.text) + " is not " + tsxtimes::FormName(times.form.unit) +
                           " like the times above it");
    }
    times.ticks.push_back(time.tick);
  }
  if (times.form.unit == TimeUnit::kNumber && AreYears(table, column, times)) {
    times.form.unit = TimeUnit::kYear;
  }
  return times;
}

void CheckOrder(const CsvTable& table, std::size_t column, const TimeColumn& times,
                const std::vector<std::size_t>& rows) {
  for (std::size_t i = 1; i < rows.size(); ++i) {
    if (times.ticks[rows[i]] > times.ticks[rows[i - 1]]) continue;
    const CsvCell& cell = table.rows[rows[i]][column];
    const CsvCell& before = table.rows[rows[i - 1]][column];
    const bool repeated = times.ticks[rows[i]] == times.ticks[rows[i - 1]];
    throw InputError(table.file, cell.place,
                     text::Quoted(cell.text) + (repeated ? " repeats" : " lies before") +
                         " the time " + text::Quoted(before.text) + " of line " +
                         std::to_string(before.place.line));
  }
}

}  // namespace tsx::cli
