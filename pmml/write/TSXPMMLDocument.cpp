#include "pmml/write/TSXPMMLDocument.h"

#include <string_view>
#include <utility>

#include "datespec/write/DateSpecificationElement.h"
#include "dictionary/RefsCheck.h"
#include "pmml/Tags.h"
#include "pmml/write/TimeSeriesModel.h"

// Writes:
//   <PMML version xmlns xmlns:xsi>
//     <Header copyright?>
//       <Application name version?/>?
//     </Header>
//     <DataDictionary numberOfFields>
//       <Extension>?                            the tree's date specifications
//       <DataField dataType optype name displayName/>  the dependent variable, then the time
//     </DataDictionary>
//     <TimeSeriesModel>*
//   </PMML>

namespace tsx::pmml {

namespace {

using TIMESERIESXML::XMLElement;

constexpr const DialectFacts& kFacts = *FindDialect("pmml");

ElementPtr MakeHeader(const std::string& name, const std::string& version) {
  ElementPtr header = MakeElement(tag::kHeader);
  if (name.empty()) return header;
  header->AddAttribute(attr::kCopyright, val::kCopyright);
  ElementPtr e = MakeElement(tag::kApplication);
  e->AddAttribute(attr::kName, name);
  if (!version.empty()) e->AddAttribute(attr::kVersion, version);
  Append(*header, std::move(e));
  return header;
}

void AppendDataField(XMLElement& dictionary, std::string_view dataType, std::string_view name) {
  ElementPtr e = MakeElement(tag::kDataField);
  e->AddAttribute(attr::kDataType, std::string(dataType));
  e->AddAttribute(attr::kOptype, val::kContinuous);
  e->AddAttribute(attr::kName, std::string(name));
  e->AddAttribute(attr::kDisplayName, std::string(name));
  Append(dictionary, std::move(e));
}

// Null without calendars.
ElementPtr MakeExtension(const DateSpecView& calendars) {
  if (calendars.empty()) return nullptr;
  ElementPtr e = MakeElement(tag::kExtension);
  calendars.ForEach([&e](const DicDateSpec& entry) {
    Append(*e, MakeDateSpecification(entry.date_spec, entry.descriptor, entry.id));
  });
  return e;
}

}  // namespace

TSXPMMLDocument::TSXPMMLDocument() : Dialect(kFacts, {}) {}

void TSXPMMLDocument::SeeCalendar(const TSXDateSpec& spec) noexcept {
  time_field_ = TimeFieldOf(spec, time_field_);
}

void TSXPMMLDocument::Begin(const DocumentFront& front, DocumentSink& out) {
  SetApplication(front.application.name(), front.application.version());
  out.Open(BuildDocument(MakeExtension(front.calendars)));
}

bool TSXPMMLDocument::Model(const OfferedModel& offer, DateSpecDictionary& dictionary,
                            ElementSink& out) {
  if (offer.model == nullptr) return false;
  const std::valarray<double> none;
  SetDictionary(dictionary.entries());
  return AddModelTree(*offer.model, offer.refs, offer.history != nullptr ? *offer.history : none,
                      out);
}

void TSXPMMLDocument::SetApplication(const std::string& name, const std::string& version) {
  if (name.empty()) return;
  std::string newName = name;
  std::string newVersion = version;
  application_name_ = std::move(newName);
  application_version_ = std::move(newVersion);
}

bool TSXPMMLDocument::CheckRefs(const TSXDictionaryRefs& refs, unsigned& dateSpecIndex) const {
  return tsx::CheckRefs(refs, 0, dictionary_, dateSpecIndex);
}

bool TSXPMMLDocument::AddModelTree(const TSFModel& model, const TSXDictionaryRefs& refs,
                                   const std::valarray<double>& history, ElementSink& out) {
  TSXPMMLModelRecord record = record_;
  record.Fill(model, refs, history);
  unsigned dateSpecIndex = 0;
  static_cast<void>(CheckRefs(refs, dateSpecIndex));  // the verdict is ignored, on purpose
  out.Take(MakeTimeSeriesModel(record, refs, time_field_, history));
  record_ = std::move(record);
  return true;
}

ElementPtr TSXPMMLDocument::CreateRoot() const {
  ElementPtr root = MakeElement(tag::kPMML);
  root->AddAttribute(attr::kVersion, val::kVersion);
  root->AddAttribute(attr::kXmlns, val::kNamespace);
  root->AddAttribute(attr::kXmlnsXsi, val::kXsiNamespace);
  Append(*root, MakeHeader(application_name_, application_version_));
  return root;
}

bool TSXPMMLDocument::AddDataDictionary(XMLElement* root, ElementPtr extension) const {
  if (root == nullptr) return false;
  ElementPtr e = MakeElement(tag::kDataDictionary);
  if (extension) Append(*e, std::move(extension));
  e->AddAttribute(attr::kNumberOfFields, 2.0);
  // The fields are those of the model added last, whatever came before: the format is so.
  AppendDataField(*e, val::kDouble, record_.dependent_var_id);
  const TimeField time = OrDefault(time_field_);
  AppendDataField(*e, time.kind, time.name);
  Append(*root, std::move(e));
  return true;
}

ElementPtr TSXPMMLDocument::BuildDocument(ElementPtr extension) const {
  ElementPtr root = CreateRoot();
  AddDataDictionary(root.get(), std::move(extension));
  return root;
}

}  // namespace tsx::pmml
