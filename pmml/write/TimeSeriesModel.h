#ifndef TSXPORT_PMML_WRITE_TIMESERIESMODEL_H_
#define TSXPORT_PMML_WRITE_TIMESERIESMODEL_H_

#include <valarray>

#include "pmml/write/TSXPMMLModelRecord.h"
#include "pmml/write/TimeField.h"
#include "xml/ElementPtr.h"

namespace tsx::pmml {

// Encodes the model of `record` with its history; never null. A model without an exponential
// smoothing state gets what can be told without one.
ElementPtr MakeTimeSeriesModel(const TSXPMMLModelRecord& record, const TSXDictionaryRefs& refs,
                               const TimeField& timeField, const std::valarray<double>& history);

}  // namespace tsx::pmml

#endif  // TSXPORT_PMML_WRITE_TIMESERIESMODEL_H_
