#include "cli/table/SeriesPlaces.h"

#include <algorithm>

namespace tsx::cli {
namespace {

text::Place EndOf(const PredictorPlaces& places) {
  if (places.future_end.line != 0) return places.future_end;
  return places.future.empty() ? places.values.back() : places.future.back();
}

}  // namespace

text::Place PlaceOfCase(const std::vector<text::Place>& places, std::size_t i) {
  const auto first = places.begin() + static_cast<std::ptrdiff_t>(i);
  const auto found =
      std::find_if(first, places.end(), [](const text::Place& place) { return place.line != 0; });
  return found == places.end() ? text::Place{} : *found;
}

text::Place PlaceOf(const models::Where& where, const SeriesPlaces& places) {
  using Part = models::Where::Part;
  switch (where.part) {
    case Part::kNowhere:
      return {};
    case Part::kValue:
      return PlaceOfCase(places.values, where.index);
    case Part::kPredictorValue:
      return PlaceOfCase(places.predictors[where.predictor].values, where.index);
    case Part::kPredictorFuture:
      return places.predictors[where.predictor].future[where.index];
    case Part::kFutureEnd:
      return EndOf(places.predictors[where.predictor]);
  }
  return {};
}

}  // namespace tsx::cli
