#ifndef TSXPORT_CLI_SYSTEM_JOBS_H_
#define TSXPORT_CLI_SYSTEM_JOBS_H_

#include <cstddef>
#include <functional>

namespace tsx::cli {

// Calls job(0) ... job(count - 1), each once, on up to `threads` threads (at least 1; this one is
// among them), and returns when all are done. `done` is called after each job, on any thread, one
// call at a time. Jobs write to places of their own, so their order leaves no trace.
//
// When jobs throw, no further ones are begun, and of the exceptions that of the lowest index comes
// out. A machine that refuses threads gets by with fewer.
void RunJobs(std::size_t count, unsigned threads, const std::function<void(std::size_t)>& job,
             const std::function<void()>& done);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_SYSTEM_JOBS_H_
