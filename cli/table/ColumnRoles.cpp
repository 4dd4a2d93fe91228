#include "cli/table/ColumnRoles.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <string_view>

#include <tsxtimes/TimeValue.h>

#include "cli/table/NumberCell.h"
#include "text/Quoting.h"
#include "text/Words.h"

namespace tsx::cli {
namespace {

constexpr std::string_view kTimeNames[] = {"date",   "time",  "datetime", "timestamp",
                                           "period", "month", "quarter",  "year"};

std::size_t ColumnNamed(const CsvTable& table, const std::string& name, const char* option) {
  const auto found = std::find_if(table.header.begin(), table.header.end(),
                                  [&name](const CsvCell& cell) { return cell.text == name; });
  if (!name.empty() && found != table.header.end()) {
    return static_cast<std::size_t>(found - table.header.begin());
  }
  std::vector<std::string> names;
  for (const CsvCell& cell : table.header) names.push_back(cell.text);
  throw UsageError(std::string(option) + ": " + text::Printable(table.file) + " has no column " +
                   text::Quoted(name) + "; it has " + text::Printable(text::Joined(names, ", ")));
}

bool IsColumnOfNumbers(const CsvTable& table, std::size_t column) {
  std::size_t present = 0;
  std::size_t numbers = 0;
  for (const auto& row : table.rows) {
    present += IsMissingCell(row[column]) ? 0 : 1;
    numbers += IsNumberCell(row[column]) ? 1 : 0;
  }
  return numbers > 0 && 2 * numbers >= present;
}

bool HasTimeName(const CsvTable& table, std::size_t column) {
  const std::string name = text::AsciiLowercase(table.header[column].text);
  return std::find(std::begin(kTimeNames), std::end(kTimeNames), name) != std::end(kTimeNames);
}

// Whether the first cell has the form of a time that is no plain number, be it an impossible one.
bool LooksLikeTimes(const CsvTable& table, std::size_t column) {
  const std::string& first = table.rows.front()[column].text;
  const tsxtimes::ParsedTime time = tsxtimes::ParseTime(first);
  if (time.value) return time.value->form.unit != tsxtimes::TimeUnit::kNumber;
  return !time.impossible.empty() && !IsNumberCell(table.rows.front()[column]);
}

// Whether the column holds whole numbers that rise from row to row, among the rows of each id.
bool IsRunningNumber(const CsvTable& table, std::size_t column, std::optional<std::size_t> id) {
  std::map<std::string, std::int64_t> last;
  for (const auto& row : table.rows) {
    const tsxtimes::ParsedTime time = tsxtimes::ParseTime(row[column].text);
    if (!time.value || time.value->form.unit != tsxtimes::TimeUnit::kNumber) return false;
    const auto [before, isFirst] = last.emplace(id ? row[*id].text : "", time.value->tick);
    if (!isFirst && time.value->tick <= before->second) return false;
    before->second = time.value->tick;
  }
  return true;
}

bool IsTimeOrNumber(const CsvCell& cell) {
  return IsNumberCell(cell) || tsxtimes::ParseTime(cell.text).value || IsMissingCell(cell);
}

// The first case in the place of the names would be lost without a word. Row numbers have no name,
// and then numbers may well name the columns beside them.
void CheckFirstLine(const CsvTable& table) {
  const std::vector<CsvCell>& header = table.header;
  if (IsMissingCell(header.front())) return;
  if (!std::all_of(header.begin(), header.end(), IsTimeOrNumber)) return;
  throw InputError(table.file, header.front().place,
                   "the first line holds no names of columns but times or numbers");
}

// Finds the roles of one table.
class Chooser {
 public:
  Chooser(const CsvTable& table, const ColumnRequest& request) : table_(table), request_(request) {}

  ColumnRoles Choose() {
    if (!request_.id.empty()) roles_.id = ColumnNamed(table_, request_.id, "--id");
    for (const std::string& name : request_.variables) {
      roles_.variables.push_back(FreeColumn("--variable", name));
    }
    for (const std::string& name : request_.predictors) {
      roles_.predictors.push_back(FreeColumn("--predictor", name));
    }
    if (!request_.time.empty()) {
      roles_.time = FreeColumn("--time", request_.time);
    } else {
      roles_.time = FindTime();
    }
    if (roles_.variables.empty()) FindVariables();
    return roles_;
  }

 private:
  static bool IsAmong(const std::vector<std::size_t>& columns, std::size_t column) {
    return std::find(columns.begin(), columns.end(), column) != columns.end();
  }

  // Whether the command line gives the column to --id, --variable or --predictor.
  bool IsTaken(std::size_t column) const {
    return roles_.id == column || IsAmong(roles_.variables, column) ||
           IsAmong(roles_.predictors, column);
  }

  // Whether the column tells about the variables rather than being one.
  bool StandsBeside(std::size_t column) const {
    return roles_.time == column || roles_.id == column || IsAmong(roles_.predictors, column);
  }

  std::size_t FreeColumn(const char* option, const std::string& name) const {
    const std::size_t column = ColumnNamed(table_, name, option);
    if (!IsTaken(column)) return column;
    throw UsageError(std::string(option) + ": column " + text::Quoted(name) +
                     " has a part to play already");
  }

  std::optional<std::size_t> FindTime() const {
    for (const auto test : {HasTimeName, LooksLikeTimes}) {
      for (std::size_t i = 0; i < table_.header.size(); ++i) {
        if (!IsTaken(i) && test(table_, i)) return i;
      }
    }
    const std::size_t first = roles_.id == std::size_t{0} ? 1 : 0;
    const bool runs = first < table_.header.size() && !IsTaken(first) && HasNumbersBeside(first) &&
                      IsRunningNumber(table_, first, roles_.id);
    return runs ? std::optional(first) : std::nullopt;
  }

  bool HasNumbersBeside(std::size_t column) const {
    for (std::size_t i = 0; i < table_.header.size(); ++i) {
      if (i != column && !StandsBeside(i) && IsColumnOfNumbers(table_, i)) return true;
    }
    return false;
  }

  void FindVariables() {
    for (std::size_t i = 0; i < table_.header.size(); ++i) {
      if (StandsBeside(i) || !IsColumnOfNumbers(table_, i)) continue;
      const bool nameless = table_.header[i].text.empty();
      if (nameless && IsRunningNumber(table_, i, std::nullopt)) continue;
      if (nameless) {
        throw InputError(table_.file, table_.header[i].place,
                         "column " + std::to_string(i + 1) + " holds numbers but has no name");
      }
      roles_.variables.push_back(i);
    }
    if (roles_.variables.empty()) FailWithoutNumbers();
  }

  // Blames the first word that stands where a number might have stood.
  [[noreturn]] void FailWithoutNumbers() const {
    for (const auto& row : table_.rows) {
      for (std::size_t i = 0; i < row.size(); ++i) {
        if (StandsBeside(i) || IsMissingCell(row[i])) continue;
        throw InputError(table_.file, row[i].place,
                         text::Quoted(row[i].text) + " is not a number (column \"" +
                             text::Printable(table_.header[i].text) +
                             "\"), and no column holds numbers");
      }
    }
    throw InputError(table_.file, table_.header.front().place,
                     roles_.predictors.empty()
                         ? "there is no column of numbers beside the time"
                         : "there is no column of numbers beside time and predictors");
  }

  const CsvTable& table_;
  const ColumnRequest& request_;
  ColumnRoles roles_;
};

}  // namespace

ColumnRoles ChooseColumns(const CsvTable& table, const ColumnRequest& request) {
  const bool named = !request.time.empty() || !request.id.empty() || !request.variables.empty() ||
                     !request.predictors.empty();
  if (!named) CheckFirstLine(table);
  return Chooser(table, request).Choose();
}

}  // namespace tsx::cli
