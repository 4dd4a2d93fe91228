#ifndef TSXPORT_CLI_OPTIONS_ARIMAARGUMENTS_H_
#define TSXPORT_CLI_OPTIONS_ARIMAARGUMENTS_H_

#include <string>
#include <vector>

#include <tsffit/Arima.h>

#include "cli/options/OptionTable.h"

namespace tsx::cli {

// What is typed of ARIMA only; empty where nothing is. ModelMeaning.h tells what it comes to.
struct ArimaArguments {
  bool constant = false;
  bool no_constant = false;
  std::string method;
  std::vector<std::string> predictors;
  std::vector<std::string> outliers;
  bool detect_outliers = false;
};

OptionTable<ArimaArguments> ArimaOptions();

// What a text of --method names. Throws UsageError.
tsffit::ArimaMethod ParseArimaMethod(const std::string& text);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_ARIMAARGUMENTS_H_
