#include <tsxtimes/TimeValue.h>
namespace tsxtimes {
namespace {

// Base indexes of a calendar have 32 bits.
constexpr std::int64_t kLargestNumber = 4'000'000'000;

// A field that names nothing, and what it is; no field where all is well.
struct Fault {
  const TimeField* field = nullptr;
  const char* name = "";
};

// Ranges of fields that do not depend on others.
Fault OutOfRange(const TimeField& field, std::int64_t least, std::int64_t most, const char* name) {
  if (field.value >= least && field.value <= most) return {};
  return {&field, name};
}

Fault YearFault(const TimeFields& fields) { return OutOfRange(fields.year, 1, 9999, "year"); }

Fault QuarterFault(const TimeFields& fields) {
  const Fault fault = YearFault(fields);
  return fault.field != nullptr ? fault : OutOfRange(fields.quarter, 1, 4, "quarter");
}

Fault MonthFault(const TimeFields& fields) {
  const Fault fault = YearFault(fields);
  return fault.field != nullptr ? fault : OutOfRange(fields.month, 1, 12, "month");
}

Fault DayFault(const TimeFields& fields) {
  if (const Fault fault = MonthFault(fields); fault.field != nullptr) return fault;
  const auto month = static_cast<unsigned>(fields.month.value);
  return OutOfRange(fields.day, 1, DaysInMonth(fields.year.value, month), "day");
}

// The time of day is judged before the day.
Fault SecondFault(const TimeFields& fields) {
  for (const Fault fault :
       {OutOfRange(fields.hour, 0, 23, "hour"), OutOfRange(fields.minute, 0, 59, "minute"),
        OutOfRange(fields.second, 0, 59, "second")}) {
    if (fault.field != nullptr) return fault;
  }
  return DayFault(fields);
}

Fault FaultOf(TimeUnit unit, const TimeFields& fields) {
  switch (unit) {
    case TimeUnit::kNumber:
      return OutOfRange(fields.number, 0, kLargestNumber, "number");
    case TimeUnit::kYear:
      return YearFault(fields);
    case TimeUnit::kQuarter:
      return QuarterFault(fields);
    case TimeUnit::kMonth:
      return MonthFault(fields);
    case TimeUnit::kDay:
      return DayFault(fields);
    case TimeUnit::kSecond:
      return SecondFault(fields);
  }
  return {};
}

std::string CauseOf(const Fault& fault, const TimeFields& fields) {
  if (fault.field == &fields.number) return "the number is too large to count cases by";
  const std::string value = std::to_string(fault.field->value);
  if (fault.field != &fields.day) return std::string("there is no ") + fault.name + " " + value;
  return FieldsText({TimeUnit::kMonth}, fields) + " has no day " + value;
}

std::int64_t DayTick(const TimeFields& fields) {
  return TickFromDay({fields.year.value, static_cast<unsigned>(fields.month.value),
                      static_cast<unsigned>(fields.day.value)});
}

// Of fields that name an instant.
std::int64_t TickOfFields(TimeUnit unit, const TimeFields& fields) {
  switch (unit) {
    case TimeUnit::kNumber:
      return fields.number.value;
    case TimeUnit::kYear:
      return fields.year.value;
    case TimeUnit::kQuarter:
      return 4 * fields.year.value + fields.quarter.value - 1;
    case TimeUnit::kMonth:
      return 12 * fields.year.value + fields.month.value - 1;
    case TimeUnit::kDay:
      return DayTick(fields);
    case TimeUnit::kSecond:
      return DayTick(fields) * kSecondsPerDay + fields.hour.value * 3600 +
             fields.minute.value * 60 + fields.second.value;
  }
  return 0;
}

void SetDay(TimeFields& fields, std::int64_t tick) {
  const CivilDay day = DayFromTick(tick);
  fields.year.value = day.year;
  fields.month.value = day.month;
  fields.day.value = day.day;
}

void SetSecond(TimeFields& fields, std::int64_t tick) {
  const std::int64_t second = tick % kSecondsPerDay;
  SetDay(fields, tick / kSecondsPerDay);
  fields.hour.value = second / 3600;
  fields.minute.value = second / 60 % 60;
  fields.second.value = second % 60;
}

}  // namespace

ParsedTime ResolveTime(const ScannedTime& scanned) {
  if (!scanned.is_time) return {std::nullopt, "", scanned.stop};
  const TimeUnit unit = scanned.form.unit;
  const Fault fault = FaultOf(unit, scanned.fields);
  if (fault.field != nullptr) {
    return {std::nullopt, CauseOf(fault, scanned.fields), fault.field->place};
  }
  return {TimeValue{scanned.form, TickOfFields(unit, scanned.fields)}, "", 0};
}

ParsedTime ParseTime(std::string_view text) { return ResolveTime(ScanTime(text)); }

TimeFields FieldsOfTick(TimeUnit unit, std::int64_t tick) {
  TimeFields fields;
  switch (unit) {
    case TimeUnit::kNumber:
      fields.number.value = tick;
      break;
    case TimeUnit::kYear:
      fields.year.value = tick;
      break;
    case TimeUnit::kQuarter:
      fields.year.value = tick / 4;
      fields.quarter.value = tick % 4 + 1;
      break;
    case TimeUnit::kMonth:
      fields.year.value = tick / 12;
      fields.month.value = tick % 12 + 1;
      break;
    case TimeUnit::kDay:
      SetDay(fields, tick);
      break;
    case TimeUnit::kSecond:
      SetSecond(fields, tick);
      break;
  }
  return fields;
}

std::string TimeText(const TimeForm& form, std::int64_t tick) {
  return FieldsText(form, FieldsOfTick(form.unit, tick));
}

}  // namespace tsxtimes
