#ifndef TSXPORT_MODELS_SERIES_H_
#define TSXPORT_MODELS_SERIES_H_

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "times/DateAxis.h"

// Values and their calendar, wherever they came from.
namespace tsx::cli {

// A column that helps to explain a series.
struct PredictorColumn {
  std::string name;
  std::vector<double> values;  // by the cases of the series
  std::vector<double> future;  // of the cases behind the series, up to the first one without
};

struct Series {
  std::string model_name;
  std::string variable;                  // the column's name
  std::shared_ptr<const DateAxis> axis;  // shared by the variables of the same rows
  std::vector<double> values;            // by case; MV::gMissingValue where there is none
  std::vector<std::size_t> cases;        // the axis' case of each value
  std::vector<PredictorColumn> predictors;
};

// Whether cases of the axis were left out of the series rather than given missing values.
inline bool HasGaps(const Series& series) { return series.cases.size() < series.axis->CaseCount(); }

}  // namespace tsx::cli

#endif  // TSXPORT_MODELS_SERIES_H_
