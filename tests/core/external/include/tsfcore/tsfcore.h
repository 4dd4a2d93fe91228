#ifndef TSFCORE_TSFCORE_H_
#define TSFCORE_TSFCORE_H_

// The forecasting core as the exporter sees it: model handles, specifications, forecast states,
// estimation records. A core of any make offers these; how it fits is its own business.

#include <tsfcore/AMModelSpec.h>
#include <tsfcore/AMPowers.h>
#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/ARMAMLForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>
#include <tsfcore/BFSharedConst.h>
#include <tsfcore/DSymMat.h>
#include <tsfcore/ESForecastState.h>
#include <tsfcore/ESModelSpec.h>
#include <tsfcore/EstimationInfo.h>
#include <tsfcore/Export.h>
#include <tsfcore/ForecastState.h>
#include <tsfcore/ForecastStateVisitor.h>
#include <tsfcore/MCStatus.h>
#include <tsfcore/MV.h>
#include <tsfcore/TSFCrModel.h>
#include <tsfcore/TSFCrModelImp.h>
#include <tsfcore/TSFESModelProp.h>
#include <tsfcore/TSFModel.h>
#include <tsfcore/TSFModelImp.h>
#include <tsfcore/TSModelSpec.h>
#include <tsfcore/TSOutlierSpec.h>
#include <tsfcore/TSOutlierSpecList.h>
#include <tsfcore/TSRCObject.h>
#include <tsfcore/TSStatUtil.h>
#include <tsfcore/TSTransformation.h>

#endif  // TSFCORE_TSFCORE_H_
