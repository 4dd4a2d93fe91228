#ifndef TSXPORT_CLI_COMMANDS_STREAMS_H_
#define TSXPORT_CLI_COMMANDS_STREAMS_H_

#include <ostream>

namespace tsx::cli {

// Where a run of the command prints.
struct Streams {
  std::ostream& out;
  std::ostream& err;
  bool err_is_terminal = false;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_STREAMS_H_
