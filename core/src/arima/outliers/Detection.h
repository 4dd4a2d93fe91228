#ifndef TSFFIT_ARIMA_OUTLIERS_DETECTION_H_
#define TSFFIT_ARIMA_OUTLIERS_DETECTION_H_

#include <cstddef>
#include <set>
#include <utility>
#include <vector>

#include <tsfcore/TSOutlierSpec.h>

#include "arima/outliers/JointFits.h"

namespace tsffit {

// In the order in which types with the same effect are taken.
inline constexpr TSOutlierSpec::Type kOutlierTypes[] = {
    TSOutlierSpec::kAdditive,         TSOutlierSpec::kLevel,
    TSOutlierSpec::kTransient,        TSOutlierSpec::kInnovational,
    TSOutlierSpec::kSeasonalAdditive, TSOutlierSpec::kTrend};

// What tells one outlier from another: case and type.
using OutlierPlace = std::pair<std::size_t, int>;

// What the search goes by, everything filled in.
struct DetectionRules {
  double critical_value = 0;
  double decay = 0;
  std::size_t max_outliers = 0;
  std::size_t max_coefficients = 0;          // of outliers, for which there are cases
  std::vector<TSOutlierSpec::Type> types{};  // in the order of kOutlierTypes
};

// The stages of Outliers.h for one model. `given` are outliers that it has already.
std::vector<FoundOutlier> DetectOutliers(JointFits& fits, const DetectionRules& rules,
                                         std::set<OutlierPlace> given);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_OUTLIERS_DETECTION_H_
