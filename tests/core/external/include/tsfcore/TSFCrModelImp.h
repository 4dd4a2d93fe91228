#ifndef TSFCORE_TSFCRMODELIMP_H_
#define TSFCORE_TSFCRMODELIMP_H_

#include <array>
#include <utility>

#include <tsfcore/ESForecastState.h>
#include <tsfcore/EstimationInfo.h>
#include <tsfcore/Export.h>
#include <tsfcore/TSRCObject.h>
#include <tsfcore/TSTransformation.h>

// A fitted Croston model: three simple smoothing submodels and one estimation record. Immutable
// after construction.
class TSF_EXPORT TSFCrModelImp : public TSRCObject {
 public:
  struct Fields {
    // Demand sizes, intervals between demands, absolute errors of the demand rate.
    std::array<ESForecastState, 3> states{};
    int function_type = TSTransformation::kNone;  // of the demand sizes
    EstimationInfo info{};
  };

  explicit TSFCrModelImp(Fields fields);
  ~TSFCrModelImp() override;
  TSFCrModelImp(const TSFCrModelImp&) = delete;
  TSFCrModelImp& operator=(const TSFCrModelImp&) = delete;

  // 0: demand sizes, 1: intervals, 2: absolute errors.
  const ESForecastState& GetForecastState(int i) const {
    return fields_.states[static_cast<unsigned>(i)];
  }
  int GetFunctionType() const { return fields_.function_type; }
  const EstimationInfo& GetEstimationInfo() const { return fields_.info; }

 private:
  Fields fields_;
};

#endif  // TSFCORE_TSFCRMODELIMP_H_
