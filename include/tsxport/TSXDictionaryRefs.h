#ifndef TSXPORT_TSXDICTIONARYREFS_H_
#define TSXPORT_TSXDICTIONARYREFS_H_

#include <string>
#include <vector>

#include <tsxport/Export.h>

// The names under which one model appears in a document. A plain value, copied freely.
//
//   TSXDictionaryRefs refs("airline", "monthly totals", "passengers");
//   refs.SetDateSpecID(tree.AddDateSpec(monthly, "calendar months"));
//   tree.AddModelTree(model, refs);
class TSX_EXPORT TSXDictionaryRefs {
 public:
  // All names empty, no predictors, no date specification. Such a record admits no model: the
  // model name and the dependent variable's ID are required.
  TSXDictionaryRefs();

  // `modelDescriptor` is free text and may be empty. No predictors, no date specification.
  TSXDictionaryRefs(std::string modelName, std::string modelDescriptor, std::string dependentVarID);

  // With one non-empty ID per predictor of the model, in the model's order of predictors.
  TSXDictionaryRefs(std::string modelName, std::string modelDescriptor, std::string dependentVarID,
                    const std::vector<std::string>& predictorIDs);

  TSXDictionaryRefs(const TSXDictionaryRefs& other);
  TSXDictionaryRefs& operator=(const TSXDictionaryRefs& other);
  ~TSXDictionaryRefs();

  // Takes an ID that TSXMLTree::AddDateSpec returned, or 0 for a model without a time axis. A write
  // of the tree as time-series XML invalidates the IDs it gave out.
  void SetDateSpecID(int id);

  // The strings are owned by this record and live as long as it does.
  const std::string& GetModelName() const;
  const std::string& GetModelDescriptor() const;
  const std::string& GetDependentVarID() const;
  const std::vector<std::string>& GetPredictorIDs() const;
  int GetDateSpecID() const;

 private:
  std::string model_name_;
  std::string model_descriptor_;
  std::string dependent_var_id_;
  std::vector<std::string> predictor_ids_;
  int date_spec_id_ = 0;
};

#endif  // TSXPORT_TSXDICTIONARYREFS_H_
