#include <utility>

#include <tsxport/TSXMLTree.h>

#include "export/TSXMLTreeImp.h"

static_assert(sizeof(TSXMLTree) == sizeof(void*));

TSXMLTree::TSXMLTree() : TSXMLTree(new TSXMLTreeImp) {}

TSXMLTree::TSXMLTree(TSXMLTreeImp* imp) : imp_(imp) {
  if (imp_ != nullptr) imp_->addReference();
}

TSXMLTree::TSXMLTree(const TSXMLTree& other) : TSXMLTree(other.imp_) {}

TSXMLTree& TSXMLTree::operator=(const TSXMLTree& other) {
  if (imp_ == other.imp_) return *this;
  TSXMLTree copy(other);
  std::swap(imp_, copy.imp_);
  return *this;
}

TSXMLTree::~TSXMLTree() {
  if (imp_ != nullptr) imp_->removeReference();
}

void TSXMLTree::SetApplication(std::string name, std::string version) {
  if (imp_ != nullptr) imp_->SetApplication(std::move(name), std::move(version));
}

void TSXMLTree::SetPMMLOutput(bool pmml) {
  if (imp_ != nullptr) imp_->SetPMMLOutputFlag(pmml);
}

int TSXMLTree::AddDateSpec(const TSXDateSpec& spec, std::string descriptor) {
  return imp_ != nullptr ? imp_->AddDateSpec(spec, std::move(descriptor)) : 0;
}

bool TSXMLTree::AddModelTree(TSFModel model, const TSXDictionaryRefs& refs) {
  return imp_ != nullptr && imp_->AddModelTree(std::move(model), refs);
}

bool TSXMLTree::AddModelTree(TSFCrModel model, const TSXDictionaryRefs& refs) {
  return imp_ != nullptr && imp_->AddModelTree(std::move(model), refs);
}

unsigned TSXMLTree::GetModelCount() const { return imp_ != nullptr ? imp_->GetModelCount() : 0; }

bool TSXMLTree::WriteToStream(std::ostream& out) {
  return imp_ != nullptr && imp_->WriteToStream(out, true);
}
