// How a model gets into a tree: its references are checked, its element is built and kept.

#include <algorithm>
#include <optional>

#include <tsfcore/ESForecastState.h>
#include <tsxport/ModelXMLTreeMaker.h>

#include "export/TSXMLTreeImp.h"

namespace {

const ForecastState* StateOf(const TSFModel& model) {
  return model.IsEmpty() ? nullptr : model.GetImp()->GetForecastState();
}

}  // namespace

bool TSXMLTreeImp::CheckDictRefs(const TSFModel* model, const TSXDictionaryRefs& refs,
                                 unsigned& index) const {
  index = 0;
  if (refs.GetModelName().empty() || refs.GetDependentVarID().empty()) return false;
  if (refs.GetDateSpecID() != 0) {
    const std::optional<unsigned> position = dictionary_.Find(refs.GetDateSpecID());
    if (!position) return false;
    index = *position;
  }
  const std::vector<std::string>& ids = refs.GetPredictorIDs();
  if (ids.size() != (model != nullptr ? model->GetPredictorCount() : 0)) return false;
  return std::none_of(ids.begin(), ids.end(), [](const std::string& id) { return id.empty(); });
}

bool TSXMLTreeImp::AddModelTree(TSFModel model, const TSXDictionaryRefs& refs) {
  // PMML has smoothing models only: any other one turns the whole tree back, also when the model is
  // then refused.
  const bool smoothing = dynamic_cast<const ESForecastState*>(StateOf(model)) != nullptr;
  if (!smoothing) pmml_output_ = false;
  if (pmml_output_) return false;  // there is no PMML writer yet
  return AddXMLModelTree(model, refs);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): models are handed over by value
bool TSXMLTreeImp::AddModelTree(TSFCrModel /*model*/, const TSXDictionaryRefs& /*refs*/) {
  return false;  // there is no Croston encoder yet
}

bool TSXMLTreeImp::AddXMLModelTree(TSFModel& model, const TSXDictionaryRefs& refs) {
  unsigned index = 0;
  if (!CheckDictRefs(&model, refs, index)) return false;
  const ForecastState* state = StateOf(model);
  if (state == nullptr) return false;

  ModelXMLTreeMaker maker(refs, model.GetImp()->GetEstimationInfo());
  state->Accept(maker);
  tsx::ElementPtr element(maker.ReleaseTree());
  if (!element) return false;
  KeepModel(std::move(element), refs, index);
  return true;
}

void TSXMLTreeImp::KeepModel(tsx::ElementPtr model, const TSXDictionaryRefs& refs, unsigned index) {
  models_.push_back(std::move(model));
  if (refs.GetDateSpecID() != 0) dictionary_.MarkReferenced(index);
}
