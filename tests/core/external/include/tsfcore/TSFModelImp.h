#ifndef TSFCORE_TSFMODELIMP_H_
#define TSFCORE_TSFMODELIMP_H_

#include <memory>
#include <valarray>

#include <tsfcore/EstimationInfo.h>
#include <tsfcore/Export.h>
#include <tsfcore/ForecastState.h>
#include <tsfcore/TSRCObject.h>

// A fitted model: what TSFModel handles share. Immutable after construction, so any number of
// threads may read it.
class TSF_EXPORT TSFModelImp : public TSRCObject {
 public:
  struct Fields {
    std::unique_ptr<const ForecastState> state{};  // may be null: a model without estimates
    EstimationInfo info{};
    std::valarray<double> history{};  // the dependent series on its original scale
    unsigned predictor_count = 0;
  };

  explicit TSFModelImp(Fields fields);
  ~TSFModelImp() override;
  TSFModelImp(const TSFModelImp&) = delete;
  TSFModelImp& operator=(const TSFModelImp&) = delete;

  // Borrowed from this object; null when the model has no estimates.
  const ForecastState* GetForecastState() const { return fields_.state.get(); }
  const EstimationInfo& GetEstimationInfo() const { return fields_.info; }
  // The series that was fitted, first case first; missing cases are MV::gMissingValue.
  const std::valarray<double>& GetHistoryData() const { return fields_.history; }
  unsigned GetPredictorCount() const { return fields_.predictor_count; }

 private:
  Fields fields_;
};

#endif  // TSFCORE_TSFMODELIMP_H_
