#ifndef TSXPORT_DATESPEC_WRITE_DATESPECIFICATIONELEMENT_H_
#define TSXPORT_DATESPEC_WRITE_DATESPECIFICATIONELEMENT_H_

#include <string>

#include <tsxport/TSXDateSpec.h>

#include "xml/ElementPtr.h"

namespace tsx {

// The "DateSpecification" element of a dictionary entry. An empty descriptor is left out.
ElementPtr MakeDateSpecification(const TSXDateSpec& spec, const std::string& descriptor,
                                 unsigned id);

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_WRITE_DATESPECIFICATIONELEMENT_H_
