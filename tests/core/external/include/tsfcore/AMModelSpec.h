#ifndef TSFCORE_AMMODELSPEC_H_
#define TSFCORE_AMMODELSPEC_H_

#include <utility>
#include <vector>

#include <tsfcore/AMPowers.h>
#include <tsfcore/Export.h>
#include <tsfcore/TSModelSpec.h>
#include <tsfcore/TSOutlierSpecList.h>

// Specification of an ARIMA model with transfer functions and outliers.
//
// Polynomials as Box and Jenkins write them: AR 1 - phi B, MA 1 - theta B, numerators
// omega0 - omega1 B - ..., denominators 1 - delta B; a factor is a non-seasonal times a seasonal
// polynomial. The parameter vector holds, in this order: the constant, the AR coefficients, the MA
// coefficients, for each predictor its numerator (zero lag first) and then its denominator, and
// the outliers' parameters. Inside a factor the non-seasonal lags precede the seasonal ones.
class TSF_EXPORT AMModelSpec : public TSModelSpec {
 public:
  struct Factor {
    AMPowers non_seasonal{};
    AMPowers seasonal{};
  };

  struct Predictor {
    TSTransformation transform{};
    unsigned non_seasonal_diff = 0;
    unsigned seasonal_diff = 0;
    unsigned delay = 0;  // periods before the predictor takes effect
    Factor numerator{};  // lags beside the zero-lag coefficient, which is always there
    Factor denominator{};
  };

  struct Fields {
    unsigned season_length = 1;
    TSTransformation y_transform{};
    unsigned non_seasonal_diff = 0;
    unsigned seasonal_diff = 0;
    bool has_constant = false;
    Factor ar{};
    Factor ma{};
    std::vector<Predictor> predictors{};
    TSOutlierSpecList outliers{};
  };

  AMModelSpec() = default;
  explicit AMModelSpec(Fields fields) : fields_(std::move(fields)) {}

  unsigned GetParameterCount(bool all) const override;
  unsigned GetSeasonLength(bool effective) const override;
  const TSTransformation& GetYTransformSpec() const override { return fields_.y_transform; }

  // Differencing orders of the dependent series.
  void GetYDiff(unsigned& nonSeasonal, unsigned& seasonal) const;

  // Sets `present` when the model has a constant; returns its position in the parameter vector.
  unsigned GetMeanYPresent(bool& present) const;

  // Lags of the factor; returns the position of its first coefficient.
  unsigned GetARStruct(AMPowers& nonSeasonal, AMPowers& seasonal) const;
  unsigned GetMAStruct(AMPowers& nonSeasonal, AMPowers& seasonal) const;

  // Predictors are counted from 0; `i` must be below GetXCount().
  unsigned GetXCount() const;
  const TSTransformation& GetXTransformSpec(unsigned i) const;
  void GetXDiffNDelay(unsigned i, unsigned& nonSeasonal, unsigned& seasonal, unsigned& delay) const;
  // Position of the zero-lag coefficient, the first one of the numerator.
  unsigned GetXRegressionCoeff(unsigned i) const;
  void GetXNumerator(unsigned i, AMPowers& nonSeasonal, AMPowers& seasonal) const;
  // Lags of the denominator; returns the position of its first coefficient.
  unsigned GetXDenominator(unsigned i, AMPowers& nonSeasonal, AMPowers& seasonal) const;

  const TSOutlierSpecList& GetOutliers() const { return fields_.outliers; }
  // Position of the first parameter of the first outlier.
  unsigned GetOutlierParmIndex() const;

 private:
  Fields fields_;
};

#endif  // TSFCORE_AMMODELSPEC_H_
