#ifndef TSXPORT_CLI_TABLE_SERIESPLACES_H_
#define TSXPORT_CLI_TABLE_SERIESPLACES_H_

#include <cstddef>
#include <vector>

#include "models/Fault.h"
#include "text/Place.h"

// Where the cells of a series stand in its table, for messages. What a series says is independent
// of it, so this record stands beside the series, with members of the same names.
namespace tsx::cli {

struct PredictorPlaces {
  std::vector<text::Place> values;
  std::vector<text::Place> future;
  text::Place future_end;  // where the first unknown value is; line 0 when the table ends before it
};

struct SeriesPlaces {
  std::vector<text::Place> values;          // line 0 for skipped cases, which have no row
  std::vector<PredictorPlaces> predictors;  // in the order of the series' own
};

// Where case `i` of `places` stands; for a skipped one, which has no row, where the next one does.
text::Place PlaceOfCase(const std::vector<text::Place>& places, std::size_t i);

// Where the spot that a fault is about stands. The future of a predictor ends at its first unknown
// value, or at the last known one where the table ends before that.
text::Place PlaceOf(const models::Where& where, const SeriesPlaces& places);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_SERIESPLACES_H_
