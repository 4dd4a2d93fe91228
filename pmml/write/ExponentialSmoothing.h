#ifndef TSXPORT_PMML_WRITE_EXPONENTIALSMOOTHING_H_
#define TSXPORT_PMML_WRITE_EXPONENTIALSMOOTHING_H_

#include <span>

#include <tsfcore/ESForecastState.h>

#include "pmml/write/TSXPMMLModelRecord.h"
#include "xml/ElementPtr.h"

namespace tsx::pmml {

// The weights of `record` and the final state (null: none) of a smoothing model; never null.
ElementPtr MakeExponentialSmoothing(const TSXPMMLModelRecord& record, const ESForecastState* state);

// Gives `array` its values as one text, separated by single blanks; a missing value is "NaN", and
// infinities stay as the number format writes them. Does nothing without values.
void AddValueList(TIMESERIESXML::XMLElement& array, std::span<const double> values);

}  // namespace tsx::pmml

#endif  // TSXPORT_PMML_WRITE_EXPONENTIALSMOOTHING_H_
