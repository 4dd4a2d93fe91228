#ifndef TSXPORT_TESTS_SUPPORT_TABLES_H_
#define TSXPORT_TESTS_SUPPORT_TABLES_H_

#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "cli/table/CsvReader.h"

namespace test {

inline tsx::cli::CsvTable Table(std::string_view text) {
  return tsx::cli::ParseCsv("table.csv", text);
}

// What an action throws, as people read it; "no error" when it throws nothing.
template <typename Action>
std::string ErrorOf(Action action) {
  try {
    action();
  } catch (const std::exception& error) {
    return error.what();
  }
  return "no error";
}

inline std::vector<std::string> Texts(const std::vector<tsx::cli::CsvCell>& cells) {
  std::vector<std::string> texts;
  for (const tsx::cli::CsvCell& cell : cells) texts.push_back(cell.text);
  return texts;
}

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_TABLES_H_
