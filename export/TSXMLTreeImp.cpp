#include "export/TSXMLTreeImp.h"

#include <utility>

#include "dictionary/RefsCheck.h"

using tsx::Offer;
using tsx::PlaceOfPMML;
using tsx::PlaceOfTimeSeriesXML;

TSXMLTreeImp::TSXMLTreeImp() = default;
TSXMLTreeImp::~TSXMLTreeImp() = default;

void TSXMLTreeImp::SetApplication(std::string name, std::string version) {
  collection_.SetApplication(std::move(name), std::move(version));
}

void TSXMLTreeImp::SetPMMLOutputFlag(bool pmml) {
  collection_.Choose(pmml ? PlaceOfPMML() : PlaceOfTimeSeriesXML());
}

bool TSXMLTreeImp::GetPMMLOutputFlag() const { return collection_.chosen() == PlaceOfPMML(); }

unsigned TSXMLTreeImp::GetModelCount() const {
  return static_cast<unsigned>(collection_.ModelCount(PlaceOfTimeSeriesXML()));
}

const tsx::pmml::TSXPMMLDocument& TSXMLTreeImp::GetPMMLDocument() const {
  return AsPMML(collection_.dialect(PlaceOfPMML()));
}

int TSXMLTreeImp::AddDateSpec(const TSXDateSpec& spec, std::string descriptor) {
  return collection_.AddDateSpec(spec, std::move(descriptor));
}

bool TSXMLTreeImp::CheckDictRefs(const TSFModel* model, const TSXDictionaryRefs& refs,
                                 unsigned& index) const {
  const unsigned predictorCount = model != nullptr ? model->GetPredictorCount() : 0;
  return tsx::CheckRefs(refs, predictorCount, collection_.dictionary().entries(), index);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): models are handed over by value
bool TSXMLTreeImp::AddModelTree(TSFModel model, const TSXDictionaryRefs& refs) {
  return collection_.Add(Offer(model, refs));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): models are handed over by value
bool TSXMLTreeImp::AddModelTree(TSFCrModel model, const TSXDictionaryRefs& refs) {
  return collection_.Add(Offer(model, refs));
}

bool TSXMLTreeImp::AddXMLModelTree(TSFModel& model, const TSXDictionaryRefs& refs) {
  return collection_.AddTo(PlaceOfTimeSeriesXML(), Offer(model, refs));
}

bool TSXMLTreeImp::AddPMMLModelTree(TSFModel& model, const TSXDictionaryRefs& refs,
                                    const std::valarray<double>* history) {
  return collection_.AddTo(PlaceOfPMML(), {.refs = refs, .model = &model, .history = history});
}

bool TSXMLTreeImp::WriteToStream(std::ostream& out, bool frame) {
  return collection_.Write(collection_.chosen(), out, frame);
}

bool TSXMLTreeImp::WriteXMLToStream(std::ostream& out, bool frame) {
  return collection_.Write(PlaceOfTimeSeriesXML(), out, frame);
}

bool TSXMLTreeImp::WritePMMLToStream(std::ostream& out, bool withDeclaration) {
  return collection_.Write(PlaceOfPMML(), out, withDeclaration);
}
