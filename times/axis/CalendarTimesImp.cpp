#include "times/axis/CalendarTimesImp.h"

#include <limits>
#include <vector>

#include "times/axis/Counts.h"

namespace tsxtimes {
namespace {

bool IsClockPeriod(TSXDateSpec::PeriodType type) {
  return type >= TSXDateSpec::Hour && type <= TSXDateSpec::Second;
}

// False where the calendar has no such position.
bool SetIndexes(TSXDateSpec::TSXIndexTuple& tuple, const IndexValues& indexes, unsigned count) {
  if (indexes[0] > std::numeric_limits<unsigned>::max()) return false;  // the others have ends
  std::vector<unsigned> values(count);
  for (unsigned i = 0; i < count; ++i) values[i] = static_cast<unsigned>(indexes[i]);
  return tuple.SetIndexes(values);
}

}  // namespace

CalendarTimesImp::CalendarTimesImp(const TSXDateSpec& spec, const TimeAnchor& anchor,
                                   const Weights& weights)
    : spec_(spec), anchor_(anchor), weights_(weights) {}

bool CalendarTimesImp::SetFirstCase(std::int64_t tick) {
  if (tick < 0) return false;
  const auto count = CountOfTick(CountKindOf(weights_.base), anchor_, tick);
  if (!count) return false;
  const bool fromMidnight = IsOnePeriod() && IsClockPeriod(weights_.base);
  IndexValues indexes =
      IndexesAt(weights_, fromMidnight ? *count % kSecondsPerDay : *count - weights_.origin);
  const std::int64_t start = FinestPeriodOf(spec_).start;
  const std::int64_t increment = spec_.LowestIncrement();
  std::int64_t& finest = indexes[weights_.count - 1];
  if (finest < start) return false;
  finest = start + (finest - start) / increment * increment;
  if (!SetFirstIndexes(indexes)) return false;
  anchor_.shift = *count - StartOfOffset(0);
  return true;
}

bool CalendarTimesImp::SetFirstIndexes(const IndexValues& indexes) {
  spec_.ClearGaps();
  spec_.SetFirstCaseDay(0, 0, 0);
  TSXDateSpec::TSXIndexTuple first(spec_);
  return SetIndexes(first, indexes, weights_.count) && !spec_.SetFirstCaseIndex(first).IsError();
}

void CalendarTimesImp::CountDaysFromFirstCaseDay() {
  unsigned day = 0;
  unsigned month = 0;
  unsigned year = 0;
  spec_.GetFirstCaseDay(day, month, year);
  if (year == 0 || day > DaysInMonth(year, month)) return;
  const std::int64_t midnight = StartOfOffset(0) / kSecondsPerDay * kSecondsPerDay;
  anchor_.shift = TickFromDay({year, month, day}) * kSecondsPerDay - midnight;
}

// The count at which a position begins. A lone base is counted here, since its index may take more
// than the 32 bits that a tuple has for it.
std::int64_t CalendarTimesImp::StartOfOffset(std::int64_t offset) const {
  if (IsOnePeriod()) {
    const std::int64_t number = offset - spec_.OffsetFromNumber(0);
    return weights_.origin + number * spec_.LowestIncrement() * weights_.of_index[0];
  }
  std::int64_t start = weights_.origin;
  const std::vector<unsigned> indexes = spec_.IndexTuple(offset).GetIndexes();
  for (unsigned i = 0; i < weights_.count; ++i) start += indexes[i] * weights_.of_index[i];
  return start;
}

std::int64_t CalendarTimesImp::TickOfOffset(std::int64_t offset) const {
  const bool isBeforeBeginning = !IsOnePeriod() && offset < spec_.OffsetFromNumber(0);
  if (isBeforeBeginning) return 0;
  const std::int64_t count = StartOfOffset(offset) + anchor_.shift;
  if (IsOnePeriod() && count < 0) return 0;
  return TickOfCount(CountKindOf(weights_.base), anchor_, count);
}

std::optional<std::int64_t> CalendarTimesImp::OffsetOfTick(std::int64_t tick) const {
  if (tick < 0) return std::nullopt;
  const auto count = CountOfTick(CountKindOf(weights_.base), anchor_, tick);
  return count ? OffsetAt(*count - anchor_.shift - weights_.origin) : std::nullopt;
}

// The offset of the position that begins `distance` counts after the origin.
std::optional<std::int64_t> CalendarTimesImp::OffsetAt(std::int64_t distance) const {
  if (distance < 0) return std::nullopt;
  if (IsOnePeriod()) {
    const std::int64_t step = spec_.LowestIncrement() * weights_.of_index[0];
    if (distance % step != 0) return std::nullopt;
    return distance / step + spec_.OffsetFromNumber(0);
  }
  const IndexValues indexes = IndexesAt(weights_, distance);
  std::int64_t rest = distance;
  for (unsigned i = 0; i < weights_.count; ++i) rest -= indexes[i] * weights_.of_index[i];
  TSXDateSpec::TSXIndexTuple tuple(spec_);
  if (rest != 0 || !SetIndexes(tuple, indexes, weights_.count)) return std::nullopt;
  return tuple.VirtualCaseOffset();
}

}  // namespace tsxtimes
