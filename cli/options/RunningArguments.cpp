#include "cli/options/RunningArguments.h"

#include <algorithm>
#include <thread>

#include "cli/options/OptionCheck.h"

namespace tsx::cli {
namespace {

constexpr OptionEntry<RunningArguments> kOptions[] = {
    {{.shape = OptionShape::kValue,
      .name = "--jobs",
      .value_name = "N",
      .group = kRunningGroup,
      .help = "Fit on so many threads. Default: one per processor. The output is the same whatever "
              "their number",
      .most = kMostJobs},
     &RunningArguments::jobs},
    {{.shape = OptionShape::kHelp,
      .name = "--help",
      .letter = 'h',
      .group = kRunningGroup,
      .help = "Show this page"}}};
static_assert(AreSound<RunningArguments>(kOptions));

}  // namespace

OptionTable<RunningArguments> RunningOptions() { return kOptions; }

unsigned JobsOf(const RunningArguments& arguments) {
  if (arguments.jobs.empty()) return std::clamp(std::thread::hardware_concurrency(), 1U, kMostJobs);
  return CheckedCount(RowOf(RunningOptions(), &RunningArguments::jobs), arguments.jobs);
}

}  // namespace tsx::cli
