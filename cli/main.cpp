#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/commands/Command.h"
#include "cli/system/Signals.h"

int main(int argc, char** argv) {
  tsx::cli::HandleSignals();
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return tsx::cli::RunCommand(arguments, {std::cout, std::cerr, isatty(STDERR_FILENO) == 1});
}
