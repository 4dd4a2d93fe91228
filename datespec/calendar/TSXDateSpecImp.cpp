#include "datespec/calendar/TSXDateSpecImp.h"

#include <algorithm>
#include <array>
#include <limits>

#include "datespec/calendar/HashOfNumbers.h"
#include "datespec/calendar/StatusCodes.h"

using MCTime::MCStatus;
using tsx::GapList;

namespace {

// What tells one period from another; the first case's index, too, in a full comparison.
std::array<unsigned, 5> Compared(const tsx::TimePeriod& period, bool full) {
  return {period.type, period.cycle_length, period.sub_cycle_start, period.sub_cycle_length,
          full ? period.current_start : 0};
}

}  // namespace

TSXDateSpecImp::TSXDateSpecImp(PeriodType base) : calendar_(base) {
  if (base == PeriodType::Obs) throw MCStatus(tsx::kObsAsBase);
}

MCStatus TSXDateSpecImp::AddPeriod(PeriodType type, unsigned cycleLength, unsigned subCycleStart,
                                   unsigned subCycleLength) {
  return StartAfresh(calendar_.AddPeriod(
      {.type = type,
       .cycle_length = cycleLength,
       .sub_cycle_start = subCycleStart,
       .sub_cycle_length = subCycleLength == 0 ? cycleLength : subCycleLength}));
}

unsigned TSXDateSpecImp::PeriodCount() const { return static_cast<unsigned>(Periods().size()); }

unsigned TSXDateSpecImp::GetPeriod(unsigned index, PeriodType& type, unsigned& cycleLength,
                                   unsigned& subCycleStart, unsigned& subCycleLength) const {
  if (index >= PeriodCount()) return PeriodCount();
  const TimePeriod& period = Periods()[index];
  const bool whole = period.sub_cycle_length == period.cycle_length;
  type = period.type;
  cycleLength = period.cycle_length;
  subCycleStart = period.sub_cycle_start;
  subCycleLength = whole ? 0 : period.sub_cycle_length;
  return 0;
}

MCStatus TSXDateSpecImp::SetLowestIncrement(unsigned increment) {
  return StartAfresh(calendar_.SetLowestIncrement(increment));
}

unsigned TSXDateSpecImp::DefaultSeasonLength() const {
  const unsigned length = calendar_.Finest().sub_cycle_length;
  return length == 0 ? 1 : length / LowestIncrement();
}

bool TSXDateSpecImp::SetFirstCaseDay(unsigned day, unsigned month, unsigned year) {
  const bool clears = day == 0 && month == 0 && year == 0;
  const bool isDate = day >= 1 && day <= 31 && month >= 1 && month <= 12 && year != 0;
  if (!clears && !(isDate && calendar_.Has(PeriodType::Day))) return false;
  first_case_day_ = {day, month, year};
  return true;
}

void TSXDateSpecImp::GetFirstCaseDay(unsigned& day, unsigned& month, unsigned& year) const {
  day = first_case_day_.day;
  month = first_case_day_.month;
  year = first_case_day_.year;
}

MCStatus TSXDateSpecImp::SetFirstCaseIndex(const TSXIndexTuple& tuple) {
  if (!tuple.IsValidFor(*this)) return MCStatus(tsx::kInvalidTuple);
  const long steps = tuple.VirtualCaseOffset();
  if (!calendar_.SetFirstCase({tuple.indexes_, tuple.count_})) return MCStatus(tsx::kInvalidTuple);
  gaps_.MoveStart(steps);
  return MCStatus();
}

MCStatus TSXDateSpecImp::AddGap(long offset) {
  if (offset < 1) return MCStatus(tsx::kGapBelowOne);
  if (calendar_.Base().type == PeriodType::SimpleSequence) {
    return MCStatus(tsx::kNotOnSimpleSequence);
  }
  gaps_.Add(offset);
  return MCStatus();
}

MCStatus TSXDateSpecImp::AddGap(const TSXIndexTuple& tuple) {
  if (!tuple.IsValidFor(*this)) return MCStatus(tsx::kInvalidTuple);
  const tsx::StepCount steps = calendar_.StepsFromFirstCase({tuple.indexes_, tuple.count_});
  if (!steps.exact) return MCStatus(tsx::kInvalidTuple);
  return AddGap(tuple.VirtualCaseOffset());
}

TSXDateSpec::TSXIndexTuple TSXDateSpecImp::GapIndex(unsigned long i) const {
  return i < GapCount() ? IndexTuple(gaps_.Offsets()[i]) : FirstCaseIndex();
}

TSXDateSpec::TSXIndexTuple TSXDateSpecImp::IndexTuple(long offset) const {
  TSXIndexTuple tuple(*this);
  if (const auto indexes = calendar_.IndexesAt(NumberFromOffset(offset))) {
    std::copy(indexes->begin(), indexes->end(), tuple.indexes_);
  }
  return tuple;
}

long TSXDateSpecImp::CaseOffset(long virtualOffset) const {
  return gaps_.CaseOffset(virtualOffset, GapList::AtGap::kNoCase);
}

long TSXDateSpecImp::ClosestCaseOffset(long virtualOffset, bool forward) const {
  return gaps_.CaseOffset(virtualOffset,
                          forward ? GapList::AtGap::kCaseAfter : GapList::AtGap::kCaseBefore);
}

unsigned long TSXDateSpecImp::NumberFromOffset(long offset) const {
  const auto first = static_cast<unsigned long>(calendar_.FirstCaseNumber());  // [0, 2^63 - 1]
  // Unsigned, so that the magnitude of LONG_MIN is 2^63.
  if (offset >= 0) return first + static_cast<unsigned long>(offset);
  const unsigned long magnitude = 0UL - static_cast<unsigned long>(offset);
  return magnitude > first ? 0 : first - magnitude;
}

long TSXDateSpecImp::OffsetFromNumber(unsigned long number) const {
  const auto first = static_cast<unsigned long>(calendar_.FirstCaseNumber());
  if (number < first) return -static_cast<long>(first - number);
  constexpr auto kMost = static_cast<unsigned long>(std::numeric_limits<long>::max());
  return static_cast<long>(std::min(number - first, kMost));
}

bool TSXDateSpecImp::IsEquivalent(const TSXDateSpecImp& other, bool full) const {
  const auto samePeriod = [full](const TimePeriod& a, const TimePeriod& b) {
    return Compared(a, full) == Compared(b, full);
  };
  return std::equal(Periods().begin(), Periods().end(), other.Periods().begin(),
                    other.Periods().end(), samePeriod) &&
         LowestIncrement() == other.LowestIncrement() &&
         (!full || gaps_.Offsets() == other.gaps_.Offsets());
}

// Made from what IsEquivalent() compares, and from nothing else.
std::uint64_t TSXDateSpecImp::EquivalenceHash() const {
  tsx::HashOfNumbers hash;
  hash.Add(Periods().size());
  for (const TimePeriod& period : Periods()) {
    for (const unsigned number : Compared(period, true)) hash.Add(number);
  }
  hash.Add(LowestIncrement());
  for (const std::int64_t offset : gaps_.Offsets()) hash.Add(static_cast<std::uint64_t>(offset));
  return hash.hash();
}

long TSXDateSpecImp::OffsetOf(std::span<const unsigned> indexes) const {
  return calendar_.StepsFromFirstCase(indexes).count;
}

// What was counted on the calendar as it was means nothing on the new one.
MCStatus TSXDateSpecImp::StartAfresh(MCStatus status) {
  if (status.IsError()) return status;
  gaps_.Clear();
  first_case_day_ = {};
  return status;
}
