#include "pmml/write/TSXPMMLDocument.h"

#include <utility>

#include <tsxport/ExportFormat.h>
#include <tsxport/WriteTree.h>
#include <tsxport/XMLUtil.h>

#include "dictionary/RefsCheck.h"
#include "pmml/Tags.h"
#include "pmml/write/TimeSeriesModel.h"
#include "xml/BorrowedElement.h"

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

void AppendDataField(XMLElement& dictionary, const char* dataType, const std::string& name) {
  ElementPtr e = MakeElement(tag::kDataField);
  e->AddAttribute(attr::kDataType, dataType);
  e->AddAttribute(attr::kOptype, val::kContinuous);
  e->AddAttribute(attr::kName, name);
  e->AddAttribute(attr::kDisplayName, name);
  Append(dictionary, std::move(e));
}

void AppendTimeField(XMLElement& dictionary, const TimeField& time) {
  if (!time.name.empty() && !time.kind.empty()) {
    AppendDataField(dictionary, time.kind.c_str(), time.name);
  } else {
    AppendDataField(dictionary, val::kDefaultTimeType, val::kDefaultTimeName);
  }
}

}  // namespace

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
                                   const std::valarray<double>& history) {
  TSXPMMLModelRecord record = record_;
  record.Fill(model, refs, history);
  unsigned dateSpecIndex = 0;
  static_cast<void>(CheckRefs(refs, dateSpecIndex));  // the verdict is ignored, on purpose
  models_.push_back(MakeTimeSeriesModel(record, refs, time_field_, history));
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

bool TSXPMMLDocument::AddDataDictionary(XMLElement* root, const XMLElement* extension) const {
  if (root == nullptr) return false;
  ElementPtr e = MakeElement(tag::kDataDictionary);
  if (extension != nullptr) Append(*e, Borrow(*extension));
  e->AddAttribute(attr::kNumberOfFields, 2.0);
  // The fields are those of the model added last, whatever came before: the format is so.
  AppendDataField(*e, val::kDouble, record_.dependent_var_id);
  AppendTimeField(*e, time_field_);
  Append(*root, std::move(e));
  return true;
}

ElementPtr TSXPMMLDocument::BuildDocument(const XMLElement* extension) const {
  ElementPtr root = CreateRoot();
  AddDataDictionary(root.get(), extension);
  for (const ElementPtr& model : models_) Append(*root, Borrow(*model));
  return root;
}

void TSXPMMLDocument::Write(std::ostream& out, bool withDeclaration,
                            const XMLElement* extension) const {
  const ElementPtr root = BuildDocument(extension);
  if (withDeclaration) TIMESERIESXML::Write(out, TIMESERIESXML::XMLUtil::FIRST_LINE);
  TIMESERIESXML::ExportFormat format;
  root->ToStream(out, format, false);
}

}  // namespace tsx::pmml
