#ifndef TSXPORT_TSXML_WRITE_OUTLIEREFFECT_H_
#define TSXPORT_TSXML_WRITE_OUTLIEREFFECT_H_

#include <cstdint>

#include <tsfcore/TSOutlierSpec.h>
#include <tsxport/XMLElement.h>

#include "tsxml/write/Coefficients.h"

namespace tsx {

// Appends, for an outlier whose parameters begin at position `first`:
//   <OutlierEffect type startIndex>
//     <EstimatedParameter>*     one per parameter; none when the estimates do not hold them all
//   </OutlierEffect>
// Nothing when its type has no name.
void AppendOutlierEffect(TIMESERIESXML::XMLElement& parent, const TSOutlierSpec& outlier,
                         std::uint32_t first, const Estimates& estimates);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_OUTLIEREFFECT_H_
