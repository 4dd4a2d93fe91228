#include "report/TimeTicks.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace tsx::report {
namespace {

using tsxtimes::CivilDay;
using tsxtimes::DateAxis;
using tsxtimes::DayFromTick;
using tsxtimes::kSecondsPerDay;
using tsxtimes::TimeUnit;

// A clock that counts something in steps of `multiple`, and how much of a case's text tells it.
struct Granularity {
  // From coarse to fine.
  enum class Count { kNumber, kYear, kQuarter, kMonth, kDay, kHour, kMinute, kSecond };
  Count count;
  std::int64_t multiple;
};

using Count = Granularity::Count;

constexpr Granularity kNumbers[] = {{Count::kNumber, 1}, {Count::kNumber, 2}, {Count::kNumber, 5}};
// From fine to coarse.
constexpr Granularity kTimes[] = {
    {Count::kSecond, 1},  {Count::kSecond, 5}, {Count::kSecond, 15}, {Count::kSecond, 30},
    {Count::kMinute, 1},  {Count::kMinute, 5}, {Count::kMinute, 15}, {Count::kMinute, 30},
    {Count::kHour, 1},    {Count::kHour, 3},   {Count::kHour, 6},    {Count::kHour, 12},
    {Count::kDay, 1},     {Count::kDay, 7},    {Count::kDay, 14},    {Count::kMonth, 1},
    {Count::kQuarter, 1}, {Count::kMonth, 3},  {Count::kMonth, 6},   {Count::kYear, 1},
    {Count::kYear, 2},    {Count::kYear, 5},   {Count::kYear, 10},   {Count::kYear, 20},
    {Count::kYear, 50},   {Count::kYear, 100}, {Count::kYear, 200},  {Count::kYear, 500},
    {Count::kYear, 1000}};

// A time in every count that its form knows; the others are -1.
class Clock {
 public:
  Clock(TimeUnit unit, std::int64_t tick) : unit_(unit), tick_(tick) {}

  std::int64_t Counted(Count count) const {
    switch (unit_) {
      case TimeUnit::kNumber:
        return count == Count::kNumber ? tick_ : -1;
      case TimeUnit::kYear:
        return count == Count::kYear ? tick_ : -1;
      case TimeUnit::kQuarter:
        return OfQuarters(count);
      case TimeUnit::kMonth:
        return OfMonths(count, tick_);
      case TimeUnit::kDay:
        return OfDays(count, tick_);
      case TimeUnit::kSecond:
        return OfSeconds(count);
    }
    return -1;
  }

 private:
  std::int64_t OfQuarters(Count count) const {
    if (count == Count::kQuarter) return tick_;
    return count == Count::kYear ? tick_ / 4 : -1;
  }

  static std::int64_t OfMonths(Count count, std::int64_t months) {
    if (count == Count::kMonth) return months;
    return count == Count::kYear ? months / 12 : -1;
  }

  static std::int64_t OfDays(Count count, std::int64_t days) {
    if (count == Count::kDay) return days;
    const CivilDay day = DayFromTick(days);
    return OfMonths(count, 12 * day.year + day.month - 1);
  }

  std::int64_t OfSeconds(Count count) const {
    if (count == Count::kSecond) return tick_;
    if (count == Count::kMinute) return tick_ / 60;
    if (count == Count::kHour) return tick_ / 3600;
    return OfDays(count, tick_ / kSecondsPerDay);
  }

  TimeUnit unit_;
  std::int64_t tick_;
};

// The part of a case's text that tells the count: "1960" of "1960-Q3", "06-30 12:00" of a time.
std::string LabelOf(const std::string& text, Count count) {
  switch (count) {
    case Count::kYear:
      return text.substr(0, 4);
    case Count::kMonth:
      return text.substr(0, 7);
    case Count::kDay:
      return text.substr(0, 10);
    case Count::kHour:
    case Count::kMinute:
      return text.substr(5, 11);
    case Count::kSecond:
      return text.substr(11);
    case Count::kNumber:
    case Count::kQuarter:
      break;
  }
  return text;
}

// The ticks of the case before the first, and of the first `count` cases.
std::vector<std::int64_t> TicksOf(const DateAxis& axis, std::size_t count) {
  std::vector<std::int64_t> ticks;
  ticks.reserve(count + 1);
  const auto end = static_cast<std::int64_t>(count);
  for (std::int64_t i = -1; i < end; ++i) ticks.push_back(axis.calendar.TickOfOffset(i));
  return ticks;
}

// Cases at which the count reaches or passes a multiple; none where the form does not know it.
std::vector<std::size_t> Marks(TimeUnit unit, const std::vector<std::int64_t>& ticks,
                               const Granularity& by, std::int64_t scale) {
  std::vector<std::size_t> marks;
  const std::int64_t multiple = by.multiple * scale;
  std::int64_t before = Clock(unit, ticks.front()).Counted(by.count);
  for (std::size_t i = 1; i < ticks.size(); ++i) {
    const std::int64_t now = Clock(unit, ticks[i]).Counted(by.count);
    if (now < 0) return {};
    if (now / multiple != before / multiple) marks.push_back(i - 1);
    before = now;
  }
  return marks;
}

std::vector<TimeTick> Labelled(const DateAxis& axis, const std::vector<std::size_t>& marks,
                               Count count) {
  std::vector<TimeTick> labelled;
  labelled.reserve(marks.size());
  for (const std::size_t at : marks) labelled.push_back({at, LabelOf(axis.CaseText(at), count)});
  return labelled;
}

// The finest count worth marking: that of the axis' finest period.
Count FinestCount(const DateAxis& axis) {
  switch (axis.FinestPeriod()) {
    case TSXDateSpec::Year:
      return Count::kYear;
    case TSXDateSpec::Quarter:
      return Count::kQuarter;
    case TSXDateSpec::Month:
      return Count::kMonth;
    case TSXDateSpec::Week:
    case TSXDateSpec::Day:
      return Count::kDay;
    case TSXDateSpec::Hour:
      return Count::kHour;
    case TSXDateSpec::Minute:
      return Count::kMinute;
    default:
      return Count::kSecond;
  }
}

}  // namespace

std::vector<TimeTick> MakeTimeTicks(const DateAxis& axis, std::size_t count, std::size_t room) {
  constexpr std::size_t kSpace = 3;  // characters between two labels
  const std::vector<std::int64_t> ticks = TicksOf(axis, count);
  const bool numbers = axis.Form().unit == TimeUnit::kNumber;
  const auto rows = numbers ? std::span<const Granularity>(kNumbers) : kTimes;
  const Count finest = FinestCount(axis);
  for (std::int64_t scale = 1; scale <= 1'000'000'000; scale *= 10) {
    for (const Granularity& by : rows) {
      if (by.count > finest) continue;
      const std::vector<std::size_t> marks = Marks(axis.Form().unit, ticks, by, scale);
      if (marks.empty()) continue;
      const std::size_t width = LabelOf(axis.CaseText(marks.back()), by.count).size() + kSpace;
      if (marks.size() * width <= room) return Labelled(axis, marks, by.count);
    }
  }
  return {};
}

}  // namespace tsx::report
