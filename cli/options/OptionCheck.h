#ifndef TSXPORT_CLI_OPTIONS_OPTIONCHECK_H_
#define TSXPORT_CLI_OPTIONS_OPTIONCHECK_H_

#include <cstddef>
#include <optional>
#include <string>

#include "cli/options/NamedValue.h"
#include "cli/options/OptionRow.h"

// Checks of values as the rows of their options ask for them. What does not pass is a UsageError
// that names the option and the value.
namespace tsx::cli {

// "--transform: 'cube' is none of none, log, sqrt". The row has choices.
[[noreturn]] void RefuseChoice(const OptionRow& row, const std::string& text);

// What `text` stands for in the table that the row's choices come from.
template <typename Value, std::size_t kCount>
Value CheckedChoice(const OptionRow& row, const NamedValue<Value> (&table)[kCount],
                    const std::string& text) {
  const std::optional<Value> value = FindNamed(table, text);
  if (!value) RefuseChoice(row, text);
  return *value;
}

// The number in `text`, from 1 to the row's bound.
unsigned CheckedCount(const OptionRow& row, const std::string& text);

// Passes UTF-8 without control characters.
void CheckClean(const OptionRow& row, const std::string& text);

// Choices that are the words of a table, for a row.
template <typename Value, std::size_t kCount>
std::vector<OptionChoice> ChoicesIn(const NamedValue<Value> (&table)[kCount]) {
  std::vector<OptionChoice> choices;
  for (const NamedValue<Value>& named : table) choices.push_back({named.name});
  return choices;
}

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_OPTIONCHECK_H_
