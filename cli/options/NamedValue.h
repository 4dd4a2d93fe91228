#ifndef TSXPORT_CLI_OPTIONS_NAMEDVALUE_H_
#define TSXPORT_CLI_OPTIONS_NAMEDVALUE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Tables of words on the command line and what they stand for.
namespace tsx::cli {

// The row of such a table; any other struct with a name and a value does as well.
template <typename Value>
struct NamedValue {
  const char* name;
  Value value;
};

// What `name` stands for; empty when it is not in the table.
template <typename Row, std::size_t kCount>
std::optional<decltype(Row::value)> FindNamed(const Row (&table)[kCount], std::string_view name) {
  for (const Row& row : table) {
    if (name == row.name) return row.value;
  }
  return std::nullopt;
}

// The words of a table, in its order.
template <typename Row, std::size_t kCount>
std::vector<std::string> NamesIn(const Row (&table)[kCount]) {
  std::vector<std::string> names;
  for (const Row& row : table) names.emplace_back(row.name);
  return names;
}

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_NAMEDVALUE_H_
