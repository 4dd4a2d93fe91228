#include "cli/table/CsvReader.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "text/Quoting.h"
#include "text/Utf8.h"
#include "text/Words.h"

namespace tsx::cli {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Walks over the text and knows where it is.
class Scanner {
 public:
  Scanner(const std::string& file, std::string_view text) : file_(file), text_(text) {}

  bool AtEnd() const { return position_ == text_.size(); }
  bool At(char c) const { return !AtEnd() && text_[position_] == c; }
  bool AtLineEnd() const { return At('\n') || At('\r'); }
  text::Place Here() const { return {line_, column_}; }

  // Takes one byte; a CR LF is two bytes and one line end.
  char Take() {
    const char c = text_[position_++];
    const bool carriageReturnOfPair = c == '\r' && At('\n');
    if ((c == '\n' || c == '\r') && !carriageReturnOfPair) {
      ++line_;
      column_ = 1;
    } else if (text::StartsCharacter(c) && !carriageReturnOfPair) {
      ++column_;
    }
    return c;
  }

  void TakeLineEnd() {
    if (Take() == '\r' && At('\n')) Take();
  }

  void SkipBlanks() {
    while (At(' ') || At('\t')) Take();
  }

  // Whether nothing but empty lines is left; blanks around cells do not count.
  bool OnlyEmptyLinesLeft() const {
    return text_.find_first_not_of("\r\n\t ", position_) == std::string_view::npos;
  }

  [[noreturn]] void Fail(text::Place place, const std::string& cause) const {
    throw InputError(file_, place, cause);
  }

 private:
  const std::string& file_;
  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t line_ = 1;
  std::size_t column_ = 1;
};

CsvCell TakeQuotedCell(Scanner& in, char separator) {
  CsvCell cell{"", in.Here()};
  in.Take();  // the opening quote
  while (true) {
    if (in.AtEnd()) in.Fail(cell.place, "the quote that opens here is never closed");
    const char c = in.Take();
    if (c == '"' && !in.At('"')) break;
    if (c == '"') in.Take();  // the second of two quotes, which stand for one
    cell.text += c;
  }
  in.SkipBlanks();
  if (!in.AtEnd() && !in.AtLineEnd() && !in.At(separator)) {
    in.Fail(in.Here(), "there is text behind a closing quote");
  }
  return cell;
}

CsvCell TakeCell(Scanner& in, char separator) {
  in.SkipBlanks();
  if (in.At('"')) return TakeQuotedCell(in, separator);

  CsvCell cell{"", in.Here()};
  while (!in.AtEnd() && !in.AtLineEnd() && !in.At(separator)) cell.text += in.Take();
  cell.text = std::string(text::Trimmed(cell.text));
  return cell;
}

// Takes one line (several where quotes hold line ends) and its end.
std::vector<CsvCell> TakeRow(Scanner& in, char separator) {
  std::vector<CsvCell> row;
  row.push_back(TakeCell(in, separator));
  while (in.At(separator)) {
    in.Take();
    row.push_back(TakeCell(in, separator));
  }
  if (!in.AtEnd()) in.TakeLineEnd();
  return row;
}

char ChooseSeparator(std::string_view text) {
  std::size_t commas = 0;
  std::size_t semicolons = 0;
  bool quoted = false;
  for (const char c : text) {
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    if (c == '\n' || c == '\r') break;
    if (c == ',') ++commas;
    if (c == ';') ++semicolons;
  }
  return semicolons > 0 && semicolons >= commas ? ';' : ',';
}

// Where byte `position` of the text is.
text::Place PlaceOfByte(const std::string& file, std::string_view text, std::size_t position) {
  Scanner in(file, text.substr(0, position));
  while (!in.AtEnd()) in.Take();
  return in.Here();
}

void CheckBytes(const std::string& file, std::string_view text) {
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
    throw InputError(file, {1, 1}, "the file is UTF-16; save it as UTF-8");
  }
  const std::size_t nul = text.find('\0');
  const std::size_t invalid = text::FindInvalidUtf8(text);
  if (nul < invalid) throw InputError(file, PlaceOfByte(file, text, nul), "there is a NUL byte");
  if (invalid != std::string_view::npos) {
    throw InputError(file, PlaceOfByte(file, text, invalid),
                     "the text is not UTF-8 from here on; save the file as UTF-8");
  }
}

void CheckHeader(const CsvTable& table) {
  std::map<std::string, std::size_t> seen;
  for (std::size_t i = 0; i < table.header.size(); ++i) {
    const CsvCell& name = table.header[i];
    if (!text::IsCleanName(name.text)) {
      throw InputError(table.file, name.place,
                       "the column name " + text::Quoted(name.text) + " holds control characters");
    }
    const auto [first, isNew] = seen.emplace(name.text, i);
    if (isNew || name.text.empty()) continue;
    throw InputError(table.file, name.place,
                     "the column name " + text::Quoted(name.text) + " has come before, as column " +
                         std::to_string(first->second + 1));
  }
}

void CheckLength(const CsvTable& table, const std::vector<CsvCell>& row) {
  const std::size_t expected = table.header.size();
  if (row.size() == expected) return;
  const text::Place place = row.size() > expected ? row[expected].place : row.back().place;
  throw InputError(table.file, place,
                   "the line has " + std::to_string(row.size()) +
                       (row.size() == 1 ? " cell" : " cells") + ", the header has " +
                       std::to_string(expected));
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// All bytes of an open file; nothing, with errno set, when reading fails.
std::optional<std::string> ReadAll(std::FILE* file) {
  std::string bytes;
  std::string block(std::size_t{1} << 16, '\0');
  while (const std::size_t count = std::fread(block.data(), 1, block.size(), file)) {
    bytes.append(block, 0, count);
  }
  if (std::ferror(file) != 0) return std::nullopt;
  return bytes;
}

[[noreturn]] void FailToRead(const std::string& path) {
  throw InputError(path, {}, "cannot be read: " + std::generic_category().message(errno));
}

}  // namespace

CsvTable ParseCsv(std::string file, std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  CsvTable table;
  table.file = std::move(file);
  CheckBytes(table.file, bytes);
  Scanner in(table.file, bytes);
  if (in.OnlyEmptyLinesLeft()) in.Fail({1, 1}, "the file is empty");

  table.separator = ChooseSeparator(bytes);
  table.header = TakeRow(in, table.separator);
  CheckHeader(table);
  while (!in.OnlyEmptyLinesLeft()) {
    table.rows.push_back(TakeRow(in, table.separator));
    CheckLength(table, table.rows.back());
  }
  if (table.rows.empty()) in.Fail(in.Here(), "there is no line after the header");
  return table;
}

CsvTable ReadCsvFile(const std::string& path) {
  const bool standardInput = path == "-";
  File file(standardInput ? stdin : std::fopen(path.c_str(), "rb"),
            standardInput ? [](std::FILE*) { return 0; } : std::fclose);
  if (file == nullptr) FailToRead(path);
  const std::optional<std::string> bytes = ReadAll(file.get());
  if (!bytes) FailToRead(path);
  return ParseCsv(standardInput ? "<standard input>" : path, *bytes);
}

std::string CsvText(const CsvTable& table) {
  std::string text;
  const auto addRow = [&](const std::vector<CsvCell>& row) {
    std::vector<std::string> fields;
    fields.reserve(row.size());
    for (const CsvCell& cell : row) fields.push_back(text::CsvField(cell.text));
    // An empty line at the end would not be read as a row; a pair of quotes is.
    const std::string line = text::Joined(fields, std::string_view(&table.separator, 1));
    text += (line.empty() ? "\"\"" : line) + '\n';
  };
  addRow(table.header);
  std::for_each(table.rows.begin(), table.rows.end(), addRow);
  return text;
}

}  // namespace tsx::cli
