#ifndef TSXPORT_CLI_OPTIONS_ARIMAARGUMENTS_H_
#define TSXPORT_CLI_OPTIONS_ARIMAARGUMENTS_H_

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "models/ArimaRequest.h"

// The part of the command line that says something of ARIMA only.
namespace tsx::cli {

// Texts as they come, before they are checked.
struct ArimaArguments {
  std::string method;
  std::vector<std::string> predictors;
  std::vector<std::string> outliers;
  bool constant = false;
  bool no_constant = false;
  bool detect_outliers = false;
};

// What --model takes for ARIMA, for messages.
extern const char kArimaModels[];

// Lets `app` read the options into `raw`, with their help texts.
void AddArimaOptions(CLI::App& app, ArimaArguments& raw);

// Whether the text of --model asks for ARIMA, be it with orders that cannot be read.
bool NamesArima(const std::string& model);

// What such a text and the options come to. Throws UsageError.
ArimaRequest CheckedArima(const std::string& model, const ArimaArguments& raw);

// Throws UsageError when an option is given, in vain beside another model.
void CheckWithoutArima(const std::string& model, const ArimaArguments& raw);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_ARIMAARGUMENTS_H_
