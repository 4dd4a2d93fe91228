#ifndef TSXPORT_TESTS_CLI_COMMANDS_COMMANDRUN_H_
#define TSXPORT_TESTS_CLI_COMMANDS_COMMANDRUN_H_

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "cli/Errors.h"
#include "cli/commands/Command.h"

// Command lines that end before anything is read, run in the test's own process.
namespace test {

// The page that the arguments ask for.
inline std::string PageOf(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(tsx::cli::RunCommand(arguments, {out, err}), tsx::cli::kExitOk) << err.str();
  return out.str();
}

// Why the arguments are refused: the lines for people, without the command's name and the last
// line end.
inline std::string UsageErrorOf(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  if (tsx::cli::RunCommand(arguments, {out, err}) != tsx::cli::kExitInput) return "no error";
  const std::string text = err.str();
  const std::string front = "tsxport: ";
  EXPECT_TRUE(text.starts_with(front) && text.ends_with('\n')) << text;
  return text.substr(front.size(), text.size() - front.size() - 1);
}

}  // namespace test

#endif  // TSXPORT_TESTS_CLI_COMMANDS_COMMANDRUN_H_
