#ifndef TSXPORT_CLI_COMMANDS_FIT_H_
#define TSXPORT_CLI_COMMANDS_FIT_H_

#include <memory>

#include "cli/commands/Subcommand.h"

// "tsxport fit" as one of the subcommands.
namespace tsx::cli {

extern const char kFitIntroduction[];
extern const char kFitFooter[];

std::unique_ptr<Invocation> BeginFit();

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_FIT_H_
