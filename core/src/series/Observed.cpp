#include "series/Observed.h"

#include <algorithm>

namespace tsffit {

std::size_t FirstObserved(std::span<const double> series) {
  const auto first = std::find_if_not(series.begin(), series.end(), IsMissing);
  return static_cast<std::size_t>(first - series.begin());
}

std::size_t CountObserved(std::span<const double> series) {
  return series.size() -
         static_cast<std::size_t>(std::count_if(series.begin(), series.end(), IsMissing));
}

}  // namespace tsffit
