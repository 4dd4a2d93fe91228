#ifndef TSFFIT_ARIMA_OUTLIERS_OUTLIERSCAN_H_
#define TSFFIT_ARIMA_OUTLIERS_OUTLIERSCAN_H_

#include <cstddef>
#include <vector>

#include <tsfcore/TSOutlierSpec.h>

#include "arima/fit/Likelihood.h"

namespace tsffit {

// An outlier that might be: its case counts from the first case of the design.
struct OutlierCandidate {
  int type = TSOutlierSpec::kNone;
  std::size_t at = 0;
  double tau = 0;  // absolute
};

// Looks at every case for outliers of one type, with the noise model and the other effects of
// `likelihood` at `parameters`. One value for each case: the absolute size of the outlier over its
// standard error, the residuals' scale by their median absolute deviation (Chen and Liu 1993,
// equations 11 and 12 and section 2.3); 0 where the effect cannot be told from what the model has.
// Empty when the likelihood is not usable there.
class OutlierScan {
 public:
  OutlierScan(const Likelihood& likelihood, const std::vector<double>& parameters);

  bool IsUsable() const { return residuals_.size() > 0 && scale_ > 0; }

  // `decay` is that of transient outliers.
  std::vector<double> TausOf(int type, double decay) const;

 private:
  // Effects on the differenced series of outliers at the cases from `begin` on, one a column.
  Eigen::MatrixXd Effects(int type, double decay, std::size_t begin, std::size_t end) const;

  const Likelihood& likelihood_;
  std::vector<double> parameters_;
  Eigen::VectorXd residuals_;
  Eigen::MatrixXd basis_;  // orthonormal, of the effects that the model has
  double scale_ = 0;
};

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_OUTLIERS_OUTLIERSCAN_H_
