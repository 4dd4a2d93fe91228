#ifndef TSXPORT_CLI_OPTIONS_RUNNINGARGUMENTS_H_
#define TSXPORT_CLI_OPTIONS_RUNNINGARGUMENTS_H_

#include <string>

#include "cli/options/OptionTable.h"

namespace tsx::cli {

inline constexpr unsigned kMostJobs = 1'024;

// What is typed of the run itself.
struct RunningArguments {
  std::string jobs;  // empty: one per processor
};

OptionTable<RunningArguments> RunningOptions();

// The number of threads that is asked for. Throws UsageError.
unsigned JobsOf(const RunningArguments& arguments);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_RUNNINGARGUMENTS_H_
