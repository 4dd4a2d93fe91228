#ifndef TSXPORT_BENCH_MEDIANS_H_
#define TSXPORT_BENCH_MEDIANS_H_

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

// What the programs share that compare competitors within one run.
namespace bench {

// The processor time of each benchmark by its name, in the unit of the table.
using Medians = std::map<std::string, double>;

// Prints the usual table and keeps the medians.
class MedianReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.aggregate_name == "median") {
        medians_[run.run_name.function_name] = run.GetAdjustedCPUTime();
      }
    }
  }

  const Medians& medians() const { return medians_; }

 private:
  Medians medians_;
};

// Repetitions in turns, so that all competitors share what the machine does meanwhile. The command
// line comes later and may say otherwise. False when it is not understood.
inline bool InitializeForMedians(int argc, char** argv) {
  static char turns[] = "--benchmark_enable_random_interleaving=true";
  static char aggregates[] = "--benchmark_display_aggregates_only=true";
  static char repetitions[] = "--benchmark_repetitions=9";
  static char time[] = "--benchmark_min_time=0.1";
  std::vector<char*> arguments = {argv[0], turns, aggregates, repetitions, time};
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  argc = static_cast<int>(arguments.size());
  benchmark::Initialize(&argc, arguments.data());
  return !benchmark::ReportUnrecognizedArguments(argc, arguments.data());
}

}  // namespace bench

#endif  // TSXPORT_BENCH_MEDIANS_H_
