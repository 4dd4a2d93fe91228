#include "export/TSXMLTreeImp.h"

#include <utility>

#include <tsxport/ExportFormat.h>
#include <tsxport/WriteTree.h>
#include <tsxport/XMLUtil.h>

#include "export/Frame.h"
#include "tsxml/Tags.h"
#include "xml/BorrowedElement.h"

using TIMESERIESXML::ExportFormat;
using TIMESERIESXML::XMLUtil;

TSXMLTreeImp::TSXMLTreeImp() = default;

// The models go before all else that the tree holds.
TSXMLTreeImp::~TSXMLTreeImp() { models_.clear(); }

void TSXMLTreeImp::SetApplication(std::string name, std::string version) {
  application_.Set(std::move(name), std::move(version));
}

int TSXMLTreeImp::AddDateSpec(const TSXDateSpec& spec, std::string descriptor) {
  tsx::TimeField field = tsx::TimeFieldOf(spec, pmml_time_field_);
  const int id = dictionary_.Register(spec, std::move(descriptor));
  pmml_time_field_ = std::move(field);
  return id;
}

bool TSXMLTreeImp::WriteToStream(std::ostream& out, bool frame) {
  if (pmml_output_) return false;  // there is no PMML writer yet
  return WriteXMLToStream(out, frame);
}

bool TSXMLTreeImp::WriteXMLToStream(std::ostream& out, bool frame) {
  if (models_.empty()) return false;
  if (!frame) {
    WriteModels(out);
    models_.clear();
    return true;
  }
  WriteDocument(out);
  models_.clear();
  dictionary_.Clear();
  return true;
}

void TSXMLTreeImp::WriteModels(std::ostream& out) const {
  for (const tsx::ElementPtr& model : models_) {
    ExportFormat format;
    model->ToStream(out, format, false);
  }
}

void TSXMLTreeImp::WriteDocument(std::ostream& out) const {
  // The frame borrows the models, so that nothing is lost when memory runs out or the stream
  // throws.
  tsx::ElementPtr root = tsx::MakeFrame(application_);
  tsx::Append(*root, tsx::MakeDataDictionary(dictionary_));
  for (const tsx::ElementPtr& model : models_) tsx::Append(*root, tsx::Borrow(*model));

  TIMESERIESXML::Write(out, XMLUtil::FIRST_LINE);
  ExportFormat format;
  root->ToStream(out, format, false);
}
