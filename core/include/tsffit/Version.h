#ifndef TSFFIT_VERSION_H_
#define TSFFIT_VERSION_H_

#include <tsfcore/Export.h>

namespace tsffit {

// Version of the core that is running, e.g. "0.1.0".
TSF_EXPORT const char* CoreVersion();

}  // namespace tsffit

#endif  // TSFFIT_VERSION_H_
