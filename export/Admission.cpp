// How a model gets into a tree: its references are checked, its element is built and kept.

#include <tsfcore/ESForecastState.h>
#include <tsxport/ModelXMLTreeMaker.h>

#include "dictionary/RefsCheck.h"
#include "export/TSXMLTreeImp.h"
#include "tsxml/write/CrostonModel.h"

namespace {

const ForecastState* StateOf(const TSFModel& model) {
  return model.IsEmpty() ? nullptr : model.GetImp()->GetForecastState();
}

}  // namespace

bool TSXMLTreeImp::CheckDictRefs(const TSFModel* model, const TSXDictionaryRefs& refs,
                                 unsigned& index) const {
  const unsigned predictorCount = model != nullptr ? model->GetPredictorCount() : 0;
  return tsx::CheckRefs(refs, predictorCount, dictionary_.entries(), index);
}

bool TSXMLTreeImp::AddModelTree(TSFModel model, const TSXDictionaryRefs& refs) {
  // PMML has smoothing models only: any other one turns the whole tree back, also when the model is
  // then refused.
  const bool smoothing = dynamic_cast<const ESForecastState*>(StateOf(model)) != nullptr;
  if (!smoothing) pmml_output_ = false;
  if (!pmml_output_) return AddXMLModelTree(model, refs);
  const std::valarray<double> history = model.GetImp()->GetHistoryData();
  return AddPMMLModelTree(model, refs, &history);
}

bool TSXMLTreeImp::AddPMMLModelTree(TSFModel& model, const TSXDictionaryRefs& refs,
                                    const std::valarray<double>* history) {
  const std::valarray<double> none;
  pmml_.SetDictionary(dictionary_.entries());
  return pmml_.AddModelTree(model, refs, history != nullptr ? *history : none);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): models are handed over by value
bool TSXMLTreeImp::AddModelTree(TSFCrModel model, const TSXDictionaryRefs& refs) {
  unsigned index = 0;
  if (model.IsEmpty() || !CheckDictRefs(nullptr, refs, index)) return false;
  // Always time-series XML, whatever the flag: PMML has no place for such a model.
  const TSFCrModelImp& imp = *model.GetImp();
  KeepModel(tsx::MakeCrostonModel(imp.GetForecastState(0), imp.GetForecastState(1),
                                  imp.GetForecastState(2), refs, imp.GetFunctionType(),
                                  imp.GetEstimationInfo()),
            refs, index);
  return true;
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
