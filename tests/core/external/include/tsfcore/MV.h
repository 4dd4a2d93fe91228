#ifndef TSFCORE_MV_H_
#define TSFCORE_MV_H_

#include <tsfcore/Export.h>

namespace MV {

// The missing value. A double anywhere in the contract is missing when it compares equal to this
// one; the embedded core's is the most negative finite double. Never NaN, so that `==` decides.
// Constant from before the first dynamic initialiser on; any thread may read it.
TSF_EXPORT extern const double gMissingValue;

}  // namespace MV

#endif  // TSFCORE_MV_H_
