#ifndef TSXPORT_TSXML_WRITE_CROSTONMODEL_H_
#define TSXPORT_TSXML_WRITE_CROSTONMODEL_H_

#include <tsfcore/ESForecastState.h>
#include <tsfcore/EstimationInfo.h>
#include <tsxport/TSXDictionaryRefs.h>

#include "xml/ElementPtr.h"

namespace tsx {

// Encodes a Croston model of its three submodels; never null. A submodel whose weight or state is
// missing is written with what it has, on purpose: intermittent series are often too short for all
// three.
ElementPtr MakeCrostonModel(const ESForecastState& actualDemand, const ESForecastState& elapsedTime,
                            const ESForecastState& absoluteError, const TSXDictionaryRefs& refs,
                            int functionType, const EstimationInfo& info);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_CROSTONMODEL_H_
