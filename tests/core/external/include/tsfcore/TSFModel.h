#ifndef TSFCORE_TSFMODEL_H_
#define TSFCORE_TSFMODEL_H_

#include <string>

#include <tsfcore/Export.h>
#include <tsfcore/TSFESModelProp.h>
#include <tsfcore/TSFModelImp.h>

// A fitted smoothing or ARIMA model, by handle: copies share one immutable TSFModelImp.
//
//   TSFModel model(new TSFModelImp({.state = ..., .info = ..., .history = ...}));
//   tree.AddModelTree(model, refs);
class TSF_EXPORT TSFModel {
 public:
  TSFModel() = default;                 // an empty model
  explicit TSFModel(TSFModelImp* imp);  // takes a reference; null makes an empty model
  TSFModel(const TSFModel& other);
  TSFModel(TSFModel&& other) noexcept;  // leaves `other` empty
  TSFModel& operator=(const TSFModel& other);
  TSFModel& operator=(TSFModel&& other) noexcept;
  ~TSFModel();

  bool IsEmpty() const { return imp_ == nullptr; }
  // Borrowed; null when the model is empty.
  const TSFModelImp* GetImp() const { return imp_; }

  // An empty model has no predictors, no statistics and no properties.
  unsigned GetPredictorCount() const;

  // A statistic by name: "MSE", "RMSE", "MAPE", "MAE", "MAXAPE", "MAXAE", "RSQ", "NRMBIC",
  // "LOGLK", "SRSQ", "AIC" or "BIC". Missing when undefined or when there is no such name.
  double GetGOFStat(const std::string& name) const;

  // As EstimationInfo::GetLBStat.
  void GetLBStat(double& statistic, unsigned long& k, unsigned long& degreesOfFreedom,
                 double& pValue) const;

  // The weights of an exponential smoothing model; kind 0 for any other model.
  TSFESModelProp GetModelProperties() const;

 private:
  TSFModelImp* imp_ = nullptr;
};

#endif  // TSFCORE_TSFMODEL_H_
