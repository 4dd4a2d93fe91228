#ifndef TSXPORT_CLI_COMMANDS_SUBCOMMAND_H_
#define TSXPORT_CLI_COMMANDS_SUBCOMMAND_H_

#include <memory>
#include <span>
#include <vector>

#include "cli/commands/Streams.h"
#include "cli/options/HelpPages.h"
#include "cli/options/OptionTable.h"

namespace tsx::cli {

// One use of a subcommand: takes what is typed, then does what that means.
class Invocation {
 public:
  Invocation() = default;
  virtual ~Invocation() = default;
  Invocation(const Invocation&) = delete;
  Invocation& operator=(const Invocation&) = delete;

  // The options, whose texts go into this object.
  virtual std::vector<BoundOption> Options() = 0;

  // Does it, once the texts are there; returns the exit status. Throws UsageError for texts that
  // mean nothing, else what Errors.h tells.
  virtual int Run(const Streams& io) const = 0;
};

struct Subcommand {
  CommandText text;
  std::unique_ptr<Invocation> (*begin)();
};

// Every subcommand, in the order of the main help page.
std::span<const Subcommand> Subcommands();

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_SUBCOMMAND_H_
