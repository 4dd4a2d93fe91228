#ifndef TSXPORT_TSXML_WRITE_ESTIMATIONINFOELEMENT_H_
#define TSXPORT_TSXML_WRITE_ESTIMATIONINFOELEMENT_H_

#include <tsfcore/EstimationInfo.h>

#include "xml/ElementPtr.h"

namespace tsx {

// The goodness-of-fit record of a model; always there, whatever is missing in it. Never null.
ElementPtr MakeEstimationInfo(const EstimationInfo& info);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_ESTIMATIONINFOELEMENT_H_
