#include <utility>

#include <tsxport/TSXDictionaryRefs.h>

TSXDictionaryRefs::TSXDictionaryRefs() = default;

TSXDictionaryRefs::TSXDictionaryRefs(std::string modelName, std::string modelDescriptor,
                                     std::string dependentVarID)
    : model_name_(std::move(modelName)),
      model_descriptor_(std::move(modelDescriptor)),
      dependent_var_id_(std::move(dependentVarID)) {}

TSXDictionaryRefs::TSXDictionaryRefs(std::string modelName, std::string modelDescriptor,
                                     std::string dependentVarID,
                                     const std::vector<std::string>& predictorIDs)
    : model_name_(std::move(modelName)),
      model_descriptor_(std::move(modelDescriptor)),
      dependent_var_id_(std::move(dependentVarID)),
      predictor_ids_(predictorIDs) {}

TSXDictionaryRefs::TSXDictionaryRefs(const TSXDictionaryRefs& other) = default;
TSXDictionaryRefs& TSXDictionaryRefs::operator=(const TSXDictionaryRefs& other) = default;
TSXDictionaryRefs::~TSXDictionaryRefs() = default;

void TSXDictionaryRefs::SetDateSpecID(int id) { date_spec_id_ = id; }

const std::string& TSXDictionaryRefs::GetModelName() const { return model_name_; }
const std::string& TSXDictionaryRefs::GetModelDescriptor() const { return model_descriptor_; }
const std::string& TSXDictionaryRefs::GetDependentVarID() const { return dependent_var_id_; }
const std::vector<std::string>& TSXDictionaryRefs::GetPredictorIDs() const {
  return predictor_ids_;
}
int TSXDictionaryRefs::GetDateSpecID() const { return date_spec_id_; }
