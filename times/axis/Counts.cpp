#include "times/axis/Counts.h"

#include <algorithm>
#include <limits>

namespace tsxtimes {
namespace {

constexpr std::int64_t kMonthsPerYear = 12;
constexpr std::int64_t kMonthsPerQuarter = 3;

// Whatever a tick counts, its seconds or months fit 64 bits up to here.
constexpr std::int64_t kLastTick = std::numeric_limits<std::int64_t>::max() / kSecondsPerDay;

// Dates that stand for months.
std::optional<std::int64_t> MonthOfDate(const TimeAnchor& anchor, std::int64_t day,
                                        std::int64_t timeOfDay) {
  const CivilDay date = DayFromTick(day);
  const unsigned expected = std::min(anchor.month_day, DaysInMonth(date.year, date.month));
  if (date.day != expected || timeOfDay != 0) return std::nullopt;
  return kMonthsPerYear * date.year + date.month - 1;
}

std::int64_t DateOfMonth(const TimeAnchor& anchor, std::int64_t count) {
  const std::int64_t year = count / kMonthsPerYear;
  const auto month = static_cast<unsigned>(count % kMonthsPerYear + 1);
  return TickFromDay({year, month, std::min(anchor.month_day, DaysInMonth(year, month))});
}

std::optional<std::int64_t> MonthOfTick(const TimeAnchor& anchor, std::int64_t tick) {
  switch (anchor.form.unit) {
    case TimeUnit::kYear:
      return tick * kMonthsPerYear;
    case TimeUnit::kQuarter:
      return tick * kMonthsPerQuarter;
    case TimeUnit::kDay:
      return MonthOfDate(anchor, tick, 0);
    case TimeUnit::kSecond:
      return MonthOfDate(anchor, tick / kSecondsPerDay, tick % kSecondsPerDay - anchor.time_of_day);
    default:
      return tick;
  }
}

std::int64_t TickOfMonth(const TimeAnchor& anchor, std::int64_t count) {
  switch (anchor.form.unit) {
    case TimeUnit::kYear:
      return count / kMonthsPerYear;
    case TimeUnit::kQuarter:
      return count / kMonthsPerQuarter;
    case TimeUnit::kDay:
      return DateOfMonth(anchor, count);
    case TimeUnit::kSecond:
      return DateOfMonth(anchor, count) * kSecondsPerDay + anchor.time_of_day;
    default:
      return count;
  }
}

}  // namespace

CountKind CountKindOf(TSXDateSpec::PeriodType base) {
  if (base == TSXDateSpec::SimpleSequence) return CountKind::kNumbers;
  if (base >= TSXDateSpec::Year && base <= TSXDateSpec::Month) return CountKind::kMonths;
  if (base >= TSXDateSpec::Week && base <= TSXDateSpec::Second) return CountKind::kSeconds;
  return CountKind::kNone;
}

std::int64_t SpanOf(TSXDateSpec::PeriodType type) {
  switch (type) {
    case TSXDateSpec::Year:
      return kMonthsPerYear;
    case TSXDateSpec::Quarter:
      return kMonthsPerQuarter;
    case TSXDateSpec::Week:
      return 7 * kSecondsPerDay;
    case TSXDateSpec::Day:
      return kSecondsPerDay;
    case TSXDateSpec::Hour:
      return 3600;
    case TSXDateSpec::Minute:
      return 60;
    case TSXDateSpec::SimpleSequence:
    case TSXDateSpec::Month:
    case TSXDateSpec::Second:
      return 1;
    default:
      return 0;
  }
}

bool Suits(CountKind kind, TimeUnit unit) {
  switch (kind) {
    case CountKind::kNumbers:
      return unit == TimeUnit::kNumber;
    case CountKind::kMonths:
      return unit != TimeUnit::kNumber;
    case CountKind::kSeconds:
      return unit == TimeUnit::kDay || unit == TimeUnit::kSecond;
    case CountKind::kNone:
      break;
  }
  return false;
}

std::optional<std::int64_t> CountOfTick(CountKind kind, const TimeAnchor& anchor,
                                        std::int64_t tick) {
  if (tick > kLastTick) return std::nullopt;
  if (kind == CountKind::kMonths) return MonthOfTick(anchor, tick);
  const bool days = kind == CountKind::kSeconds && anchor.form.unit == TimeUnit::kDay;
  return days ? tick * kSecondsPerDay : tick;
}

std::int64_t TickOfCount(CountKind kind, const TimeAnchor& anchor, std::int64_t count) {
  if (kind == CountKind::kMonths) return TickOfMonth(anchor, count);
  const bool days = kind == CountKind::kSeconds && anchor.form.unit == TimeUnit::kDay;
  return days ? count / kSecondsPerDay : count;
}

}  // namespace tsxtimes
