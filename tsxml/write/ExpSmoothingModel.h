#ifndef TSXPORT_TSXML_WRITE_EXPSMOOTHINGMODEL_H_
#define TSXPORT_TSXML_WRITE_EXPSMOOTHINGMODEL_H_

#include <valarray>

#include <tsfcore/ESForecastState.h>
#include <tsfcore/EstimationInfo.h>
#include <tsxport/TSXDictionaryRefs.h>

#include "xml/ElementPtr.h"

namespace tsx {

// Encodes an exponential smoothing model. State and estimation record are optional (null); without
// them the elements that hold them are left out. Null when the model cannot be encoded without
// holes: an unknown kind, a weight whose estimate is missing, a state with a missing component.
// Estimates too few for the specification leave the weights out.
ElementPtr MakeExpSmoothingModel(const ESModelSpec& spec, const TSXDictionaryRefs& refs,
                                 const std::valarray<double>& values,
                                 const std::valarray<double>& stdErrors,
                                 const ESForecastState* state, const EstimationInfo* info);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_EXPSMOOTHINGMODEL_H_
