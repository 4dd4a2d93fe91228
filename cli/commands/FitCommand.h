#ifndef TSXPORT_CLI_COMMANDS_FITCOMMAND_H_
#define TSXPORT_CLI_COMMANDS_FITCOMMAND_H_

#include "cli/commands/FitOptions.h"
#include "cli/commands/Streams.h"

namespace tsx::cli {

// Runs "tsxport fit": reads, fits, and only then writes. Returns kExitOk or kExitPartial; the
// latter after naming the hopeless series on io.err. Throws UsageError, InputError (also when every
// series is hopeless) and OutputError; the first two before anything is written.
int RunFit(const FitOptions& options, const Streams& io);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_FITCOMMAND_H_
