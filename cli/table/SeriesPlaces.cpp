#include "cli/table/SeriesPlaces.h"

#include <algorithm>

namespace tsx::cli {

text::Place PlaceOfCase(const std::vector<text::Place>& places, std::size_t i) {
  const auto first = places.begin() + static_cast<std::ptrdiff_t>(i);
  const auto found =
      std::find_if(first, places.end(), [](const text::Place& place) { return place.line != 0; });
  return found == places.end() ? text::Place{} : *found;
}

}  // namespace tsx::cli
