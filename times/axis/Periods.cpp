#include "times/axis/Periods.h"

#include <tsxtimes/CivilDay.h>

#include "times/axis/Counts.h"

namespace tsxtimes {

Period PeriodOf(const TSXDateSpec& spec, unsigned i) {
  Period period;
  spec.GetPeriod(i, period.type, period.cycle_length, period.start, period.length);
  return period;
}

Period FinestPeriodOf(const TSXDateSpec& spec) { return PeriodOf(spec, spec.PeriodCount() - 1); }

std::optional<Weights> WeightsOf(const TSXDateSpec& spec, std::int64_t stride) {
  Weights weights;
  weights.count = spec.PeriodCount();
  weights.base = PeriodOf(spec, 0).type;
  // Week 0 begins on the Sunday before 0001-01-01.
  if (weights.base == TSXDateSpec::Week) weights.origin = -kSecondsPerDay;
  std::int64_t holder = 0;  // the span of the period that holds the one at hand
  for (unsigned i = 0; i < weights.count; ++i) {
    const Period period = PeriodOf(spec, i);
    const std::int64_t span = SpanOf(period.type);
    if (span == 0 || (i > 0 && span * period.cycle_length != holder)) return std::nullopt;
    const bool hasMonthBehind = i + 1 < weights.count;  // nothing else can be behind a Quarter
    if (i > 0 && period.type == TSXDateSpec::Quarter && hasMonthBehind) continue;
    weights.of_index[i] = weights.count == 1 ? span * stride : span;
    holder = span;
  }
  return weights;
}

IndexValues IndexesAt(const Weights& weights, std::int64_t distance) {
  IndexValues indexes{};
  for (unsigned i = 0; i < weights.count; ++i) {
    const std::int64_t weight = weights.of_index[i];
    if (weight == 0) {
      indexes[i] = distance / SpanOf(TSXDateSpec::Quarter);
      continue;
    }
    indexes[i] = distance / weight;
    distance %= weight;
  }
  return indexes;
}

}  // namespace tsxtimes
