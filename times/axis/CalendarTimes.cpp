#include <tsxtimes/CalendarTimes.h>

#include "times/axis/CalendarTimesImp.h"
#include "times/axis/Counts.h"

namespace tsxtimes {
namespace {

// The form in which a document's times come back.
TimeForm FormOf(const TSXDateSpec& spec) {
  switch (FinestPeriodOf(spec).type) {
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

// Null where the calendar and the anchor tell no times.
std::shared_ptr<CalendarTimesImp> MakeImp(const TSXDateSpec& spec, const TimeAnchor& anchor) {
  if (anchor.stride < 1) return nullptr;
  const std::optional<Weights> weights = WeightsOf(spec, anchor.stride);
  if (!weights || !Suits(CountKindOf(weights->base), anchor.form.unit)) return nullptr;
  return std::make_shared<CalendarTimesImp>(spec, anchor, *weights);
}

}  // namespace

std::optional<CalendarTimes> CalendarTimes::Of(const TSXDateSpec& spec) {
  TimeAnchor anchor;
  anchor.form = FormOf(spec);
  auto imp = MakeImp(spec, anchor);
  if (!imp) return std::nullopt;
  imp->CountDaysFromFirstCaseDay();
  return CalendarTimes(std::move(imp));
}

std::optional<CalendarTimes> CalendarTimes::Of(const TSXDateSpec& spec, const TimeAnchor& anchor) {
  auto imp = MakeImp(spec, anchor);
  if (!imp) return std::nullopt;
  return CalendarTimes(std::move(imp));
}

std::optional<CalendarTimes> CalendarTimes::StartingAt(std::int64_t tick, const TSXDateSpec& spec,
                                                       const TimeAnchor& anchor) {
  auto imp = MakeImp(spec, anchor);
  if (!imp || !imp->SetFirstCase(tick)) return std::nullopt;
  return CalendarTimes(std::move(imp));
}

const TSXDateSpec& CalendarTimes::DateSpec() const { return imp_->DateSpec(); }
const TimeAnchor& CalendarTimes::Anchor() const { return imp_->Anchor(); }

std::int64_t CalendarTimes::TickOfCase(std::int64_t i) const {
  return TickOfOffset(DateSpec().VirtualCaseOffset(i));
}

std::string CalendarTimes::CaseText(std::int64_t i) const {
  return TimeText(Anchor().form, TickOfCase(i));
}

std::optional<std::int64_t> CalendarTimes::CaseOfTick(std::int64_t tick) const {
  const std::optional<std::int64_t> offset = OffsetOfTick(tick);
  if (!offset || *offset < 0) return std::nullopt;
  const std::int64_t found = DateSpec().CaseOffset(*offset);
  return found < 0 ? std::nullopt : std::optional(found);
}

std::int64_t CalendarTimes::TickOfOffset(std::int64_t offset) const {
  return imp_->TickOfOffset(offset);
}

std::optional<std::int64_t> CalendarTimes::OffsetOfTick(std::int64_t tick) const {
  return imp_->OffsetOfTick(tick);
}

}  // namespace tsxtimes
