#include "arima/forecast/Undifference.h"

#include "arima/forecast/Known.h"

namespace tsffit {

std::vector<double> SumUp(const Polynomial& difference, std::vector<double> z,
                          const std::vector<double>& differenced) {
  const std::size_t start = z.size();
  for (const double w : differenced) {
    double value = w;
    for (std::size_t k = 1; k < difference.size(); ++k) {
      value -= difference[k] * z[z.size() - k];
    }
    z.push_back(value);
  }
  z.erase(z.begin(), z.begin() + static_cast<std::ptrdiff_t>(start));
  return z;
}

std::optional<std::vector<double>> LastZ(const ARMAForecastState& state, std::size_t count) {
  const std::valarray<double>& actual = state.GetActualZ();
  if (actual.size() < count) return std::nullopt;
  std::vector<double> z = ToVector(actual);
  z.erase(z.begin(), z.end() - static_cast<std::ptrdiff_t>(count));
  if (!AllKnown(z)) return std::nullopt;
  return z;
}

}  // namespace tsffit
