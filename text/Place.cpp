#include "text/Place.h"

#include "text/Quoting.h"

namespace tsx::text {

std::string LocatedMessage(const std::string& file, Place place, const std::string& cause) {
  std::string message = Printable(file);
  if (place.line != 0) {
    message += ":" + std::to_string(place.line) + ":" + std::to_string(place.column);
  }
  return message + ": " + cause;
}

}  // namespace tsx::text
