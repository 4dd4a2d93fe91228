#ifndef TSFCORE_TSFESMODELPROP_H_
#define TSFCORE_TSFESMODELPROP_H_

#include <array>

#include <tsfcore/Export.h>
#include <tsfcore/MV.h>

// The weights of an exponential smoothing model, by name. A plain value.
class TSF_EXPORT TSFESModelProp {
 public:
  enum TSFESParmType : int {
    kLevel = 0,
    kTrend = 1,
    kSeason = 2,
    kDamping = 3,
  };

  struct Weight {
    double value = MV::gMissingValue;
    double std_error = MV::gMissingValue;
  };

  TSFESModelProp() = default;
  TSFESModelProp(int kind, const std::array<Weight, 4>& weights) : kind_(kind), weights_(weights) {}

  // The kinds of ESModelSpec::Kind numbered from 1 (additive Winters is 1, simple is 7); 0: none.
  int GetKind() const { return kind_; }

  // The estimate, or its standard error; missing when the model has no such weight.
  double GetWeight(TSFESParmType type) const { return weights_[static_cast<unsigned>(type)].value; }
  double GetStdError(TSFESParmType type) const {
    return weights_[static_cast<unsigned>(type)].std_error;
  }

 private:
  int kind_ = 0;
  std::array<Weight, 4> weights_;
};

#endif  // TSFCORE_TSFESMODELPROP_H_
