#include "models/arima/OutlierTime.h"

#include <algorithm>

namespace tsx::models {

std::optional<std::size_t> IndexOfOutlier(const Series& series, const OutlierRequest& outlier) {
  const std::optional<std::size_t> at = series.axis->CaseOf(outlier.time);
  if (!at) return std::nullopt;
  const auto found = std::lower_bound(series.cases.begin(), series.cases.end(), *at);
  if (found == series.cases.end() || *found != *at) return std::nullopt;
  return static_cast<std::size_t>(found - series.cases.begin());
}

}  // namespace tsx::models
