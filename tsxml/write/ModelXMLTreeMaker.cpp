#include <utility>

#include <tsfcore/ESForecastState.h>
#include <tsxport/ModelXMLTreeMaker.h>

#include "tsxml/write/ArimaState.h"
#include "tsxml/write/ExpSmoothingModel.h"

ModelXMLTreeMaker::ModelXMLTreeMaker(const TSXDictionaryRefs& refs, const EstimationInfo& info)
    : refs_(refs), info_(info) {}

ModelXMLTreeMaker::~ModelXMLTreeMaker() { delete tree_; }

void ModelXMLTreeMaker::Visit(const ESForecastState& state) {
  tree_ = tsx::MakeExpSmoothingModel(state.GetESModelSpec(), refs_, state.GetParameterEstimates(),
                                     state.GetParameterStdErrors(), &state, &info_)
              .release();
}

void ModelXMLTreeMaker::Visit(const ARMACLSForecastState& state) {
  tree_ = tsx::MakeArimaModel(state, refs_, info_).release();
}

void ModelXMLTreeMaker::Visit(const ARMAMLForecastState& state) {
  tree_ = tsx::MakeArimaModel(state, refs_, info_).release();
}

void ModelXMLTreeMaker::Visit(const ARMAMLSpForecastState& state) {
  tree_ = tsx::MakeArimaModel(state, refs_, info_).release();
}

TIMESERIESXML::XMLElement* ModelXMLTreeMaker::ReleaseTree() {
  return std::exchange(tree_, nullptr);
}
