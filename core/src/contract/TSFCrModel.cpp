#include <utility>

#include <tsfcore/TSFCrModel.h>

TSFCrModelImp::TSFCrModelImp(Fields fields) : fields_(std::move(fields)) {}
TSFCrModelImp::~TSFCrModelImp() = default;

TSFCrModel::TSFCrModel(TSFCrModelImp* imp) : imp_(imp) {
  if (imp_ != nullptr) imp_->addReference();
}

TSFCrModel::TSFCrModel(const TSFCrModel& other) : TSFCrModel(other.imp_) {}

TSFCrModel& TSFCrModel::operator=(const TSFCrModel& other) {
  TSFCrModel copy(other);
  std::swap(imp_, copy.imp_);
  return *this;
}

TSFCrModel::TSFCrModel(TSFCrModel&& other) noexcept : imp_(std::exchange(other.imp_, nullptr)) {}

TSFCrModel& TSFCrModel::operator=(TSFCrModel&& other) noexcept {
  std::swap(imp_, other.imp_);
  return *this;
}

TSFCrModel::~TSFCrModel() {
  if (imp_ != nullptr) imp_->removeReference();
}
