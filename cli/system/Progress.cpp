#include "cli/system/Progress.h"

#include <system_error>

namespace tsx::cli {
namespace {

constexpr std::chrono::milliseconds kPatience(300);  // before the bar shows up
constexpr std::chrono::milliseconds kInterval(100);  // between two drawings
constexpr std::size_t kWidth = 40;

}  // namespace

std::string ProgressText(std::size_t done, std::size_t total) {
  const std::size_t filled = total == 0 ? kWidth : done * kWidth / total;
  return "[" + std::string(filled, '#') + std::string(kWidth - filled, '-') + "] " +
         std::to_string(done) + "/" + std::to_string(total) + " series";
}

ProgressBar::ProgressBar(std::ostream& out, bool isTerminal, std::size_t total)
    : out_(out), total_(total) {
  if (!isTerminal) return;
  try {
    drawer_ = std::thread([this] { DrawUntilFinished(); });
  } catch (const std::system_error&) {  // the machine has no more threads to give
  }
}

ProgressBar::~ProgressBar() {
  if (!drawer_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    finished_ = true;
  }
  finish_.notify_one();
  drawer_.join();
}

void ProgressBar::Advance() {
  const std::lock_guard lock(mutex_);
  ++done_;
}

void ProgressBar::DrawUntilFinished() {
  std::unique_lock lock(mutex_);
  if (IsFinishedWithin(lock, kPatience)) return;
  std::string shown;
  do {
    const std::string text = ProgressText(done_, total_);
    if (text != shown) out_ << '\r' << text << std::flush;
    shown = text;
  } while (!IsFinishedWithin(lock, kInterval));
  out_ << "\r\x1b[K" << std::flush;
}

bool ProgressBar::IsFinishedWithin(std::unique_lock<std::mutex>& lock,
                                   std::chrono::milliseconds time) {
  return finish_.wait_for(lock, time, [this] { return finished_; });
}

}  // namespace tsx::cli
