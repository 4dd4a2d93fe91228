#ifndef TSFCORE_TSFCRMODEL_H_
#define TSFCORE_TSFCRMODEL_H_

#include <tsfcore/Export.h>
#include <tsfcore/TSFCrModelImp.h>

// A fitted Croston model of intermittent demand, by handle: copies share one TSFCrModelImp.
class TSF_EXPORT TSFCrModel {
 public:
  TSFCrModel() = default;                   // an empty model
  explicit TSFCrModel(TSFCrModelImp* imp);  // takes a reference; null makes an empty model
  TSFCrModel(const TSFCrModel& other);
  TSFCrModel(TSFCrModel&& other) noexcept;  // leaves `other` empty
  TSFCrModel& operator=(const TSFCrModel& other);
  TSFCrModel& operator=(TSFCrModel&& other) noexcept;
  ~TSFCrModel();

  bool IsEmpty() const { return imp_ == nullptr; }
  // Borrowed; null when the model is empty.
  const TSFCrModelImp* GetImp() const { return imp_; }

 private:
  TSFCrModelImp* imp_ = nullptr;
};

#endif  // TSFCORE_TSFCRMODEL_H_
