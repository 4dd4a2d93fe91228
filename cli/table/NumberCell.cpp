#include "cli/table/NumberCell.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

#include <tsfcore/MV.h>

#include "text/Quoting.h"

namespace tsx::cli {
namespace {

struct ParsedNumber {
  double value = 0;
  bool is_number = false;     // false also for "inf" and "nan"
  bool out_of_range = false;  // a number, but no double holds it
};

ParsedNumber ParseNumber(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  std::string_view digits = text;
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);

  ParsedNumber number;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number.value);
  const bool whole = stop == end && error != std::errc::invalid_argument;
  number.out_of_range = whole && error == std::errc::result_out_of_range;
  number.is_number = whole && (number.out_of_range || std::isfinite(number.value));
  return number;
}

std::string InColumn(const std::string& name) {
  return " (column \"" + text::Printable(name) + "\")";
}

}  // namespace

bool IsMissingCell(const CsvCell& cell) { return cell.text.empty() || cell.text == "NA"; }

bool IsNumberCell(const CsvCell& cell) { return ParseNumber(cell.text).is_number; }

double NumberReader::Read(const CsvCell& cell, const std::string& columnName) {
  if (IsMissingCell(cell)) return MV::gMissingValue;
  const ParsedNumber number = ParseNumber(cell.text);
  const bool foreignComma = table_.separator == ',' && cell.text.find(',') != std::string::npos;
  if (!number.is_number || foreignComma) {
    throw InputError(table_.file, cell.place,
                     text::Quoted(cell.text) + " is not a number" + InColumn(columnName));
  }
  if (number.out_of_range || number.value == MV::gMissingValue) {
    throw InputError(table_.file, cell.place,
                     text::Quoted(cell.text) + " is out of range" + InColumn(columnName));
  }
  CheckDecimalCharacter(cell, columnName);
  return number.value;
}

void NumberReader::CheckDecimalCharacter(const CsvCell& cell, const std::string& columnName) {
  const std::size_t at = cell.text.find_first_of(".,");
  if (at == std::string::npos) return;
  if (!first_with_decimals_) first_with_decimals_ = cell;
  const CsvCell& first = *first_with_decimals_;
  if (first.text.find(cell.text[at]) != std::string::npos) return;
  throw InputError(table_.file, cell.place,
                   text::Quoted(cell.text) + " and " + text::Quoted(first.text) + " in line " +
                       std::to_string(first.place.line) + " have different decimal characters" +
                       InColumn(columnName));
}

}  // namespace tsx::cli
