#ifndef TSXPORT_TSXML_WRITE_ARIMASTATE_H_
#define TSXPORT_TSXML_WRITE_ARIMASTATE_H_

#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>
#include <tsfcore/EstimationInfo.h>
#include <tsxport/TSXDictionaryRefs.h>

#include "xml/ElementPtr.h"

namespace tsx {

// Encode a whole ARIMA model: what ArimaModel.h writes, then the state that the fit left, then the
// estimation record. Null when `refs` has not one predictor ID for every predictor.
ElementPtr MakeArimaModel(const ARMAMLSpForecastState& state, const TSXDictionaryRefs& refs,
                          const EstimationInfo& info);
ElementPtr MakeArimaModel(const ARMAMLForecastState& state, const TSXDictionaryRefs& refs,
                          const EstimationInfo& info);
ElementPtr MakeArimaModel(const ARMACLSForecastState& state, const TSXDictionaryRefs& refs,
                          const EstimationInfo& info);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_ARIMASTATE_H_
