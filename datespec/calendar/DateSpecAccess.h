#ifndef TSXPORT_DATESPEC_CALENDAR_DATESPECACCESS_H_
#define TSXPORT_DATESPEC_CALENDAR_DATESPECACCESS_H_

#include <tsxport/TSXDateSpec.h>

#include "datespec/calendar/TSXDateSpecImp.h"

namespace tsx {

// The way behind a specification's handle, for what hosts have no use for.
struct DateSpecAccess {
  static const TSXDateSpecImp& Imp(const TSXDateSpec& spec) { return *spec.imp_; }
};

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_CALENDAR_DATESPECACCESS_H_
