#ifndef TSXPORT_CLI_OPTIONS_READINGARGUMENTS_H_
#define TSXPORT_CLI_OPTIONS_READINGARGUMENTS_H_

#include <string>
#include <vector>

#include "cli/options/OptionTable.h"

namespace tsx::cli {

// What is typed of the table to read; empty where nothing is.
struct ReadingArguments {
  std::string input;  // "-": standard input
  std::vector<std::string> variables;
  std::string id;
  std::string time;
  bool gaps = false;
};

OptionTable<ReadingArguments> ReadingOptions();

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_READINGARGUMENTS_H_
