#ifndef TSXPORT_TSXML_WRITE_TIMESERIESDIALECT_H_
#define TSXPORT_TSXML_WRITE_TIMESERIESDIALECT_H_

#include "dialect/Dialect.h"

namespace tsx {

// Time-series XML: refuses names that the check refuses, and lists the calendars that models refer
// to.
class TimeSeriesDialect final : public Dialect {
 public:
  TimeSeriesDialect();

  void Begin(const DocumentFront& front, DocumentSink& out) override;
  bool Model(const OfferedModel& offer, DateSpecDictionary& dictionary, ElementSink& out) override;
};

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_TIMESERIESDIALECT_H_
