#include <tsfcore/AMModelSpec.h>

namespace {

unsigned LagCount(const AMModelSpec::Factor& factor) {
  return factor.non_seasonal.GetCount() + factor.seasonal.GetCount();
}

void GetLags(const AMModelSpec::Factor& factor, AMPowers& nonSeasonal, AMPowers& seasonal) {
  nonSeasonal = factor.non_seasonal;
  seasonal = factor.seasonal;
}

unsigned NumeratorCount(const AMModelSpec::Predictor& predictor) {
  return 1 + LagCount(predictor.numerator);
}

}  // namespace

unsigned AMModelSpec::GetParameterCount(bool /*all: nothing is ever fixed*/) const {
  const unsigned outliers = fields_.outliers.GetOutlierSpecCount(false);
  return GetOutlierParmIndex() + fields_.outliers.ParameterVectorIndex(outliers, 0);
}

unsigned AMModelSpec::GetSeasonLength(bool /*effective: the declared season is in use*/) const {
  return fields_.season_length;
}

void AMModelSpec::GetYDiff(unsigned& nonSeasonal, unsigned& seasonal) const {
  nonSeasonal = fields_.non_seasonal_diff;
  seasonal = fields_.seasonal_diff;
}

unsigned AMModelSpec::GetMeanYPresent(bool& present) const {
  present = fields_.has_constant;
  return 0;
}

unsigned AMModelSpec::GetARStruct(AMPowers& nonSeasonal, AMPowers& seasonal) const {
  GetLags(fields_.ar, nonSeasonal, seasonal);
  return fields_.has_constant ? 1 : 0;
}

unsigned AMModelSpec::GetMAStruct(AMPowers& nonSeasonal, AMPowers& seasonal) const {
  GetLags(fields_.ma, nonSeasonal, seasonal);
  return (fields_.has_constant ? 1 : 0) + LagCount(fields_.ar);
}

unsigned AMModelSpec::GetXCount() const { return static_cast<unsigned>(fields_.predictors.size()); }

const TSTransformation& AMModelSpec::GetXTransformSpec(unsigned i) const {
  return fields_.predictors[i].transform;
}

void AMModelSpec::GetXDiffNDelay(unsigned i, unsigned& nonSeasonal, unsigned& seasonal,
                                 unsigned& delay) const {
  const Predictor& predictor = fields_.predictors[i];
  nonSeasonal = predictor.non_seasonal_diff;
  seasonal = predictor.seasonal_diff;
  delay = predictor.delay;
}

unsigned AMModelSpec::GetXRegressionCoeff(unsigned i) const {
  unsigned position = (fields_.has_constant ? 1 : 0) + LagCount(fields_.ar) + LagCount(fields_.ma);
  for (unsigned before = 0; before < i; ++before) {
    const Predictor& predictor = fields_.predictors[before];
    position += NumeratorCount(predictor) + LagCount(predictor.denominator);
  }
  return position;
}

void AMModelSpec::GetXNumerator(unsigned i, AMPowers& nonSeasonal, AMPowers& seasonal) const {
  GetLags(fields_.predictors[i].numerator, nonSeasonal, seasonal);
}

unsigned AMModelSpec::GetXDenominator(unsigned i, AMPowers& nonSeasonal, AMPowers& seasonal) const {
  GetLags(fields_.predictors[i].denominator, nonSeasonal, seasonal);
  return GetXRegressionCoeff(i) + NumeratorCount(fields_.predictors[i]);
}

unsigned AMModelSpec::GetOutlierParmIndex() const { return GetXRegressionCoeff(GetXCount()); }
