#ifndef TSXPORT_XML_NUMBERLIST_H_
#define TSXPORT_XML_NUMBERLIST_H_

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <valarray>

#include <tsxport/XMLElement.h>

namespace tsx {

// How a list spells infinities: "INF" and "-INF", or as the number format does, "inf" and "-inf".
enum class Infinities { kInCapitals, kAsFormatted };

// The values' texts (up to 15 significant digits, "." as decimal character), separated by single
// blanks. A value that equals `missing` is "NaN".
//
//   NumberListText({1.5, missing, infinity}, missing)  "1.5 NaN INF"
std::string NumberListText(std::span<const double> values, double missing,
                           Infinities infinities = Infinities::kInCapitals);

// Gives `target` the list as one text. Does nothing when there are no values or `values` is null.
void FillNumberList(TIMESERIESXML::XMLElement& target, std::span<const double> values,
                    double missing, Infinities infinities = Infinities::kInCapitals);
void FillNumberList(TIMESERIESXML::XMLElement& target, const double* values, std::size_t count,
                    double missing);

// Appends an element `name` with the list. Without values it appends an empty element when `force`
// is set, and else nothing. Returns whether it appended.
bool AppendVector(TIMESERIESXML::XMLElement& parent, std::string_view name,
                  std::span<const double> values, bool force, double missing);
bool AppendVector(TIMESERIESXML::XMLElement& parent, std::string_view name,
                  const std::valarray<double>& values, bool force, double missing);

// What a list shows for a formatted number: infinities in any of their spellings become "INF" or
// "-INF", any other text is left alone.
std::string_view ListText(std::string_view formatted);

}  // namespace tsx

#endif  // TSXPORT_XML_NUMBERLIST_H_
