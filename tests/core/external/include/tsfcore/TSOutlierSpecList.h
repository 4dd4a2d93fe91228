#ifndef TSFCORE_TSOUTLIERSPECLIST_H_
#define TSFCORE_TSOUTLIERSPECLIST_H_

#include <utility>
#include <vector>

#include <tsfcore/Export.h>
#include <tsfcore/TSOutlierSpec.h>

// The outliers of an ARIMA model, in the order of their parameters. A plain value.
class TSF_EXPORT TSOutlierSpecList {
 public:
  TSOutlierSpecList() = default;
  explicit TSOutlierSpecList(std::vector<TSOutlierSpec> outliers)
      : outliers_(std::move(outliers)) {}

  // Number of outliers; with `typedOnly` true those of type kNone are not counted.
  unsigned GetOutlierSpecCount(bool typedOnly) const;

  // Outlier `j`, counted from 0 over all outliers, which must exist.
  const TSOutlierSpec& GetOutlierSpec(unsigned j) const { return outliers_[j]; }

  // Position of parameter `k` of outlier `j`, counted from the first parameter of outlier 0.
  unsigned ParameterVectorIndex(unsigned j, unsigned k) const;

 private:
  std::vector<TSOutlierSpec> outliers_;
};

#endif  // TSFCORE_TSOUTLIERSPECLIST_H_
