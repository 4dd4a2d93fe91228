#ifndef TSXPORT_CLI_ARIMAARGUMENTS_H_
#define TSXPORT_CLI_ARIMAARGUMENTS_H_

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "cli/ArimaRequest.h"

// The part of the command line that says something of ARIMA only.
namespace tsx::cli {

// Texts as they come, before they are checked.
struct ArimaArguments {
  std::string method;
  std::vector<std::string> predictors;
  std::vector<std::string> outliers;
  bool constant = false;
  bool no_constant = false;
};

// Lets `app` read the options into `raw`, with their help texts.
void AddArimaOptions(CLI::App& app, ArimaArguments& raw);

// What the options come to, beside a --model that gives orders. Throws UsageError.
ArimaRequest CheckedArima(const std::string& model, const ArimaArguments& raw);

// Throws UsageError when an option is given, in vain beside another model.
void CheckWithoutArima(const std::string& model, const ArimaArguments& raw);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_ARIMAARGUMENTS_H_
