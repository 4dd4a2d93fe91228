#ifndef TSXPORT_CLI_OPTIONS_HELPPAGES_H_
#define TSXPORT_CLI_OPTIONS_HELPPAGES_H_

#include <span>
#include <string>
#include <vector>

#include "cli/options/OptionTable.h"

// Help pages in 80 columns: introduction, usage, commands, options group by group with their texts
// wrapped on the right, footer.
namespace tsx::cli {

// What a page says beside the options. Lines are as they should stand on the page.
struct CommandText {
  const char* name;
  const char* introduction;  // one sentence for a subcommand, which the main page repeats
  const char* footer;
};

// The page of "tsxport NAME".
std::string HelpPage(const CommandText& command, const std::vector<BoundOption>& options);

// The page of the command itself, with its subcommands.
std::string MainHelpPage(const CommandText& command, const std::vector<BoundOption>& options,
                         std::span<const CommandText> subcommands);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_HELPPAGES_H_
