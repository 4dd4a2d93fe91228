#ifndef TSXPORT_CLI_PROGRESS_H_
#define TSXPORT_CLI_PROGRESS_H_

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>

namespace tsx::cli {

// The bar for `done` of `total` jobs, 0 <= done <= total: "[#####-----]  5/10 series".
std::string ProgressText(std::size_t done, std::size_t total);

// A progress bar on a terminal. It shows up when the work takes longer than a moment and is wiped
// out at the end. Calls come one at a time.
class ProgressBar {
 public:
  // Draws nothing unless `isTerminal`.
  ProgressBar(std::ostream& out, bool isTerminal, std::size_t total);
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void Advance();  // one more job is done

 private:
  using Clock = std::chrono::steady_clock;

  std::ostream& out_;
  const bool is_terminal_;
  const std::size_t total_;
  std::size_t done_ = 0;
  bool drawn_ = false;
  Clock::time_point next_drawing_;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_PROGRESS_H_
