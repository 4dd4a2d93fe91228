#ifndef TSXPORT_CLI_SYSTEM_PROGRESS_H_
#define TSXPORT_CLI_SYSTEM_PROGRESS_H_

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <ostream>
#include <string>
#include <thread>

namespace tsx::cli {

// The bar for `done` of `total` jobs, 0 <= done <= total: "[#####-----]  5/10 series".
std::string ProgressText(std::size_t done, std::size_t total);

// A progress bar on a terminal. It shows up when the work takes longer than a moment, be it that of
// the first job, and is wiped out at the end. Nobody else writes to the terminal as long as it
// lives.
class ProgressBar {
 public:
  // Draws nothing unless `isTerminal`.
  ProgressBar(std::ostream& out, bool isTerminal, std::size_t total);
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void Advance();  // one more job is done

 private:
  void DrawUntilFinished();
  bool IsFinishedWithin(std::unique_lock<std::mutex>& lock, std::chrono::milliseconds time);

  std::ostream& out_;
  const std::size_t total_;
  std::mutex mutex_;
  std::condition_variable finish_;
  std::size_t done_ = 0;
  bool finished_ = false;
  std::thread drawer_;  // on a terminal
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_SYSTEM_PROGRESS_H_
