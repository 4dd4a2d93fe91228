#ifndef TSXPORT_CLI_OPTIONS_PARSER_H_
#define TSXPORT_CLI_OPTIONS_PARSER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/options/OptionTable.h"

namespace tsx::cli {

// A command as the parser sees it.
struct CommandSyntax {
  const char* name;
  std::vector<BoundOption> options;
};

// What a command line asks for.
struct ParsedLine {
  enum class Asked { kRun, kHelp, kVersion };
  Asked asked = Asked::kRun;
  std::optional<std::size_t> subcommand{};  // its index; empty: none, and kRun is not asked for
};

// Reads the arguments behind the command's name: options of the command itself, then a subcommand
// and its options, whose texts go to where they are bound. Throws UsageError for what no row takes,
// for a value that is missing or empty, and when there is no subcommand.
ParsedLine Parse(const CommandSyntax& command, const std::vector<CommandSyntax>& subcommands,
                 const std::vector<std::string>& arguments);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_PARSER_H_
