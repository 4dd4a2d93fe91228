#include "cli/Progress.h"

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
    : out_(out), is_terminal_(isTerminal), total_(total), next_drawing_(Clock::now() + kPatience) {}

ProgressBar::~ProgressBar() {
  if (drawn_) out_ << "\r\x1b[K" << std::flush;
}

void ProgressBar::Advance() {
  ++done_;
  if (!is_terminal_ || Clock::now() < next_drawing_) return;
  out_ << '\r' << ProgressText(done_, total_) << std::flush;
  drawn_ = true;
  next_drawing_ = Clock::now() + kInterval;
}

}  // namespace tsx::cli
