#ifndef TSXPORT_TSXML_WRITE_MODELIDENTITY_H_
#define TSXPORT_TSXML_WRITE_MODELIDENTITY_H_

#include <tsxport/TSXDictionaryRefs.h>
#include <tsxport/XMLElement.h>

namespace tsx {

// Writes the attributes that open every model element:
//   modelName?        when not empty
//   modelDescriptor?  when not empty
//   variableID        always, also when empty
//   dateSpecID?       when greater than 0
void FillModelIdentity(TIMESERIESXML::XMLElement& model, const TSXDictionaryRefs& refs);

}  // namespace tsx

#endif  // TSXPORT_TSXML_WRITE_MODELIDENTITY_H_
