#include "times/TimeForm.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace tsx::cli {
namespace {

// Base indexes of a calendar have 32 bits.
constexpr std::int64_t kLargestNumber = 4'000'000'000;

// Takes pieces off the front of a text; after the first piece that does not fit, none fits.
class Pieces {
 public:
  explicit Pieces(std::string_view text) : rest_(text) {}

  // Takes `least` to `most` digits.
  std::int64_t Digits(std::size_t least, std::size_t most) {
    const auto* const digits = rest_.data();
    std::size_t count = 0;
    while (count < rest_.size() && digits[count] >= '0' && digits[count] <= '9') ++count;
    if (count < least || count > most) fits_ = false;
    std::int64_t value = 0;
    if (fits_) std::from_chars(digits, digits + count, value);
    rest_.remove_prefix(fits_ ? count : 0);
    return value;
  }

  // Takes one of the characters and returns it; 0 when another one is there.
  char OneOf(std::string_view characters) {
    if (!Next(characters)) {
      fits_ = false;
      return 0;
    }
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  bool Next(std::string_view characters) const {
    return fits_ && !rest_.empty() && characters.find(rest_.front()) != std::string_view::npos;
  }

  bool Complete() const { return fits_ && rest_.empty(); }

 private:
  std::string_view rest_;
  bool fits_ = true;
};

ParsedTime Possible(TimeForm form, std::int64_t tick) { return {TimeValue{form, tick}, ""}; }
ParsedTime Impossible(std::string cause) { return {std::nullopt, std::move(cause)}; }
ParsedTime NoTime() { return {}; }

std::string TwoDigits(std::int64_t number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string FourDigits(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
}

ParsedTime ParseNumber(std::string_view text) {
  Pieces in(text);
  const std::int64_t number = in.Digits(1, 18);
  if (!in.Complete()) return NoTime();
  if (number > kLargestNumber) return Impossible("the number is too large to count cases by");
  return Possible({TimeUnit::kNumber}, number);
}

ParsedTime ParseQuarter(std::string_view text) {
  Pieces in(text);
  const std::int64_t year = in.Digits(4, 4);
  if (in.Next("-")) in.OneOf("-");
  in.OneOf("Qq");
  const std::int64_t quarter = in.Digits(1, 2);
  if (!in.Complete()) return NoTime();
  if (year == 0) return Impossible("there is no year 0");
  if (quarter < 1 || quarter > 4) {
    return Impossible("there is no quarter " + std::to_string(quarter));
  }
  return Possible({TimeUnit::kQuarter}, 4 * year + quarter - 1);
}

// What is wrong with a date; empty when it exists.
std::string DateFault(std::int64_t year, std::int64_t month, std::int64_t day) {
  if (year == 0) return "there is no year 0";
  if (month < 1 || month > 12) return "there is no month " + std::to_string(month);
  const unsigned days = DaysInMonth(year, static_cast<unsigned>(month));
  if (day >= 1 && day <= days) return "";
  return FourDigits(year) + "-" + TwoDigits(month) + " has no day " + std::to_string(day);
}

ParsedTime ParseMonth(std::string_view text) {
  Pieces in(text);
  const std::int64_t year = in.Digits(4, 4);
  in.OneOf("-");
  const std::int64_t month = in.Digits(1, 2);
  if (!in.Complete()) return NoTime();
  const std::string fault = DateFault(year, month, 1);
  if (!fault.empty()) return Impossible(fault);
  return Possible({TimeUnit::kMonth}, 12 * year + month - 1);
}

// The time of day behind a date, in seconds.
ParsedTime ParseTimeOfDay(Pieces& in, std::int64_t day) {
  TimeForm form{TimeUnit::kSecond};
  form.date_time_separator = in.OneOf(" T");
  const std::int64_t hour = in.Digits(1, 2);
  in.OneOf(":");
  const std::int64_t minute = in.Digits(2, 2);
  form.with_seconds = in.Next(":");
  if (form.with_seconds) in.OneOf(":");
  const std::int64_t second = form.with_seconds ? in.Digits(2, 2) : 0;
  if (!in.Complete()) return NoTime();
  if (hour > 23) return Impossible("there is no hour " + std::to_string(hour));
  if (minute > 59) return Impossible("there is no minute " + std::to_string(minute));
  if (second > 59) return Impossible("there is no second " + std::to_string(second));
  return Possible(form, day * kSecondsPerDay + hour * 3600 + minute * 60 + second);
}

ParsedTime ParseDate(std::string_view text) {
  Pieces in(text);
  const std::int64_t year = in.Digits(4, 4);
  in.OneOf("-");
  const std::int64_t month = in.Digits(1, 2);
  in.OneOf("-");
  const std::int64_t day = in.Digits(1, 2);
  if (!in.Complete() && !in.Next(" T")) return NoTime();

  const std::string fault = DateFault(year, month, day);
  const auto unsignedMonth = static_cast<unsigned>(month);
  const std::int64_t tick =
      fault.empty() ? TickFromDay({year, unsignedMonth, static_cast<unsigned>(day)}) : 0;
  ParsedTime time = in.Complete() ? Possible({TimeUnit::kDay}, tick) : ParseTimeOfDay(in, tick);
  if (time.value && !fault.empty()) return Impossible(fault);
  return time;
}

std::string DayText(std::int64_t tick) {
  const CivilDay day = DayFromTick(tick);
  return FourDigits(day.year) + "-" + TwoDigits(day.month) + "-" + TwoDigits(day.day);
}

std::string SecondText(const TimeForm& form, std::int64_t tick) {
  const std::int64_t second = tick % kSecondsPerDay;
  std::string text = DayText(tick / kSecondsPerDay) + form.date_time_separator +
                     TwoDigits(second / 3600) + ":" + TwoDigits(second / 60 % 60);
  if (form.with_seconds) text += ":" + TwoDigits(second % 60);
  return text;
}

}  // namespace

ParsedTime ParseTime(std::string_view text) {
  for (const auto parse : {ParseNumber, ParseMonth, ParseQuarter, ParseDate}) {
    ParsedTime time = parse(text);
    if (time.value || !time.impossible.empty()) return time;
  }
  return NoTime();
}

std::string TimeText(const TimeForm& form, std::int64_t tick) {
  switch (form.unit) {
    case TimeUnit::kNumber:
      return std::to_string(tick);
    case TimeUnit::kYear:
      return FourDigits(tick);
    case TimeUnit::kQuarter:
      return FourDigits(tick / 4) + "-Q" + std::to_string(tick % 4 + 1);
    case TimeUnit::kMonth:
      return FourDigits(tick / 12) + "-" + TwoDigits(tick % 12 + 1);
    case TimeUnit::kDay:
      return DayText(tick);
    case TimeUnit::kSecond:
      return SecondText(form, tick);
  }
  return "";
}

std::string FormName(TimeUnit unit) {
  switch (unit) {
    case TimeUnit::kNumber:
      return "a running number";
    case TimeUnit::kYear:
      return "a year";
    case TimeUnit::kQuarter:
      return "a quarter YYYY-Qn";
    case TimeUnit::kMonth:
      return "a month YYYY-MM";
    case TimeUnit::kDay:
      return "a date YYYY-MM-DD";
    case TimeUnit::kSecond:
      return "a date with time YYYY-MM-DD HH:MM:SS";
  }
  return "";
}

unsigned DaysInMonth(std::int64_t year, unsigned month) {
  constexpr std::array<unsigned, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return month == 2 && leap ? 29 : kDays[month - 1];
}

// Both ways count years from March, so that the leap day comes last, in eras of 400 years or
// 146097 days. The 1st of March of the year 0 lies 306 days before 0001-01-01.
std::int64_t TickFromDay(const CivilDay& day) {
  const std::int64_t year = day.month <= 2 ? day.year - 1 : day.year;         // [0, ...)
  const std::int64_t month = day.month <= 2 ? day.month + 9 : day.month - 3;  // [0, 11]
  const std::int64_t dayOfYear = (153 * month + 2) / 5 + day.day - 1;         // [0, 365]
  return year * 365 + year / 4 - year / 100 + year / 400 + dayOfYear - 306;
}

CivilDay DayFromTick(std::int64_t tick) {
  const std::int64_t days = tick + 306;
  const std::int64_t era = days / 146097;
  const std::int64_t dayOfEra = days % 146097;  // [0, 146096]
  const std::int64_t yearOfEra =
      (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;  // [0, 399]
  const std::int64_t dayOfYear =
      dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);  // [0, 365]
  const std::int64_t month = (5 * dayOfYear + 2) / 153;                // [0, 11], 0 is March
  const auto day = static_cast<unsigned>(dayOfYear - (153 * month + 2) / 5 + 1);
  const auto civilMonth = static_cast<unsigned>(month < 10 ? month + 3 : month - 9);
  return {era * 400 + yearOfEra + (civilMonth <= 2 ? 1 : 0), civilMonth, day};
}

}  // namespace tsx::cli
