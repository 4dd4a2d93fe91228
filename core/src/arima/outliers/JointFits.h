#ifndef TSFFIT_ARIMA_OUTLIERS_JOINTFITS_H_
#define TSFFIT_ARIMA_OUTLIERS_JOINTFITS_H_

#include <compare>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include <tsfcore/AMModelSpec.h>

#include "arima/model/Design.h"

namespace tsffit {

// An outlier that the search has at hand; its case counts from the first case of the data.
struct FoundOutlier {
  std::size_t at = 0;
  int type = 0;
  double decay = 0;  // of a transient one; 0 for others
  // NOLINTNEXTLINE(modernize-use-nullptr): the check sees the 0 that <=> is compared with
  friend auto operator<=>(const FoundOutlier&, const FoundOutlier&) = default;
};

// A model with outliers and what it is fitted to. The decays of transient outliers are what they
// are: every outlier but the innovational ones is a predictor with the series' differences.
struct OutlierModel {
  AMModelSpec spec{};
  ArimaData data{};
};

// Its fit by exact maximum likelihood.
struct JointFit {
  bool usable = false;
  double log_likelihood = 0;  // but for a constant that all fits share
  std::vector<double> parameters{};
};

// Fits of one model with different outliers, each made once.
class JointFits {
 public:
  // `spec` counts its outliers from the first case of `data`.
  JointFits(AMModelSpec::Fields spec, ArimaData data)
      : spec_(std::move(spec)), data_(std::move(data)) {}

  std::size_t Cases() const { return data_.series.size(); }

  // Whether the likelihood sees a case: what happens in another shows in later ones alone.
  bool Sees(std::size_t at) const;

  // `outliers` in rising order, here and below.
  OutlierModel ModelWith(const std::vector<FoundOutlier>& outliers) const;

  // Valid until this object ends.
  const JointFit& With(const std::vector<FoundOutlier>& outliers);

  // The outliers with decays as a fit of the model with all of them estimates them, without those
  // that have no size there; as they were when there is no fit.
  std::vector<FoundOutlier> WithDecays(std::vector<FoundOutlier> outliers) const;

 private:
  AMModelSpec::Fields spec_;
  ArimaData data_;
  std::map<std::vector<FoundOutlier>, JointFit> made_;
};

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_OUTLIERS_JOINTFITS_H_
