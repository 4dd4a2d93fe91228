#ifndef TSXPORT_TESTS_SUPPORT_FAILINGALLOCATION_H_
#define TSXPORT_TESTS_SUPPORT_FAILINGALLOCATION_H_

#include <cstddef>
#include <gtest/gtest.h>
#include <new>

// Makes operator new of this thread fail on purpose, and counts what is allocated. Linking this
// replaces the global operator new of the test program, but not under ThreadSanitizer, which keeps
// its own: there nothing fails and the counts stay 0.
#if defined(__SANITIZE_THREAD__)
#define TSXPORT_ALLOCATIONS_FAIL 0
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define TSXPORT_ALLOCATIONS_FAIL 0
#endif
#endif
#ifndef TSXPORT_ALLOCATIONS_FAIL
#define TSXPORT_ALLOCATIONS_FAIL 1
#endif

namespace test {

// From now on the `n`-th allocation of this thread (1 is the next one) and all later ones throw
// std::bad_alloc; 0 lets all succeed again. Returns the number that was in force.
long FailAllocationsFrom(long n);

// Allocations of this thread since FailAllocationsFrom() was last called, and blocks of this
// thread that are alive (allocated here minus freed here, since the program began).
long AllocationCount();
long LiveBlocks();

// Bytes that those allocations asked for.
std::size_t AllocatedBytes();

// Allocations of this thread that were made to fail since FailAllocationsFrom() was last called.
long FailureCount();

// Lets all allocations succeed for one scope; afterwards counting begins anew at the next one.
class AllocationsSucceed {
 public:
  AllocationsSucceed() : before_(FailAllocationsFrom(0)) {}
  ~AllocationsSucceed() { FailAllocationsFrom(before_); }
  AllocationsSucceed(const AllocationsSucceed&) = delete;
  AllocationsSucceed& operator=(const AllocationsSucceed&) = delete;

 private:
  long before_;
};

// Runs `action` again and again, failing its 1st, 2nd, 3rd ... allocation in turn, until it runs
// through. Each failure must come out as std::bad_alloc; `afterFailure` then checks what is left.
// `action` must start from fresh state each time and free all it makes: no run, failed or not,
// may change the number of live blocks.
template <typename Action, typename AfterFailure>
void WithEveryAllocationFailing(Action action, AfterFailure afterFailure) {
  action();  // first run untouched: static buffers, locales and the like come into being
  if (!TSXPORT_ALLOCATIONS_FAIL) return;
  for (long n = 1;; ++n) {
    const long before = LiveBlocks();
    bool failed = false;
    FailAllocationsFrom(n);
    try {
      action();
    } catch (const std::bad_alloc&) {
      failed = true;
    }
    const long count = AllocationCount();
    const long failures = FailureCount();
    FailAllocationsFrom(0);
    EXPECT_EQ(LiveBlocks(), before) << "leak when allocation " << n << " fails";
    // An assertion that fails while memory is out throws std::bad_alloc itself, unseen.
    EXPECT_LE(failures, 1) << "something allocated again after allocation " << n
                           << " failed; put AllocationsSucceed before assertions";
    if (!failed) {
      EXPECT_LT(count, n) << "allocation " << n << " failed in silence";
      EXPECT_GT(n, 1) << "the action allocates nothing, so nothing was tested";
      return;
    }
    afterFailure();
    if (testing::Test::HasFailure()) return;
  }
}

template <typename Action>
void WithEveryAllocationFailing(Action action) {
  WithEveryAllocationFailing(action, [] {});
}

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_FAILINGALLOCATION_H_
