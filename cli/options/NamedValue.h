#ifndef TSXPORT_CLI_OPTIONS_NAMEDVALUE_H_
#define TSXPORT_CLI_OPTIONS_NAMEDVALUE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Tables of words on the command line and what they stand for.
namespace tsx::cli {

template <typename Value>
struct NamedValue {
  const char* name;
  Value value;
};

// What `name` stands for; empty when it is not in the table.
template <typename Value, std::size_t kCount>
std::optional<Value> FindNamed(const NamedValue<Value> (&table)[kCount], std::string_view name) {
  for (const NamedValue<Value>& row : table) {
    if (name == row.name) return row.value;
  }
  return std::nullopt;
}

// The words of a table, in its order.
template <typename Value, std::size_t kCount>
std::vector<std::string> NamesIn(const NamedValue<Value> (&table)[kCount]) {
  std::vector<std::string> names;
  for (const NamedValue<Value>& row : table) names.emplace_back(row.name);
  return names;
}

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_NAMEDVALUE_H_
