#ifndef TSXTIMES_TIMEVALUE_H_
#define TSXTIMES_TIMEVALUE_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <tsxtimes/CivilDay.h>
#include <tsxtimes/Export.h>
#include <tsxtimes/TimeText.h>

// Instants: the whole number, called tick, that a time is in its unit.
//
//   ParseTime("1949-02").value->tick               // 12 * 1949 + 1
//   ParseTime("1949-13").impossible                // "there is no month 13"
//   TimeText({TimeUnit::kMonth}, 12 * 1949 + 1)    // "1949-02"
//
// All functions are pure and may be called on any thread; they throw nothing but std::bad_alloc.
namespace tsxtimes {

// A time as a tick, a count of its unit:
//   kNumber   the number itself
//   kYear     years of our era
//   kQuarter  4 * year + quarter, the first quarter is 0
//   kMonth    12 * year + month, January is 0
//   kDay      days since 0001-01-01, a Monday, in the Gregorian calendar
//   kSecond   seconds since the start of that day
// Ticks are not negative, save where a function says so.
struct TimeValue {
  TimeForm form = {};
  std::int64_t tick = 0;
};

// What a text is as a time. `impossible` tells what is wrong with a text that has the form of a
// time but names none, such as 1999-13; both are empty when the text is no time at all.
struct ParsedTime {
  std::optional<TimeValue> value;
  std::string impossible;
  std::size_t place = 0;  // bytes before what is wrong; 0 where nothing is
};

// Finds the instant that the fields of a scanned text name, or the first of them that names
// nothing.
TSXTIMES_EXPORT ParsedTime ResolveTime(const ScannedTime& scanned);

// Reads a text: ScanTime() and ResolveTime(). A lone 1871 comes out as a number; whether a column
// of such numbers means years is for its reader to say.
TSXTIMES_EXPORT ParsedTime ParseTime(std::string_view text);

// Whether a number, written with four digits, is taken for a year where all numbers beside it may
// be, too.
constexpr bool MayBeYear(std::int64_t number) { return number >= 1000 && number < 3000; }

// The fields that a tick of this unit has.
TSXTIMES_EXPORT TimeFields FieldsOfTick(TimeUnit unit, std::int64_t tick);

// The text of a tick in the given form; ParseTime() of it gives the tick back (years come back as
// numbers, and seconds are lost to a form that does not have them).
TSXTIMES_EXPORT std::string TimeText(const TimeForm& form, std::int64_t tick);

}  // namespace tsxtimes

#endif  // TSXTIMES_TIMEVALUE_H_
