#ifndef TSFCORE_TSOUTLIERSPEC_H_
#define TSFCORE_TSOUTLIERSPEC_H_

#include <tsfcore/Export.h>

// One outlier of an ARIMA model. A plain value.
class TSF_EXPORT TSOutlierSpec {
 public:
  enum Type : int {
    kNone = 0,
    kAdditive = 1,
    kLevel = 2,
    kTransient = 3,  // two parameters: size and decay
    kSeasonalAdditive = 4,
    kTrend = 5,
    kInnovational = 6,
    kVarianceChange = 7,  // of other cores: the embedded one does not make it
  };

  TSOutlierSpec() = default;
  TSOutlierSpec(int type, long startIndex) : type_(type), start_index_(startIndex) {}

  int GetType() const { return type_; }

  // Case at which the outlier begins, counted from 0, the first case of the fit.
  long GetStartIndex() const { return start_index_; }

  // Parameters it adds to the model: 2 for a transient outlier, 0 for kNone, otherwise 1.
  unsigned GetParameterCount() const;

 private:
  int type_ = kNone;
  long start_index_ = 0;
};

#endif  // TSFCORE_TSOUTLIERSPEC_H_
