#include <algorithm>
#include <limits>
#include <vector>

#include <tsxtimes/CalendarTimes.h>

#include "times/axis/Counts.h"

namespace tsxtimes {
namespace {

struct Period {
  TSXDateSpec::PeriodType type = TSXDateSpec::SimpleSequence;
  unsigned cycle_length = 0;
  unsigned start = 0;
  unsigned length = 0;
};

Period PeriodOf(const TSXDateSpec& spec, unsigned i) {
  Period period;
  spec.GetPeriod(i, period.type, period.cycle_length, period.start, period.length);
  return period;
}

// The form in which a document's times come back.
TimeForm FormOf(const TSXDateSpec& spec) {
  switch (PeriodOf(spec, spec.PeriodCount() - 1).type) {
    case TSXDateSpec::Year:
      return {TimeUnit::kYear};
    case TSXDateSpec::Quarter:
      return {TimeUnit::kQuarter};
    case TSXDateSpec::Month:
      return {TimeUnit::kMonth};
    case TSXDateSpec::Week:
    case TSXDateSpec::Day:
      return {TimeUnit::kDay};
    case TSXDateSpec::Hour:
    case TSXDateSpec::Minute:
      return {TimeUnit::kSecond};
    case TSXDateSpec::Second:
      return {TimeUnit::kSecond, ' ', true};
    default:
      return {TimeUnit::kNumber};
  }
}

bool IsClockPeriod(TSXDateSpec::PeriodType type) {
  return type >= TSXDateSpec::Hour && type <= TSXDateSpec::Second;
}

}  // namespace

CalendarTimes::CalendarTimes(const TSXDateSpec& spec, const TimeAnchor& anchor,
                             const Weights& weights)
    : spec_(spec), anchor_(anchor), weights_(weights) {}

// Each period must hold as many of the next one as time itself does.
std::optional<CalendarTimes::Weights> CalendarTimes::WeightsOf(const TSXDateSpec& spec,
                                                               std::int64_t stride) {
  Weights weights;
  weights.count = spec.PeriodCount();
  weights.base = PeriodOf(spec, 0).type;
  if (weights.base == TSXDateSpec::Week) weights.origin = -kSecondsPerDay;
  std::int64_t holder = 0;  // the span of the period that holds the one at hand
  for (unsigned i = 0; i < weights.count; ++i) {
    const Period period = PeriodOf(spec, i);
    const std::int64_t span = SpanOf(period.type);
    if (span == 0 || (i > 0 && span * period.cycle_length != holder)) return std::nullopt;
    const bool followsFromMonth = i > 0 && period.type == TSXDateSpec::Quarter &&
                                  i + 1 < weights.count;  // nothing but a Month can be behind it
    if (followsFromMonth) continue;
    weights.of_index[i] = weights.count == 1 ? span * stride : span;
    holder = span;
  }
  return weights;
}

std::optional<CalendarTimes> CalendarTimes::Of(const TSXDateSpec& spec, const TimeAnchor& anchor) {
  const std::optional<Weights> weights = WeightsOf(spec, anchor.stride);
  if (!weights || anchor.stride < 1) return std::nullopt;
  if (!Suits(CountKindOf(weights->base), anchor.form.unit)) return std::nullopt;
  return CalendarTimes(spec, anchor, *weights);
}

std::optional<CalendarTimes> CalendarTimes::Of(const TSXDateSpec& spec) {
  TimeAnchor anchor;
  anchor.form = FormOf(spec);
  std::optional<CalendarTimes> times = Of(spec, anchor);
  if (times) times->CountDaysFromFirstCaseDay();
  return times;
}

std::optional<CalendarTimes> CalendarTimes::StartingAt(std::int64_t tick, const TSXDateSpec& spec,
                                                       const TimeAnchor& anchor) {
  std::optional<CalendarTimes> times = Of(spec, anchor);
  if (times && !times->SetFirstCase(tick)) return std::nullopt;
  return times;
}

bool CalendarTimes::SetFirstCase(std::int64_t tick) {
  const auto count = CountOfTick(CountKindOf(weights_.base), anchor_, tick);
  if (tick < 0 || !count) return false;
  const bool fromMidnight = IsOnePeriod() && IsClockPeriod(weights_.base);
  const std::int64_t distance = fromMidnight ? *count % kSecondsPerDay : *count - weights_.origin;

  Indexes indexes = IndexesAt(distance);
  const unsigned finest = weights_.count - 1;
  const std::int64_t start = PeriodOf(spec_, finest).start;
  if (indexes[finest] < start) return false;
  const std::int64_t increment = spec_.LowestIncrement();
  indexes[finest] = start + (indexes[finest] - start) / increment * increment;

  if (indexes[0] > std::numeric_limits<unsigned>::max()) return false;
  TSXDateSpec::TSXIndexTuple first(spec_);
  if (!first.SetIndexes({indexes.begin(), indexes.begin() + weights_.count})) return false;
  spec_.ClearGaps();
  spec_.SetFirstCaseDay(0, 0, 0);
  if (spec_.SetFirstCaseIndex(first).IsError()) return false;
  anchor_.shift = *count - StartOfOffset(0);
  return true;
}

// Where a document tells the day of its first case, which its calendar may have rounded down.
void CalendarTimes::CountDaysFromFirstCaseDay() {
  unsigned day = 0;
  unsigned month = 0;
  unsigned year = 0;
  spec_.GetFirstCaseDay(day, month, year);
  if (year == 0 || day > DaysInMonth(year, month)) return;
  const std::int64_t start = StartOfOffset(0);  // never negative on a calendar with a Day
  anchor_.shift =
      TickFromDay({year, month, day}) * kSecondsPerDay - start / kSecondsPerDay * kSecondsPerDay;
}

// The indexes of the last position that begins no later than `distance` after the base's index 0.
CalendarTimes::Indexes CalendarTimes::IndexesAt(std::int64_t distance) const {
  Indexes indexes{};
  for (unsigned i = 0; i < weights_.count; ++i) {
    const std::int64_t weight = weights_.of_index[i];
    if (weight == 0) {
      indexes[i] = distance / SpanOf(TSXDateSpec::Quarter);
      continue;
    }
    indexes[i] = distance / weight;
    distance %= weight;
  }
  return indexes;
}

// In months, seconds or numbers. A lone base is counted here, since its index may take more than
// the 32 bits that a tuple has for it.
std::int64_t CalendarTimes::StartOfOffset(std::int64_t offset) const {
  if (IsOnePeriod()) {
    const std::int64_t number = offset - spec_.OffsetFromNumber(0);
    return weights_.origin + number * spec_.LowestIncrement() * weights_.of_index[0];
  }
  std::int64_t start = weights_.origin;
  const std::vector<unsigned> indexes = spec_.IndexTuple(offset).GetIndexes();
  for (unsigned i = 0; i < weights_.count; ++i) start += indexes[i] * weights_.of_index[i];
  return start;
}

std::int64_t CalendarTimes::TickOfOffset(std::int64_t offset) const {
  const bool isBeforeBeginning = !IsOnePeriod() && offset < spec_.OffsetFromNumber(0);
  if (isBeforeBeginning) return 0;
  const std::int64_t count = StartOfOffset(offset) + anchor_.shift;
  if (IsOnePeriod() && count < 0) return 0;
  return TickOfCount(CountKindOf(weights_.base), anchor_, count);
}

// `distance` is in months, seconds or numbers from the base's index 0.
std::optional<std::int64_t> CalendarTimes::OffsetAt(std::int64_t distance) const {
  if (distance < 0) return std::nullopt;
  if (IsOnePeriod()) {
    const std::int64_t step = spec_.LowestIncrement() * weights_.of_index[0];
    if (distance % step != 0) return std::nullopt;
    return distance / step + spec_.OffsetFromNumber(0);
  }
  const Indexes indexes = IndexesAt(distance);
  std::int64_t rest = distance;
  for (unsigned i = 0; i < weights_.count; ++i) rest -= indexes[i] * weights_.of_index[i];
  if (rest != 0 || indexes[0] > std::numeric_limits<unsigned>::max()) return std::nullopt;
  TSXDateSpec::TSXIndexTuple tuple(spec_);
  if (!tuple.SetIndexes({indexes.begin(), indexes.begin() + weights_.count})) return std::nullopt;
  return tuple.VirtualCaseOffset();
}

std::optional<std::int64_t> CalendarTimes::OffsetOfTick(std::int64_t tick) const {
  if (tick < 0) return std::nullopt;
  const auto count = CountOfTick(CountKindOf(weights_.base), anchor_, tick);
  if (!count) return std::nullopt;
  return OffsetAt(*count - anchor_.shift - weights_.origin);
}

std::int64_t CalendarTimes::TickOfCase(std::int64_t i) const {
  return TickOfOffset(spec_.VirtualCaseOffset(i));
}

std::string CalendarTimes::CaseText(std::int64_t i) const {
  return TimeText(anchor_.form, TickOfCase(i));
}

std::optional<std::int64_t> CalendarTimes::CaseOfTick(std::int64_t tick) const {
  const std::optional<std::int64_t> offset = OffsetOfTick(tick);
  if (!offset || *offset < 0) return std::nullopt;
  const std::int64_t found = spec_.CaseOffset(*offset);
  return found < 0 ? std::nullopt : std::optional(found);
}

}  // namespace tsxtimes
