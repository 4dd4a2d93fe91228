#include "cli/options/HelpPages.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tsx::cli {
namespace {

using Options = std::vector<BoundOption>;

constexpr std::size_t kPageWidth = 80;
constexpr std::size_t kTextColumn = 24;

// Words of `text` in lines of at most `width`.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width) {
  std::vector<std::string> lines = {""};
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    const bool fits = lines.back().size() + 1 + word.size() <= width;
    if (!lines.back().empty() && !fits) lines.emplace_back();
    if (!lines.back().empty()) lines.back() += ' ';
    lines.back() += word;
  }
  return lines;
}

std::string Entry(const std::string& name, const std::string& text) {
  std::string entry = "  " + name;
  if (entry.size() + 2 > kTextColumn) entry += "\n";
  entry.resize(std::max(entry.size(), entry.ends_with('\n') ? 0 : kTextColumn), ' ');
  bool first = !entry.ends_with('\n');
  for (const std::string& line : Wrapped(text, kPageWidth - kTextColumn)) {
    if (!first) entry += std::string(kTextColumn, ' ');
    entry += line + "\n";
    first = false;
  }
  return entry;
}

bool IsArgument(const OptionRow& row) { return row.shape == OptionShape::kArgument; }

// "-o, --output MODEL.xml"
std::string OptionEntry(const OptionRow& row) {
  std::string name = row.name;
  if (row.letter != '\0') name.insert(0, {'-', row.letter, ',', ' '});
  if (row.value_name[0] != '\0') name += std::string(" ") + row.value_name;
  return Entry(name, row.help);
}

// The arguments in one line, and each with its text.
std::string UsageText(const CommandText& command, const Options& options) {
  std::string line = std::string("\nUsage:\n  tsxport ") + command.name;
  std::string entries;
  for (const BoundOption& option : options) {
    if (!IsArgument(*option.row)) continue;
    line += std::string(" ") + option.row->name;
    entries += OptionEntry(*option.row);
  }
  return line + " [OPTIONS]\n\n" + entries;
}

std::string GroupText(const Options& options, std::string_view group) {
  std::string text = "\n" + std::string(group) + ":\n";
  for (const BoundOption& option : options) {
    if (option.row->group == group && !IsArgument(*option.row)) text += OptionEntry(*option.row);
  }
  return text;
}

// Every group of options, in the order in which they come up.
std::string GroupTexts(const Options& options) {
  std::vector<std::string_view> seen;
  std::string text;
  for (const BoundOption& option : options) {
    const std::string_view group = option.row->group;
    if (IsArgument(*option.row) || std::find(seen.begin(), seen.end(), group) != seen.end()) {
      continue;
    }
    seen.push_back(group);
    text += GroupText(options, group);
  }
  return text;
}

std::string CommandsText(std::span<const CommandText> subcommands) {
  std::string text = "\nCommands:\n";
  for (const CommandText& one : subcommands) text += Entry(one.name, one.introduction);
  return text;
}

}  // namespace

std::string HelpPage(const CommandText& command, const Options& options) {
  return std::string(command.introduction) + "\n" + UsageText(command, options) +
         GroupTexts(options) + "\n" + command.footer;
}

std::string MainHelpPage(const CommandText& command, const Options& options,
                         std::span<const CommandText> subcommands) {
  return std::string(command.introduction) + "\n\nUsage:\n  " + command.name +
         " COMMAND [OPTIONS]\n" + CommandsText(subcommands) + GroupTexts(options) + "\n" +
         command.footer;
}

}  // namespace tsx::cli
