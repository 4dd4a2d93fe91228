#ifndef TSXPORT_TESTS_TIMES_RANDOMTIMES_H_
#define TSXPORT_TESTS_TIMES_RANDOMTIMES_H_

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <tsxtimes/TimeText.h>

namespace test {

// Columns of times as people write them, some of them with holes, made by the standard library's
// calendar and not by ours.
class RandomTimes {
 public:
  explicit RandomTimes(unsigned seed) : random_(seed) {}

  struct Column {
    tsxtimes::TimeUnit unit = tsxtimes::TimeUnit::kNumber;
    std::vector<std::string> texts;
  };

  // Of all units in turn.
  Column Next();

 private:
  Column Numbers();
  Column Years();
  Column Quarters();
  Column Months();
  Column Dates();
  Column DatesOfMonths();
  Column WorkingDays();
  Column WorkingHours();
  Column Clock();

  std::int64_t Among(std::int64_t least, std::int64_t most);
  // Counts from `first` on; with holes every other time.
  std::vector<std::int64_t> Steps(std::int64_t first, std::int64_t step);

  std::mt19937_64 random_;
  unsigned turn_ = 0;
};

}  // namespace test

#endif  // TSXPORT_TESTS_TIMES_RANDOMTIMES_H_
