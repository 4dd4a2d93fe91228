#ifndef TSXPORT_XML_BORROWEDELEMENT_H_
#define TSXPORT_XML_BORROWEDELEMENT_H_

#include "xml/ElementPtr.h"

namespace tsx {

// A stand-in for `element` as a child of another parent: written, it gives the element's text;
// deleted, it leaves the element alone. `element` must outlive it.
ElementPtr Borrow(const TIMESERIESXML::XMLElement& element);

}  // namespace tsx

#endif  // TSXPORT_XML_BORROWEDELEMENT_H_
