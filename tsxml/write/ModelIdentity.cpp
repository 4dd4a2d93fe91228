#include "tsxml/write/ModelIdentity.h"

#include "tsxml/Tags.h"

namespace tsx {

void FillModelIdentity(TIMESERIESXML::XMLElement& model, const TSXDictionaryRefs& refs) {
  if (!refs.GetModelName().empty()) model.AddAttribute(attr::kModelName, refs.GetModelName());
  if (!refs.GetModelDescriptor().empty()) {
    model.AddAttribute(attr::kModelDescriptor, refs.GetModelDescriptor());
  }
  model.AddAttribute(attr::kVariableID, refs.GetDependentVarID());
  if (refs.GetDateSpecID() > 0) model.AddAttribute(attr::kDateSpecID, refs.GetDateSpecID());
}

}  // namespace tsx
