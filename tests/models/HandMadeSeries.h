#ifndef TSXPORT_TESTS_MODELS_HANDMADESERIES_H_
#define TSXPORT_TESTS_MODELS_HANDMADESERIES_H_

#include <memory>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include "models/Series.h"
#include "times/Axes.h"

namespace test {

// A series of no table: its cases follow one another from `first` on.
inline tsx::models::Series HandMadeSeries(std::vector<double> values,
                                          const std::string& first = "2000-01") {
  tsx::models::Series series;
  series.model_name = "toy";
  series.variable = "sales";
  series.axis = std::make_shared<const tsxtimes::DateAxis>(
      AxisOf(Times(first, 1, static_cast<int>(values.size()))));
  series.cases.resize(values.size());
  std::iota(series.cases.begin(), series.cases.end(), std::size_t{0});
  series.values = std::move(values);
  return series;
}

}  // namespace test

#endif  // TSXPORT_TESTS_MODELS_HANDMADESERIES_H_
