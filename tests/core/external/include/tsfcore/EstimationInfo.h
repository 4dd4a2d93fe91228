#ifndef TSFCORE_ESTIMATIONINFO_H_
#define TSFCORE_ESTIMATIONINFO_H_

#include <array>
#include <cstddef>
#include <cstdint>

#include <tsfcore/BFSharedConst.h>
#include <tsfcore/Export.h>
#include <tsfcore/MV.h>

// The goodness-of-fit record of one estimation. A plain value; what is undefined (a logarithm of 0,
// 0 / 0, a sum that overflows, a rule below that says so) is missing, never a NaN.
//
// How the embedded core fills it for smoothing models. n is the number of observed (not missing)
// cases of the span and k the number of weights; starting components and the error variance are
// never counted. y is the series, f its one-step forecasts transformed back to the original scale,
// E = y - f; e are the one-step errors on the modelled (transformed) scale. Sums run over the
// observed cases.
//
//   degrees of freedom  n - k
//   error variance      SSE_e / (n - k), SSE_e = sum of e^2
//   kMeanSqrErr         MSE = sum of E^2 / (n - k)
//   kRootMeanSqrErr     sqrt(MSE)
//   kMeanAbsPctErr      100 * mean of |E / y| over the cases with y not 0
//   kMeanAbsErr         mean of |E|
//   kMaxAbsPctErr       100 * largest |E / y| over the cases with y not 0
//   kMaxAbsErr          largest |E|
//   kRSqr               1 - sum of E^2 / sum of (y - mean of y)^2
//   kNormBayesIC        ln MSE + k ln n / n. Schwarz (1978), "Estimating the dimension of a model",
//                       Annals of Statistics 6, 461-464, per case and with MSE for the variance.
//   kLogLikelihood      LL = -n/2 (ln(2 pi SSE_e / n) + 1), the Gaussian likelihood of e at its
//                       largest; on the modelled scale, so that it compares models under one
//                       transformation
//   kAkaikeIC           -2 LL + 2 k. Akaike (1974), "A new look at the statistical model
//                       identification", IEEE Transactions on Automatic Control 19, 716-723.
//   kBayesIC            -2 LL + k ln n. Schwarz (1978).
//   kStationaryRSqr     1 - sum of e^2 / sum of (w - mean of w)^2 over the cases where
//                       w is defined, w the modelled series differenced as its kind implies. Harvey
//                       (1984), "A unified view of statistical forecasting procedures", Journal of
//                       Forecasting 3, 245-275. The differences are those of the ARIMA model with
//                       the same errors (Hyndman, Koehler, Ord and Snyder 2008, chapter 11): (1-B)
//                       for simple and damped trend, (1-B)^2 for Brown and Holt, (1-B^m) for simple
//                       seasonal, (1-B)(1-B^m) for both Winters kinds.
//   Ljung-Box           Q = n (n + 2) * sum over j = 1..K of r_j^2 / (n - j), r_j the j-th
//                       autocorrelation of e about its mean, pairs with a missing case left out.
//                       Ljung and Box (1978), "On a measure of lack of fit in time series models",
//                       Biometrika 65, 297-303. K = 18; chi-square with K - k degrees of freedom.
//                       No test with n <= K or when all e are equal.
//
// For ARIMA models k counts the estimated coefficients (constant, polynomials, effects; not the
// error variance), n is the number of cases in the likelihood, and
//
//   error variance      S / (n - k), S the sum of squares of e over the roots of their variances in
//                       units of the error variance (kCls: of e)
//   kLogLikelihood      of the differenced series, exact (kCls: conditional), with S / n for the
//                       variance; AIC and BIC from it
//   kStationaryRSqr     w the series with its own differences
//   Ljung-Box           of the standardised errors; K less the number of AR and MA coefficients
//                       degrees of freedom
class TSF_EXPORT EstimationInfo {
 public:
  // The periods that were fitted.
  struct Span {
    // Index of the first case of the fit, counted from 0. The embedded core's smoothing fits begin
    // at the first case that is not missing and run to the last case of the series.
    std::uint64_t start = 0;
    std::uint64_t length = 0;  // number of periods, missing ones included
  };

  // Ljung-Box test of the residuals.
  struct LjungBox {
    double statistic = MV::gMissingValue;
    unsigned long k = 0;                   // lags
    unsigned long degrees_of_freedom = 0;  // lags minus estimated parameters
    double p_value = MV::gMissingValue;    // missing without degrees of freedom
  };

  // Statistics by their code, each missing until set.
  class Statistics {
   public:
    Statistics() { values_.fill(MV::gMissingValue); }
    double& operator[](BFSharedConst::GOFStatType code) {
      return values_[static_cast<std::size_t>(code)];
    }
    double operator[](BFSharedConst::GOFStatType code) const {
      return values_[static_cast<std::size_t>(code)];
    }

   private:
    std::array<double, BFSharedConst::kGOFStatCount> values_;
  };

  struct Fields {
    Span span{};
    std::uint64_t degrees_of_freedom = 0;       // non-missing cases minus estimated parameters
    double error_variance = MV::gMissingValue;  // on the modelled scale
    Statistics statistics{};
    LjungBox ljung_box{};
  };

  EstimationInfo() = default;
  explicit EstimationInfo(const Fields& fields) : fields_(fields) {}

  const Span& GetSpan() const { return fields_.span; }
  std::uint64_t GetDegreesOfFreedom() const { return fields_.degrees_of_freedom; }
  double GetErrorVariance() const { return fields_.error_variance; }

  // The statistic; missing when undefined or when `code` is none of the codes.
  double GetGOFStat(BFSharedConst::GOFStatType code) const;

  // Statistic, lags, degrees of freedom, p-value. The statistic is missing when there is no test.
  void GetLBStat(double& statistic, unsigned long& k, unsigned long& degreesOfFreedom,
                 double& pValue) const;

 private:
  Fields fields_;
};

#endif  // TSFCORE_ESTIMATIONINFO_H_
