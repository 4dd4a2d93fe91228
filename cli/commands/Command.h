#ifndef TSXPORT_CLI_COMMANDS_COMMAND_H_
#define TSXPORT_CLI_COMMANDS_COMMAND_H_

#include <string>
#include <vector>

#include "cli/commands/Streams.h"

namespace tsx::cli {

// The whole command: reads the arguments behind its name, runs, tells failures in one line on
// io.err, and returns the exit status. Never throws.
int RunCommand(const std::vector<std::string>& arguments, const Streams& io);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_COMMAND_H_
