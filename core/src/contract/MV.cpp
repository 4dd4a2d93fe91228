#include <limits>

#include <tsfcore/MV.h>

namespace MV {

constinit const double gMissingValue = std::numeric_limits<double>::lowest();

}  // namespace MV
