#ifndef TSXPORT_PMML_WRITE_TSXPMMLDOCUMENT_H_
#define TSXPORT_PMML_WRITE_TSXPMMLDOCUMENT_H_

#include <string>
#include <utility>
#include <valarray>

#include <tsfcore/TSFModel.h>
#include <tsxport/TSXDictionaryRefs.h>

#include "dialect/Dialect.h"
#include "dictionary/DateSpecView.h"
#include "pmml/write/TSXPMMLModelRecord.h"
#include "pmml/write/TimeField.h"
#include "xml/ElementPtr.h"

namespace tsx::pmml {

// PMML: what a document has to know of the calendars and models that it was given, and its frame.
class TSXPMMLDocument final : public Dialect {
 public:
  TSXPMMLDocument();

  void SeeCalendar(const TSXDateSpec& spec) noexcept override;
  void Begin(const DocumentFront& front, DocumentSink& out) override;
  // Takes any smoothing or ARIMA model, whatever its references are worth.
  bool Model(const OfferedModel& offer, DateSpecDictionary& dictionary, ElementSink& out) override;

  // Replaces name and version, the version also by an empty one; an empty name changes nothing.
  void SetApplication(const std::string& name, const std::string& version);

  // Sets the time field to that of the specification's last named period.
  void SetTimeField(const TimeField& field) { time_field_ = field; }
  const TimeField& GetTimeField() const { return time_field_; }

  // Takes the tree's dictionary as it is now, for CheckRefs() alone.
  void SetDictionary(DateSpecView dictionary) { dictionary_ = std::move(dictionary); }

  // Hands the model to `out` as a "TimeSeriesModel". Always true: the references are checked, and
  // what the check says is ignored, on purpose.
  bool AddModelTree(const TSFModel& model, const TSXDictionaryRefs& refs,
                    const std::valarray<double>& history, ElementSink& out);

  // Whether the references would do for a model without predictors. Sets `dateSpecIndex` to the
  // position of the date specification.
  bool CheckRefs(const TSXDictionaryRefs& refs, unsigned& dateSpecIndex) const;

  // "PMML" with its header.
  ElementPtr CreateRoot() const;
  // Appends the fields of the model added last, behind `extension`, which may be null. False when
  // there is no root.
  bool AddDataDictionary(TIMESERIESXML::XMLElement* root, ElementPtr extension) const;
  // The document without its models.
  ElementPtr BuildDocument(ElementPtr extension) const;

  const TSXPMMLModelRecord& GetModelRecord() const { return record_; }

 private:
  std::string application_name_ = "TimeSeriesApp";
  std::string application_version_ = "4.0";
  DateSpecView dictionary_;
  TimeField time_field_;
  TSXPMMLModelRecord record_;
};

}  // namespace tsx::pmml

#endif  // TSXPORT_PMML_WRITE_TSXPMMLDOCUMENT_H_
