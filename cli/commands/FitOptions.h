#ifndef TSXPORT_CLI_COMMANDS_FITOPTIONS_H_
#define TSXPORT_CLI_COMMANDS_FITOPTIONS_H_

#include <string>
#include <vector>

#include <tsxport/DialectFacts.h>

#include "cli/options/ArimaArguments.h"
#include "cli/options/ModelArguments.h"
#include "cli/options/OptionTable.h"
#include "cli/options/ReadingArguments.h"
#include "cli/options/RunningArguments.h"
#include "cli/options/WritingArguments.h"
#include "cli/table/ColumnRoles.h"
#include "models/ModelRequest.h"

// The options of "tsxport fit", as they are typed and as they are meant.
namespace tsx::cli {

struct FitArguments {
  ReadingArguments reading;
  ModelArguments model;
  ArimaArguments arima;
  WritingArguments writing;
  RunningArguments running;
};

struct FitOptions {
  std::string input;  // "-": standard input
  ColumnRequest columns;
  models::ModelRequest model;
  std::string name;
  std::string descriptor;
  bool gaps = false;
  bool first_case_day = false;
  const DialectFacts* dialect = &kDialects[0];  // never null
  unsigned jobs = 1;
  unsigned forecast = 0;  // 0: not asked for
  std::string plot;       // empty: not asked for
  std::string output;     // empty: not asked for; "-": standard output
};

// Every option, to go to `arguments`, which must outlive them.
std::vector<BoundOption> BoundOptions(FitArguments& arguments);

// Throws UsageError for the first text that means nothing, and for options that exclude each other.
FitOptions MeaningOf(const FitArguments& arguments);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_FITOPTIONS_H_
