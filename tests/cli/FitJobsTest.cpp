#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "cli/FitJobs.h"
#include "cli/Progress.h"

namespace tsx::cli {
namespace {

void Nothing() {}

TEST(FitJobs, EachJobIsDoneOnceWhateverTheNumberOfThreads) {
  for (const unsigned threads : {1U, 2U, 7U, 200U}) {
    std::vector<int> counts(100, 0);
    int done = 0;
    RunJobs(
        counts.size(), threads, [&](std::size_t i) { ++counts[i]; }, [&] { ++done; });
    EXPECT_EQ(counts, std::vector<int>(100, 1)) << threads;
    EXPECT_EQ(done, 100) << threads;
  }
}
TEST(FitJobs, NoJobsAreNoWork) {
  RunJobs(
      0, 4, [](std::size_t) { FAIL(); }, [] { FAIL(); });
}
TEST(FitJobs, FailureOfTheLowestJobComesOut) {
  const auto job = [](std::size_t i) {
    if (i >= 3) throw std::runtime_error(std::to_string(i));
  };
  try {
    RunJobs(50, 1, job, Nothing);
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "3");
  }
}
TEST(FitJobs, AfterAFailureNoJobsAreBegun) {
  std::atomic<int> begun{0};
  const auto job = [&begun](std::size_t) {
    ++begun;
    throw std::runtime_error("no");
  };
  EXPECT_THROW(RunJobs(1000, 4, job, Nothing), std::runtime_error);
  EXPECT_LE(begun, 4);
}

TEST(Progress, BarFillsUp) {
  EXPECT_EQ(ProgressText(0, 10), "[" + std::string(40, '-') + "] 0/10 series");
  EXPECT_EQ(ProgressText(5, 10),
            "[" + std::string(20, '#') + std::string(20, '-') + "] 5/10 series");
  EXPECT_EQ(ProgressText(10, 10), "[" + std::string(40, '#') + "] 10/10 series");
}

TEST(Progress, BarShowsUpOnATerminalAndIsWipedOut) {
  std::ostringstream out;
  {
    ProgressBar bar(out, true, 2);
    bar.Advance();
    EXPECT_EQ(out.str(), "") << "work that is quickly done needs no bar";
    std::this_thread::sleep_for(std::chrono::milliseconds(350));
    bar.Advance();
    EXPECT_EQ(out.str(), "\r" + ProgressText(2, 2));
  }
  EXPECT_EQ(out.str(), "\r" + ProgressText(2, 2) + "\r\x1b[K");
}
TEST(Progress, NothingIsDrawnElsewhere) {
  std::ostringstream out;
  {
    ProgressBar bar(out, false, 2);
    std::this_thread::sleep_for(std::chrono::milliseconds(350));
    bar.Advance();
  }
  EXPECT_EQ(out.str(), "");
}

}  // namespace
}  // namespace tsx::cli
