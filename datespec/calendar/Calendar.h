#ifndef TSXPORT_DATESPEC_CALENDAR_CALENDAR_H_
#define TSXPORT_DATESPEC_CALENDAR_CALENDAR_H_

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include <tsfcore/MCStatus.h>
#include <tsxport/TSXDateSpec.h>

#include "datespec/calendar/MixedRadix.h"

namespace tsx {

using PeriodType = TSXDateSpec::PeriodType;
using IndexArray = std::array<unsigned, TSXDateSpec::TSXIndexTuple::kCapacity>;

struct TimePeriod {
  PeriodType type = PeriodType::SimpleSequence;
  unsigned cycle_length = 0;      // units in one unit of the next coarser period; 0 for the base
  unsigned sub_cycle_start = 0;   // first index used
  unsigned sub_cycle_length = 0;  // indexes used, at least 1; 0 for the base, which has no end
  unsigned current_start = 0;     // index of the first case
};

// Nested periods, the lowest increment and the first case, and counting on them. Calls that are
// refused or run out of memory change nothing.
class Calendar {
 public:
  explicit Calendar(PeriodType base);

  // The rules and their codes stand at TSXDateSpec::AddPeriod. `period.sub_cycle_length` is the
  // effective one, and the current start is set here. Success puts the first case back to number 0.
  MCTime::MCStatus AddPeriod(TimePeriod period);
  MCTime::MCStatus SetLowestIncrement(unsigned increment);

  const std::vector<TimePeriod>& Periods() const { return periods_; }  // base first, types rising
  const TimePeriod& Base() const { return periods_.front(); }
  const TimePeriod& Finest() const { return periods_.back(); }
  unsigned LowestIncrement() const { return lowest_increment_; }
  bool Has(PeriodType type) const;

  // Whether `indexes`, one per period, are a position on this calendar.
  bool Admits(std::span<const unsigned> indexes) const;

  // Makes `indexes`, which must be admitted, the first case; false when its number does not fit.
  bool SetFirstCase(std::span<const unsigned> indexes);
  std::int64_t FirstCaseNumber() const { return first_case_number_; }  // [0, 2^63 - 1]

  // Steps from the first case to `indexes`, which need not be admitted; 0 for a wrong number of
  // them.
  StepCount StepsFromFirstCase(std::span<const unsigned> indexes) const;

  // The position with an absolute number; none when no admitted indexes have it. `number` is below
  // 2^64 - 1.
  std::optional<IndexArray> IndexesAt(std::uint64_t number) const;

 private:
  bool IsExcluded(std::size_t i) const { return excluded_ != 0 && i == excluded_; }
  MCTime::MCStatus CheckInsertion(std::size_t at, const TimePeriod& period) const;
  bool MeetsItsPartner(std::size_t at, const TimePeriod& period) const;
  void Insert(std::size_t at, const TimePeriod& period);
  void Recompute();
  StepCount StepsFrom(unsigned TimePeriod::*start, std::span<const unsigned> indexes) const;

  std::vector<TimePeriod> periods_;
  unsigned lowest_increment_ = 1;  // divides the finest period's length
  // The Quarter that follows from the Month behind it and does not count; 0 for none, as the base
  // always counts.
  std::size_t excluded_ = 0;
  // Steps in one unit of each period, 1 for the excluded one. Saturated ones are greater than any
  // number there is, as are the true ones, so that both give the digit 0.
  std::vector<std::uint64_t> multipliers_;
  std::int64_t first_case_number_ = 0;
};

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_CALENDAR_CALENDAR_H_
