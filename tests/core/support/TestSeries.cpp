#include "core/support/TestSeries.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <sstream>
#include <stdexcept>

#include <tsfcore/tsfcore.h>

#include "support/Golden.h"

namespace test {

namespace {

constexpr std::array<const char*, 7> kKindNames = {
    "winters-additive",       "brown",           "damped-trend", "holt",
    "winters-multiplicative", "simple-seasonal", "simple"};

std::vector<std::string> Split(const std::string& line, char separator) {
  std::vector<std::string> fields;
  std::istringstream in(line);
  std::string field;
  while (std::getline(in, field, separator)) fields.push_back(field);
  if (!line.empty() && line.back() == separator) fields.emplace_back();
  return fields;
}

double Value(const std::string& text) {
  return text.empty() || text == "NA" ? MV::gMissingValue : std::stod(text);
}

std::vector<std::vector<std::string>> AllRows(const std::string& path) {
  std::istringstream in(ReadTestFile(path));
  std::vector<std::vector<std::string>> rows;
  std::string line;
  while (std::getline(in, line)) rows.push_back(Split(line, ','));
  return rows;
}

}  // namespace

std::vector<std::vector<std::string>> ReadRows(const std::string& path) {
  std::vector<std::vector<std::string>> rows = AllRows(path);
  rows.erase(rows.begin());
  return rows;
}

std::vector<double> Numbers(const std::string& text) {
  std::vector<double> numbers;
  for (const std::string& word : Split(text, ' ')) numbers.push_back(Value(word));
  return numbers;
}

std::vector<double> DataColumn(const std::string& file, const std::string& column) {
  const auto rows = AllRows("data/" + file);
  const auto found = std::find(rows[0].begin(), rows[0].end(), column);
  if (found == rows[0].end()) throw std::runtime_error("no column " + column + " in " + file);
  const auto at = static_cast<std::size_t>(found - rows[0].begin());
  std::vector<double> values;
  for (std::size_t row = 1; row < rows.size(); ++row) values.push_back(Value(rows[row].at(at)));
  return values;
}

ReferenceTable ReadReference(const std::string& file) {
  ReferenceTable table;
  for (const auto& row : ReadRows("reference/" + file)) {
    table[row.at(0)][row.at(1)] = Numbers(row.at(2));
  }
  return table;
}

int KindByName(const std::string& name) {
  const auto* found = std::find(kKindNames.begin(), kKindNames.end(), name);
  if (found == kKindNames.end()) throw std::runtime_error("no kind " + name);
  return static_cast<int>(found - kKindNames.begin());
}

std::string KindName(int kind) { return kKindNames.at(static_cast<std::size_t>(kind)); }

std::vector<double> Generate(std::size_t n, const std::function<double(std::size_t)>& f) {
  std::vector<double> values;
  for (std::size_t t = 0; t < n; ++t) values.push_back(f(t));
  return values;
}

double Noise(std::size_t t) {
  auto state = static_cast<std::uint32_t>(t * 2654435761U + 12345U);
  double sum = 0;
  for (int i = 0; i < 12; ++i) {
    state = state * 1664525U + 1013904223U;
    sum += static_cast<double>(state) / 4294967296.0;
  }
  return sum - 6;
}

tsffit::SmoothingFit Fit(const std::vector<double>& series, int kind, unsigned seasonLength,
                         int functionType) {
  tsffit::SmoothingOptions options;
  options.kind = kind;
  options.season_length = seasonLength;
  options.function_type = functionType;
  return tsffit::FitSmoothing(series, options);
}

const ESForecastState& StateOf(const TSFModel& model) {
  return dynamic_cast<const ESForecastState&>(*model.GetImp()->GetForecastState());
}

}  // namespace test
