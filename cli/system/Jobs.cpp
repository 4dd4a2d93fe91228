#include "cli/system/Jobs.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace tsx::cli {
namespace {

// What the threads share.
class JobQueue {
 public:
  JobQueue(std::size_t count, const std::function<void(std::size_t)>& job,
           const std::function<void()>& done)
      : count_(count), job_(job), done_(done) {}

  // Takes and does jobs until there are none left.
  void Work() {
    for (std::size_t i = next_++; i < count_; i = next_++) {
      try {
        job_(i);
        const std::lock_guard lock(mutex_);
        done_();
      } catch (...) {
        Fail(i, std::current_exception());
      }
    }
  }

  void RethrowFailure() const {
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  void Fail(std::size_t index, std::exception_ptr failure) {
    const std::lock_guard lock(mutex_);
    next_ = count_;
    if (failure_ && failed_index_ < index) return;
    failed_index_ = index;
    failure_ = std::move(failure);
  }

  const std::size_t count_;
  const std::function<void(std::size_t)>& job_;
  const std::function<void()>& done_;
  std::atomic<std::size_t> next_{0};
  std::mutex mutex_;
  std::size_t failed_index_ = 0;
  std::exception_ptr failure_;
};

}  // namespace

void RunJobs(std::size_t count, unsigned threads, const std::function<void(std::size_t)>& job,
             const std::function<void()>& done) {
  JobQueue queue(count, job, done);
  std::vector<std::thread> helpers;
  const std::size_t wanted = std::min<std::size_t>(threads, count);
  helpers.reserve(wanted);
  try {
    while (helpers.size() + 1 < wanted) helpers.emplace_back([&queue] { queue.Work(); });
  } catch (const std::system_error&) {  // the machine has no more threads to give
  }
  queue.Work();
  for (std::thread& helper : helpers) helper.join();
  queue.RethrowFailure();
}

}  // namespace tsx::cli
