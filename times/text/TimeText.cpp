#include <charconv>

#include <tsxtimes/TimeText.h>

namespace tsxtimes {
namespace {

// Takes pieces off the front of a text; after the first piece that does not fit, none fits.
class Pieces {
 public:
  explicit Pieces(std::string_view text) : text_(text) {}

  // Takes `least` to `most` digits.
  TimeField Digits(std::size_t least, std::size_t most) {
    const char* const digits = text_.data() + at_;
    const std::size_t left = text_.size() - at_;
    std::size_t count = 0;
    while (count < left && digits[count] >= '0' && digits[count] <= '9') ++count;
    if (count < least || count > most) fits_ = false;
    if (!fits_) return {};
    TimeField field{0, at_};
    std::from_chars(digits, digits + count, field.value);
    at_ += count;
    return field;
  }

  // Takes one of the characters and returns it; 0 when another one is there.
  char OneOf(std::string_view characters) {
    if (!Next(characters)) {
      fits_ = false;
      return 0;
    }
    return text_[at_++];
  }

  bool Next(std::string_view characters) const {
    return fits_ && at_ < text_.size() && characters.find(text_[at_]) != std::string_view::npos;
  }

  bool Complete() const { return fits_ && at_ == text_.size(); }
  std::size_t Stop() const { return at_; }

 private:
  std::string_view text_;
  std::size_t at_ = 0;  // what is before it has been taken
  bool fits_ = true;
};

void ScanNumber(Pieces& in, ScannedTime& time) {
  time.form.unit = TimeUnit::kNumber;
  time.fields.number = in.Digits(1, 18);
}

// The pieces behind a year.
void ScanQuarter(Pieces& in, ScannedTime& time) {
  time.form.unit = TimeUnit::kQuarter;
  in.OneOf("Qq");
  time.fields.quarter = in.Digits(1, 2);
}

void ScanTimeOfDay(Pieces& in, ScannedTime& time) {
  time.form.unit = TimeUnit::kSecond;
  time.form.date_time_separator = in.OneOf(" T");
  time.fields.hour = in.Digits(1, 2);
  in.OneOf(":");
  time.fields.minute = in.Digits(2, 2);
  time.form.with_seconds = in.Next(":");
  if (!time.form.with_seconds) return;
  in.OneOf(":");
  time.fields.second = in.Digits(2, 2);
}

void ScanMonth(Pieces& in, ScannedTime& time) {
  time.form.unit = TimeUnit::kMonth;
  time.fields.month = in.Digits(1, 2);
  if (!in.Next("-")) return;
  in.OneOf("-");
  time.form.unit = TimeUnit::kDay;
  time.fields.day = in.Digits(1, 2);
  if (in.Next(" T")) ScanTimeOfDay(in, time);
}

void ScanYear(Pieces& in, ScannedTime& time) {
  time.fields.year = in.Digits(4, 4);
  if (in.Next("Qq")) return ScanQuarter(in, time);
  in.OneOf("-");
  in.Next("Qq") ? ScanQuarter(in, time) : ScanMonth(in, time);
}

// Digits at the end of a text, with zeros before them.
void AppendDigits(std::string& text, std::int64_t number, std::size_t least) {
  char digits[20];
  const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  const auto count = static_cast<std::size_t>(end - digits);
  text.append(count < least ? least - count : 0, '0').append(digits, count);
}

void AppendMonth(std::string& text, const TimeFields& fields) {
  AppendDigits(text, fields.year.value, 4);
  text += '-';
  AppendDigits(text, fields.month.value, 2);
}

void AppendDay(std::string& text, const TimeFields& fields) {
  AppendMonth(text, fields);
  text += '-';
  AppendDigits(text, fields.day.value, 2);
}

void AppendTimeOfDay(std::string& text, const TimeForm& form, const TimeFields& fields) {
  text += form.date_time_separator;
  AppendDigits(text, fields.hour.value, 2);
  text += ':';
  AppendDigits(text, fields.minute.value, 2);
  if (!form.with_seconds) return;
  text += ':';
  AppendDigits(text, fields.second.value, 2);
}

}  // namespace

ScannedTime ScanTime(std::string_view text) {
  Pieces in(text);
  ScannedTime time;
  const bool isNumber = text.find_first_not_of("0123456789") == std::string_view::npos;
  isNumber ? ScanNumber(in, time) : ScanYear(in, time);
  time.is_time = in.Complete();
  time.stop = in.Stop();
  return time;
}

std::string FieldsText(const TimeForm& form, const TimeFields& fields) {
  std::string text;
  switch (form.unit) {
    case TimeUnit::kNumber:
      AppendDigits(text, fields.number.value, 1);
      break;
    case TimeUnit::kYear:
      AppendDigits(text, fields.year.value, 4);
      break;
    case TimeUnit::kQuarter:
      AppendDigits(text, fields.year.value, 4);
      text += "-Q";
      AppendDigits(text, fields.quarter.value, 1);
      break;
    case TimeUnit::kMonth:
      AppendMonth(text, fields);
      break;
    case TimeUnit::kDay:
      AppendDay(text, fields);
      break;
    case TimeUnit::kSecond:
      AppendDay(text, fields);
      AppendTimeOfDay(text, form, fields);
      break;
  }
  return text;
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

}  // namespace tsxtimes
