#ifndef TSXPORT_EXPORT_TSXMLTREEIMP_H_
#define TSXPORT_EXPORT_TSXMLTREEIMP_H_

#include <ostream>
#include <string>
#include <valarray>

#include <tsfcore/TSFCrModel.h>
#include <tsfcore/TSFModel.h>
#include <tsfcore/TSRCObject.h>
#include <tsxport/TSXDateSpec.h>
#include <tsxport/TSXDictionaryRefs.h>

#include "export/Collection.h"

// What the TSXMLTree handles share: a collection, and the names by which its callers know it. A
// call that throws leaves it as it was, but for PMML, which a model may have switched off.
class TSXMLTreeImp : public TSRCObject {
 public:
  TSXMLTreeImp();
  ~TSXMLTreeImp() override;
  TSXMLTreeImp(const TSXMLTreeImp&) = delete;
  TSXMLTreeImp& operator=(const TSXMLTreeImp&) = delete;

  void SetApplication(std::string name, std::string version);
  void SetPMMLOutputFlag(bool pmml);
  bool GetPMMLOutputFlag() const;
  // The models of time-series XML.
  unsigned GetModelCount() const;
  const tsx::pmml::TSXPMMLDocument& GetPMMLDocument() const;

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
  bool WriteXMLToStream(std::ostream& out, bool frame);
  bool WritePMMLToStream(std::ostream& out, bool withDeclaration);

 private:
  tsx::Collection collection_;
};

#endif  // TSXPORT_EXPORT_TSXMLTREEIMP_H_
