#ifndef TSXPORT_EXPORT_TSXMLTREEIMP_H_
#define TSXPORT_EXPORT_TSXMLTREEIMP_H_

#include <ostream>
#include <string>
#include <valarray>
#include <vector>

#include <tsfcore/TSFCrModel.h>
#include <tsfcore/TSFModel.h>
#include <tsfcore/TSRCObject.h>
#include <tsxport/TSXDateSpec.h>
#include <tsxport/TSXDictionaryRefs.h>

#include "dictionary/Application.h"
#include "dictionary/DateSpecDictionary.h"
#include "pmml/write/TSXPMMLDocument.h"
#include "xml/ElementPtr.h"

// What the TSXMLTree handles share. A call that throws leaves it as it was.
class TSXMLTreeImp : public TSRCObject {
 public:
  TSXMLTreeImp();
  ~TSXMLTreeImp() override;
  TSXMLTreeImp(const TSXMLTreeImp&) = delete;
  TSXMLTreeImp& operator=(const TSXMLTreeImp&) = delete;

  void SetApplication(std::string name, std::string version);
  void SetPMMLOutputFlag(bool pmml) { pmml_output_ = pmml; }
  bool GetPMMLOutputFlag() const { return pmml_output_; }
  unsigned GetModelCount() const { return static_cast<unsigned>(models_.size()); }
  const tsx::pmml::TSXPMMLDocument& GetPMMLDocument() const { return pmml_; }

  int AddDateSpec(const TSXDateSpec& spec, std::string descriptor);

  // Checks names and references. `model` null stands for a model without predictors. Sets `index`
  // to the position of the date specification, 0 when the refs name none.
  bool CheckDictRefs(const TSFModel* model, const TSXDictionaryRefs& refs, unsigned& index) const;

  bool AddModelTree(TSFModel model, const TSXDictionaryRefs& refs);
  bool AddModelTree(TSFCrModel model, const TSXDictionaryRefs& refs);
  bool AddXMLModelTree(TSFModel& model, const TSXDictionaryRefs& refs);
  // Always true: PMML takes the model whatever its references are worth. `history` null: none.
  bool AddPMMLModelTree(TSFModel& model, const TSXDictionaryRefs& refs,
                        const std::valarray<double>* history);

  // `frame` false: time-series XML without a frame, that is the bare model elements one after the
  // other, the dictionary being kept; PMML without its declaration.
  bool WriteToStream(std::ostream& out, bool frame);

 private:
  bool WriteXMLToStream(std::ostream& out, bool frame);
  bool WritePMMLToStream(std::ostream& out, bool withDeclaration);
  void WriteModels(std::ostream& out) const;
  void WriteDocument(std::ostream& out) const;
  // Keeps a finished element and marks the date specification that it refers to.
  void KeepModel(tsx::ElementPtr model, const TSXDictionaryRefs& refs, unsigned index);

  std::vector<tsx::ElementPtr> models_;
  tsx::DateSpecDictionary dictionary_;
  tsx::Application application_;
  bool pmml_output_ = false;
  tsx::pmml::TSXPMMLDocument pmml_;
};

#endif  // TSXPORT_EXPORT_TSXMLTREEIMP_H_
