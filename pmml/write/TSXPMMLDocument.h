#ifndef TSXPORT_PMML_WRITE_TSXPMMLDOCUMENT_H_
#define TSXPORT_PMML_WRITE_TSXPMMLDOCUMENT_H_

#include <ostream>
#include <string>
#include <utility>
#include <valarray>
#include <vector>

#include <tsfcore/TSFModel.h>
#include <tsxport/TSXDictionaryRefs.h>

#include "dictionary/DateSpecView.h"
#include "pmml/write/TSXPMMLModelRecord.h"
#include "pmml/write/TimeField.h"
#include "xml/ElementPtr.h"

namespace tsx::pmml {

// What a tree collects for a PMML document, and how it is written. A call that throws leaves it as
// it was.
class TSXPMMLDocument {
 public:
  // Replaces name and version, the version also by an empty one; an empty name changes nothing.
  void SetApplication(const std::string& name, const std::string& version);

  // Sets the time field to that of the specification's last named period.
  void SetTimeField(TimeField field) { time_field_ = std::move(field); }
  const TimeField& GetTimeField() const { return time_field_; }

  // Takes the tree's dictionary as it is now, for CheckRefs() alone.
  void SetDictionary(DateSpecView dictionary) { dictionary_ = std::move(dictionary); }

  // Adds the model as a "TimeSeriesModel". Always true: the references are checked, and what the
  // check says is ignored, on purpose.
  bool AddModelTree(const TSFModel& model, const TSXDictionaryRefs& refs,
                    const std::valarray<double>& history);

  // Whether the references would do for a model without predictors. Sets `dateSpecIndex` to the
  // position of the date specification.
  bool CheckRefs(const TSXDictionaryRefs& refs, unsigned& dateSpecIndex) const;

  // "PMML" with its header.
  ElementPtr CreateRoot() const;
  // Appends the fields of the model added last, behind `extension`, which may be null. False when
  // there is no root.
  bool AddDataDictionary(TIMESERIESXML::XMLElement* root,
                         const TIMESERIESXML::XMLElement* extension) const;
  // The whole document. Models and extension are borrowed: they must outlive it.
  ElementPtr BuildDocument(const TIMESERIESXML::XMLElement* extension) const;
  void Write(std::ostream& out, bool withDeclaration,
             const TIMESERIESXML::XMLElement* extension) const;

  const TSXPMMLModelRecord& GetModelRecord() const { return record_; }
  std::size_t GetModelCount() const { return models_.size(); }

 private:
  std::string application_name_ = "TimeSeriesApp";
  std::string application_version_ = "4.0";
  DateSpecView dictionary_;
  TimeField time_field_;
  std::vector<ElementPtr> models_;
  TSXPMMLModelRecord record_;
};

}  // namespace tsx::pmml

#endif  // TSXPORT_PMML_WRITE_TSXPMMLDOCUMENT_H_
