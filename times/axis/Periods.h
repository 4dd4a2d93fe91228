#ifndef TSXPORT_TIMES_AXIS_PERIODS_H_
#define TSXPORT_TIMES_AXIS_PERIODS_H_

#include <array>
#include <cstdint>
#include <optional>

#include <tsxport/TSXDateSpec.h>

// The periods of a calendar, and what its indexes are worth.
namespace tsxtimes {

// As TSXDateSpec::AddPeriod() takes it; the base has no numbers.
struct Period {
  TSXDateSpec::PeriodType type = TSXDateSpec::SimpleSequence;
  unsigned cycle_length = 0;
  unsigned start = 0;   // of the part of the cycle that occurs
  unsigned length = 0;  // of that part; 0 for the whole cycle
};

// `i` is below the period count.
Period PeriodOf(const TSXDateSpec& spec, unsigned i);
Period FinestPeriodOf(const TSXDateSpec& spec);

// One number per period, coarsest first.
using IndexValues = std::array<std::int64_t, TSXDateSpec::TSXIndexTuple::kCapacity>;

// What one of each index is worth, in the calendar's counts (see Counts.h).
struct Weights {
  IndexValues of_index{};   // 0 for a quarter that follows from the month behind it
  unsigned count = 0;       // of periods, at least 1
  std::int64_t origin = 0;  // the count at the base's index 0
  TSXDateSpec::PeriodType base = TSXDateSpec::SimpleSequence;
};

// `stride` is in units of a calendar's only period. Empty for a calendar whose periods are no spans
// of time, or do not hold as many of the next one as time does.
std::optional<Weights> WeightsOf(const TSXDateSpec& spec, std::int64_t stride);

// The indexes of the last position that begins no later than `distance` counts after the origin;
// `distance` is not negative.
IndexValues IndexesAt(const Weights& weights, std::int64_t distance);

}  // namespace tsxtimes

#endif  // TSXPORT_TIMES_AXIS_PERIODS_H_
