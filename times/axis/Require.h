#ifndef TSXPORT_TIMES_AXIS_REQUIRE_H_
#define TSXPORT_TIMES_AXIS_REQUIRE_H_

#include <stdexcept>
#include <string>

namespace tsxtimes {

// An axis is made so that its calendar is accepted; if it is not, the caller, or we, made a
// mistake.
inline void Require(bool accepted, const char* what) {
  if (!accepted) throw std::logic_error(std::string("internal error: calendar refused: ") + what);
}

}  // namespace tsxtimes

#endif  // TSXPORT_TIMES_AXIS_REQUIRE_H_
