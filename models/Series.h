#ifndef TSXPORT_MODELS_SERIES_H_
#define TSXPORT_MODELS_SERIES_H_

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <tsxtimes/DateAxis.h>

// Values and their calendar, wherever they came from.
namespace tsx::models {

// What helps to explain a series.
struct Predictor {
  std::string name;
  std::vector<double> values;  // by the cases of the series
  std::vector<double> future;  // of the cases behind the series, up to the first one without
};

struct Series {
  std::string model_name;
  std::string variable;                            // what was measured
  std::shared_ptr<const tsxtimes::DateAxis> axis;  // shared by series of the same times
  std::vector<double> values;                      // by case; MV::gMissingValue where there is none
  std::vector<std::size_t> cases;                  // the axis' case of each value
  std::vector<Predictor> predictors;
};

// Whether cases of the axis were left out of the series rather than given missing values.
inline bool HasGaps(const Series& series) { return series.cases.size() < series.axis->CaseCount(); }

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_SERIES_H_
