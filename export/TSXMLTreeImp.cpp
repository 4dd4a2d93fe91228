#include "export/TSXMLTreeImp.h"

#include <utility>

#include <tsxport/ExportFormat.h>
#include <tsxport/WriteTree.h>
#include <tsxport/XMLUtil.h>

#include "datespec/write/DateSpecificationElement.h"
#include "pmml/Tags.h"
#include "tsxml/write/Frame.h"
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
  tsx::TimeField field = tsx::TimeFieldOf(spec, pmml_.GetTimeField());
  const int id = dictionary_.Register(spec, std::move(descriptor));
  pmml_.SetTimeField(std::move(field));
  return id;
}

bool TSXMLTreeImp::WriteToStream(std::ostream& out, bool frame) {
  return pmml_output_ ? WritePMMLToStream(out, frame) : WriteXMLToStream(out, frame);
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

bool TSXMLTreeImp::WritePMMLToStream(std::ostream& out, bool withDeclaration) {
  pmml_.SetApplication(application_.name(), application_.version());
  tsx::ElementPtr extension;
  if (!dictionary_.entries().empty()) {
    extension = tsx::MakeElement(tsx::pmml::tag::kExtension);
    dictionary_.entries().ForEach([&extension](const tsx::DicDateSpec& entry) {
      tsx::Append(*extension,
                  tsx::MakeDateSpecification(entry.date_spec, entry.descriptor, entry.id));
    });
  }
  pmml_.Write(out, withDeclaration, extension.get());
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
