#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <mutex>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <thread>
#include <vector>

#include "cli/system/Jobs.h"
#include "cli/system/Progress.h"

namespace tsx::cli {
namespace {

void Nothing() {}

TEST(Jobs, EachJobIsDoneOnceWhateverTheNumberOfThreads) {
  for (const unsigned threads : {1U, 2U, 7U, 200U}) {
    std::vector<int> counts(100, 0);
    int done = 0;
    RunJobs(
        counts.size(), threads, [&](std::size_t i) { ++counts[i]; }, [&] { ++done; });
    EXPECT_EQ(counts, std::vector<int>(100, 1)) << threads;
    EXPECT_EQ(done, 100) << threads;
  }
}

TEST(Jobs, NoJobsAreNoWork) {
  RunJobs(
      0, 4, [](std::size_t) { FAIL(); }, [] { FAIL(); });
}

TEST(Jobs, FailureOfTheLowestJobComesOut) {
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

TEST(Jobs, AfterAFailureNoJobsAreBegun) {
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

// A terminal to look at while somebody writes on it.
class Screen : public std::streambuf {
 public:
  std::string Text() const {
    const std::lock_guard lock(mutex_);
    return text_;
  }
  // Whether the text ends so within ten seconds.
  bool WillShow(const std::string& end) const {
    for (int i = 0; i < 1000; ++i) {
      if (Text().ends_with(end)) return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
  }

 protected:
  int_type overflow(int_type c) override {
    const std::lock_guard lock(mutex_);
    text_ += traits_type::to_char_type(c);
    return c;
  }

 private:
  mutable std::mutex mutex_;
  std::string text_;
};

TEST(Progress, BarShowsUpOnATerminalAndIsWipedOut) {
  Screen screen;
  std::ostream out(&screen);
  {
    ProgressBar bar(out, true, 2);
    EXPECT_TRUE(screen.WillShow("\r" + ProgressText(0, 2))) << "while the first job is under way";
    bar.Advance();
    EXPECT_TRUE(screen.WillShow("\r" + ProgressText(1, 2)));
  }
  EXPECT_EQ(screen.Text(), "\r" + ProgressText(0, 2) + "\r" + ProgressText(1, 2) + "\r\x1b[K");
}

TEST(Progress, WorkThatIsQuicklyDoneNeedsNoBar) {
  std::ostringstream out;
  {
    ProgressBar bar(out, true, 2);
    bar.Advance();
    bar.Advance();
  }
  EXPECT_EQ(out.str(), "");
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
