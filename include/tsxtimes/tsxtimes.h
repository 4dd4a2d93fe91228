#ifndef TSXTIMES_TSXTIMES_H_
#define TSXTIMES_TSXTIMES_H_

// Everything a host needs to tell the times of its series to a document, and a document's times to
// people:
//
//   texts     TimeText.h, TimeValue.h   "1949-02" <-> fields <-> instants, CivilDay.h for days
//   axes      DateAxis.h                instants -> cases and a TSXDateSpec
//   calendars CalendarTimes.h           a TSXDateSpec, of a document perhaps -> instants and back
//
// The library knows the calendars of libtsxport and nothing else of it.

#include <tsxtimes/CalendarTimes.h>
#include <tsxtimes/CivilDay.h>
#include <tsxtimes/DateAxis.h>
#include <tsxtimes/TimeText.h>
#include <tsxtimes/TimeValue.h>

#endif  // TSXTIMES_TSXTIMES_H_
