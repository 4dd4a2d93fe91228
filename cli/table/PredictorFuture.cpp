#include "cli/table/PredictorFuture.h"

#include <algorithm>
#include <utility>

#include <tsfcore/MV.h>

namespace tsx::cli {
namespace {

// Makes the values from `count` on the predictor's future, as far as they follow one another.
void CutPredictor(models::Predictor& predictor, PredictorPlaces& places,
                  const std::vector<std::size_t>& cases, std::size_t count) {
  for (std::size_t i = count; i < cases.size(); ++i) {
    if (cases[i] != cases[i - 1] + 1 || predictor.values[i] == MV::gMissingValue) {
      places.future_end = PlaceOfCase(places.values, i);
      break;
    }
    predictor.future.push_back(predictor.values[i]);
    places.future.push_back(places.values[i]);
  }
  predictor.values.resize(count);
  places.values.resize(count);
}

// The axis of the cases up to `last`, one of those that have a row.
std::shared_ptr<const tsxtimes::DateAxis> CutAxis(tsxtimes::DateAxis axis, std::size_t last) {
  std::erase_if(axis.row_cases, [last](std::size_t at) { return at > last; });
  return std::make_shared<const tsxtimes::DateAxis>(std::move(axis));
}

}  // namespace

void CutFuture(TableSeries& read) {
  auto& [series, places] = read;
  const auto last = std::find_if(series.values.rbegin(), series.values.rend(),
                                 [](double value) { return value != MV::gMissingValue; });
  const auto count = static_cast<std::size_t>(series.values.rend() - last);
  if (count == 0 || count == series.values.size()) return;
  for (std::size_t i = 0; i < series.predictors.size(); ++i) {
    CutPredictor(series.predictors[i], places.predictors[i], series.cases, count);
  }
  series.values.resize(count);
  places.values.resize(count);
  series.cases.resize(count);
  series.axis = CutAxis(*series.axis, series.cases.back());
}

}  // namespace tsx::cli
