#ifndef TSXPORT_CLI_OPTIONS_WRITINGARGUMENTS_H_
#define TSXPORT_CLI_OPTIONS_WRITINGARGUMENTS_H_

#include <string>

#include <tsxport/DialectFacts.h>

#include "cli/options/OptionTable.h"

namespace tsx::cli {

inline constexpr unsigned kLongestForecast = 10'000;

// What is typed of documents, forecasts and plots; empty where nothing is.
struct WritingArguments {
  std::string output;  // "-": standard output
  std::string format = kDialects[0].name;
  std::string name;
  std::string descriptor;
  std::string forecast;
  std::string plot;
  bool first_case_day = false;
};

OptionTable<WritingArguments> WritingOptions();

// The dialect that is asked for. Throws UsageError.
const DialectFacts& DialectOf(const WritingArguments& arguments);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_WRITINGARGUMENTS_H_
