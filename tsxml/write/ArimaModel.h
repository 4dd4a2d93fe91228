#ifndef TSXPORT_TSXML_WRITE_ARIMAMODEL_H_
#define TSXPORT_TSXML_WRITE_ARIMAMODEL_H_

#include <valarray>

#include <tsfcore/AMModelSpec.h>
#include <tsxport/TSXDictionaryRefs.h>

#include "xml/ElementPtr.h"

namespace tsx {

// Encodes the specification of an ARIMA model and its estimates, without state and estimation
// record (ArimaState.h has the whole model). Null when `refs` has not one predictor ID for every
// predictor. Where `values` or `stdErrors` are too short for a group of coefficients, none of
// them is told; their places are written all the same.
ElementPtr MakeArimaModel(const AMModelSpec& spec, const TSXDictionaryRefs& refs,
                          const std::valarray<double>& values,
                          const std::valarray<double>& stdErrors);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_ARIMAMODEL_H_
