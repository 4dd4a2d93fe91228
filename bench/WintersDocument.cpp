#include "bench/WintersDocument.h"

#include <random>

namespace bench {

std::vector<WintersModel> MakeModels(int count) {
  std::mt19937_64 random(20260101);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  const auto estimate = [&] { return Estimate{unit(random), 0.1 * unit(random)}; };
  std::vector<WintersModel> models(static_cast<std::size_t>(count));
  int number = 0;
  for (WintersModel& model : models) {
    model.name = "model " + std::to_string(++number);
    model.level = estimate();
    model.trend = estimate();
    model.season = estimate();
    model.state_level = 1000 * unit(random);
    model.state_trend = 10 * unit(random) - 5;
    for (double& factor : model.state_season) factor = 0.7 + 0.6 * unit(random);
    for (double& statistic : model.statistics) statistic = 500 * unit(random) - 100;
    model.ljung_box = 40 * unit(random);
    model.p_value = unit(random);
  }
  return models;
}

}  // namespace bench
