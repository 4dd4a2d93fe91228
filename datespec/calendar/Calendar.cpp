#include "datespec/calendar/Calendar.h"

#include <algorithm>
#include <limits>

#include "datespec/calendar/PeriodRules.h"
#include "datespec/calendar/StatusCodes.h"

namespace tsx {

using MCTime::MCStatus;

Calendar::Calendar(PeriodType base) : periods_{{.type = base}}, multipliers_{1} {}

MCStatus Calendar::AddPeriod(TimePeriod period) {
  if (!FitsItsCycle(period)) return MCStatus(kCycleTooShort);
  if (period.type <= Base().type) return MCStatus(kNotFinerThanBase);

  const auto place = std::lower_bound(periods_.begin() + 1, periods_.end(), period.type,
                                      [](const TimePeriod& p, PeriodType t) { return p.type < t; });
  const auto at = static_cast<std::size_t>(place - periods_.begin());
  const bool replaces = place != periods_.end() && place->type == period.type;
  if (!replaces) {
    if (const MCStatus status = CheckInsertion(at, period); status.IsError()) return status;
  }
  const bool becomesFinest = at + (replaces ? 1 : 0) == periods_.size();
  if (becomesFinest && period.sub_cycle_length % lowest_increment_ != 0) {
    return MCStatus(kBadIncrement);
  }

  if (replaces) {
    periods_[at] = period;
  } else {
    Insert(at, period);
  }
  Recompute();
  return MCStatus();
}

MCStatus Calendar::SetLowestIncrement(unsigned increment) {
  if (Base().type == PeriodType::SimpleSequence) return MCStatus(kNotOnSimpleSequence);
  if (increment == 0 || Finest().sub_cycle_length % increment != 0) return MCStatus(kBadIncrement);
  lowest_increment_ = increment;
  Recompute();
  return MCStatus();
}

bool Calendar::Has(PeriodType type) const {
  return std::any_of(periods_.begin(), periods_.end(),
                     [type](const TimePeriod& period) { return period.type == type; });
}

bool Calendar::Admits(std::span<const unsigned> indexes) const {
  if (indexes.size() != periods_.size()) return false;
  for (std::size_t i = 1; i < indexes.size(); ++i) {
    const TimePeriod& period = periods_[i];
    // Unsigned: an index below the start is far beyond the length.
    if (indexes[i] - period.sub_cycle_start >= period.sub_cycle_length) return false;
  }
  if (excluded_ != 0 && indexes[excluded_] != QuarterOfMonth(indexes[excluded_ + 1])) return false;
  return (indexes.back() - Finest().sub_cycle_start) % lowest_increment_ == 0;
}

bool Calendar::SetFirstCase(std::span<const unsigned> indexes) {
  const StepCount number = StepsFrom(&TimePeriod::sub_cycle_start, indexes);
  if (!number.exact) return false;
  for (std::size_t i = 0; i < periods_.size(); ++i) periods_[i].current_start = indexes[i];
  first_case_number_ = number.count;
  return true;
}

StepCount Calendar::StepsFromFirstCase(std::span<const unsigned> indexes) const {
  if (indexes.size() != periods_.size()) return {};
  return StepsFrom(&TimePeriod::current_start, indexes);
}

std::optional<IndexArray> Calendar::IndexesAt(std::uint64_t number) const {
  IndexArray indexes{};
  for (std::size_t i = 0; i < periods_.size(); ++i) {
    if (IsExcluded(i)) continue;
    const bool finest = i + 1 == periods_.size();
    const std::uint64_t units =
        SaturatingProduct(number / multipliers_[i], finest ? lowest_increment_ : 1);
    number %= multipliers_[i];
    // Only the base has no end; its start is 0, so the sum below cannot wrap for a finer period.
    if (units > std::numeric_limits<unsigned>::max()) return std::nullopt;
    indexes[i] = static_cast<unsigned>(units) + periods_[i].sub_cycle_start;
  }
  if (excluded_ != 0) indexes[excluded_] = QuarterOfMonth(indexes[excluded_ + 1]);
  if (!Admits({indexes.data(), periods_.size()})) return std::nullopt;
  return indexes;
}

MCStatus Calendar::CheckInsertion(std::size_t at, const TimePeriod& period) const {
  const bool cycleHoldsMore = Base().type == PeriodType::Cycle && periods_.size() > 1;
  const PeriodType reference = cycleHoldsMore ? periods_[1].type : Base().type;
  if (!AreCompatible(reference, period.type)) return MCStatus(kIncompatiblePeriods);
  if (periods_.size() == TSXDateSpec::TSXIndexTuple::kCapacity) {
    return MCStatus(kIncompatiblePeriods);
  }
  if (!MeetsItsPartner(at, period)) return MCStatus();
  const bool agree = period.type == PeriodType::Quarter ? DoAgree(period, periods_[at])
                                                        : DoAgree(periods_[at - 1], period);
  return agree ? MCStatus() : MCStatus(kQuarterAndMonthDisagree);
}

// Whether `period`, to be put in at `at`, is a Quarter before a Month or a Month behind a Quarter.
bool Calendar::MeetsItsPartner(std::size_t at, const TimePeriod& period) const {
  if (period.type == PeriodType::Quarter) {
    return at < periods_.size() && periods_[at].type == PeriodType::Month;
  }
  return period.type == PeriodType::Month && periods_[at - 1].type == PeriodType::Quarter;
}

void Calendar::Insert(std::size_t at, const TimePeriod& period) {
  const bool meets = MeetsItsPartner(at, period);
  multipliers_.reserve(periods_.size() + 1);
  periods_.insert(periods_.begin() + static_cast<std::ptrdiff_t>(at), period);
  if (meets) {
    excluded_ = period.type == PeriodType::Quarter ? at : at - 1;
  } else if (at <= excluded_) {  // never where there is none: `at` is behind the base
    ++excluded_;
  }
}

// Within the capacity that Insert() has made, so it cannot fail.
void Calendar::Recompute() {
  first_case_number_ = 0;
  multipliers_.assign(periods_.size(), 1);
  std::uint64_t steps = 1;  // in one unit of the period at hand
  for (std::size_t i = periods_.size(); i-- > 0;) {
    TimePeriod& period = periods_[i];
    period.current_start = period.sub_cycle_start;
    if (IsExcluded(i)) continue;
    multipliers_[i] = steps;
    const bool finest = i + 1 == periods_.size();
    steps = SaturatingProduct(steps, period.sub_cycle_length / (finest ? lowest_increment_ : 1));
  }
}

StepCount Calendar::StepsFrom(unsigned TimePeriod::*start,
                              std::span<const unsigned> indexes) const {
  std::array<Digit, TSXDateSpec::TSXIndexTuple::kCapacity> digits;
  std::size_t count = 0;
  for (std::size_t i = 0; i < periods_.size(); ++i) {
    if (IsExcluded(i)) continue;
    const std::int64_t from = periods_[i].*start;
    digits[count++] = {indexes[i] - from, periods_[i].sub_cycle_length};
  }
  return StepsFromDigits({digits.data(), count}, lowest_increment_);
}

}  // namespace tsx
