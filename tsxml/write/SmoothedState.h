#ifndef TSXPORT_TSXML_WRITE_SMOOTHEDSTATE_H_
#define TSXPORT_TSXML_WRITE_SMOOTHEDSTATE_H_

#include <tsfcore/ESForecastState.h>
#include <tsxport/XMLElement.h>

namespace tsx {

// Appends the final state of an exponential smoothing model:
//   <StateLevel>value</StateLevel>
//   <StateTrend>value</StateTrend>?            kinds with a trend
//   <StateSeason phase>values</StateSeason>?   more than one seasonal value
// False, and nothing appended, when the level, a trend that `spec` calls for or any seasonal value
// is missing.
bool AppendSmoothedState(TIMESERIESXML::XMLElement& parent, const ESModelSpec& spec,
                         const ESForecastState& state);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_SMOOTHEDSTATE_H_
