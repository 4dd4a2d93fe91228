#ifndef TSXPORT_DATESPEC_CALENDAR_STATUSCODES_H_
#define TSXPORT_DATESPEC_CALENDAR_STATUSCODES_H_

namespace tsx {

// Codes of the refusals, part of the interface.
enum StatusCode : unsigned {
  kObsAsBase = 40200,
  kCycleTooShort = 40201,
  kNotFinerThanBase = 40202,
  kIncompatiblePeriods = 40204,
  kNotOnSimpleSequence = 40205,
  kQuarterAndMonthDisagree = 40206,
  kBadIncrement = 40207,
  kInvalidTuple = 40208,
  kGapBelowOne = 40209,
};

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_CALENDAR_STATUSCODES_H_
