#ifndef TSXPORT_TEXT_PLACE_H_
#define TSXPORT_TEXT_PLACE_H_

#include <cstddef>
#include <string>

namespace tsx::text {

// A place in a text file: line and column count from 1, columns in characters. Line 0 means no
// place in particular.
struct Place {
  std::size_t line = 0;
  std::size_t column = 0;

  bool operator==(const Place&) const = default;
};

// "FILE:LINE:COLUMN: CAUSE" on one line, without LINE:COLUMN when there is no place.
std::string LocatedMessage(const std::string& file, Place place, const std::string& cause);

}  // namespace tsx::text

#endif  // TSXPORT_TEXT_PLACE_H_
