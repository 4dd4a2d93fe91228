#ifndef TSXPORT_CLI_OPTIONS_OPTIONS_H_
#define TSXPORT_CLI_OPTIONS_OPTIONS_H_

#include <optional>
#include <string>
#include <vector>

#include "cli/commands/Document.h"
#include "cli/table/ColumnRoles.h"
#include "models/ModelChoice.h"

namespace tsx::cli {

inline constexpr unsigned kLongestSeason = 1'000'000;
inline constexpr unsigned kLongestForecast = 10'000;
inline constexpr unsigned kMostJobs = 1'024;

// What "tsxport fit" is asked for.
struct FitOptions {
  std::string input;  // "-": standard input
  ColumnRequest columns;
  ModelRequest model;
  std::string name;
  std::string descriptor;
  bool gaps = false;
  bool first_case_day = false;
  DocumentFormat format = DocumentFormat::kTscxml;
  unsigned jobs = 1;
  unsigned forecast = 0;  // 0: not asked for
  std::string plot;       // empty: not asked for
  std::string output;     // empty: not asked for; "-": standard output
};

// What the command line comes to: a page to print, or a fit.
struct Invocation {
  std::string page;
  std::optional<FitOptions> fit;
};

// Reads the arguments behind the command's name. Throws UsageError.
Invocation ParseCommandLine(const std::vector<std::string>& arguments);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_OPTIONS_H_
