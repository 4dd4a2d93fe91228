#ifndef TSXTIMES_TIMETEXT_H_
#define TSXTIMES_TIMETEXT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <tsxtimes/Export.h>

// The forms in which a text tells a time, and the fields that each form has.
//
//   form         unit      fields
//   17           kNumber   number
//   1871         kYear     year             (read as a number; see MayBeYear in TimeValue.h)
//   1960-Q1      kQuarter  year, quarter    (1960Q1 is read, too)
//   1949-01      kMonth    year, month
//   2020-02-29   kDay      year, month, day
//   2020-02-29 13:45[:00]
//                kSecond   all but number and quarter; a blank or a T stands before the time of day
//
// Nothing here knows what years, months or days there are: that is told by ResolveTime() in
// TimeValue.h, which most callers want, or ParseTime() there, which does both. All functions are
// pure and may be called on any thread; they throw nothing but std::bad_alloc.
namespace tsxtimes {

// What a time counts, from coarse to fine.
enum class TimeUnit { kNumber, kYear, kQuarter, kMonth, kDay, kSecond };

// How times are written.
struct TimeForm {
  TimeUnit unit = TimeUnit::kNumber;
  char date_time_separator = ' ';  // or 'T'
  bool with_seconds = false;       // HH:MM:SS rather than HH:MM
};

// A number in a text, and where it begins: bytes from the start of the text.
struct TimeField {
  std::int64_t value = 0;
  std::size_t place = 0;
};

// Quarters, months and days count from 1, hours, minutes and seconds from 0. Fields that the form
// does not have are 0.
struct TimeFields {
  TimeField number = {};
  TimeField year = {};
  TimeField quarter = {};
  TimeField month = {};
  TimeField day = {};
  TimeField hour = {};
  TimeField minute = {};
  TimeField second = {};
};

// What a text looks like.
struct ScannedTime {
  bool is_time = false;  // whether it has one of the forms; if not, there is `stop` alone
  TimeForm form;
  TimeFields fields;
  std::size_t stop = 0;  // the first byte that fits none of the forms
};

// Takes a text apart. 1999-13 has the form of a month, though there is none such.
TSXTIMES_EXPORT ScannedTime ScanTime(std::string_view text);

// The text of fields in a form; their places have no part in it.
//   FieldsText({TimeUnit::kMonth}, {.year = {1949}, .month = {1}})  is  "1949-01"
TSXTIMES_EXPORT std::string FieldsText(const TimeForm& form, const TimeFields& fields);

// "a month YYYY-MM" and the like, for messages.
TSXTIMES_EXPORT std::string FormName(TimeUnit unit);

}  // namespace tsxtimes

#endif  // TSXTIMES_TIMETEXT_H_
