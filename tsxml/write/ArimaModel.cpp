#include "tsxml/write/ArimaModel.h"

#include <string>

#include "tsxml/Tags.h"
#include "tsxml/write/Coefficients.h"
#include "tsxml/write/LagPolynomial.h"
#include "tsxml/write/ModelIdentity.h"
#include "tsxml/write/OutlierEffect.h"
#include "tsxml/write/Parameters.h"
#include "tsxml/write/Transformation.h"

// Writes:
//   <ARIMAModel modelName? modelDescriptor? variableID dateSpecID? seasonLength?>
//     <Transformation function? nonSeasonalDiff? seasonalDiff?>?
//     <ConstantTerm>?
//       <EstimatedParameter>?
//     </ConstantTerm>
//     <Autoregression>?                       polynomials in the lag, see LagPolynomial.h
//     <MovingAverage>?
//     <PredictorEffect variableID>*
//       <Transformation function? nonSeasonalDiff? seasonalDiff? delay?>?
//       <Numerator>                           always there: it has the zero lag
//       <Denominator>?
//     </PredictorEffect>
//     <OutlierEffect type startIndex>*
//   </ARIMAModel>

namespace tsx {

namespace {

using TIMESERIESXML::XMLElement;

void FillAttributes(XMLElement& e, const AMModelSpec& spec, const TSXDictionaryRefs& refs) {
  FillModelIdentity(e, refs);
  const unsigned seasonLength = spec.GetSeasonLength(true);
  if (seasonLength > 1) e.AddAttribute(attr::kSeasonLength, static_cast<double>(seasonLength));
}

void AppendDependentTransformation(XMLElement& parent, const AMModelSpec& spec) {
  SeriesTransformation t{.function_type = spec.GetYTransformSpec().GetFunctionType()};
  spec.GetYDiff(t.non_seasonal_diff, t.seasonal_diff);
  AppendTransformation(parent, t);
}

// Unlike a polynomial, the constant is told only when the vector holds all parameters of the model.
void AppendConstant(XMLElement& parent, const AMModelSpec& spec, const Estimates& estimates) {
  bool present = false;
  const unsigned position = spec.GetMeanYPresent(present);
  if (!present) return;
  CoefficientBlock block(estimates, position, spec.GetParameterCount(true));
  const Coefficient constant = block.Next();
  ElementPtr e = MakeElement(tag::kConstantTerm);
  AppendEstimatedParameter(*e, constant.value, constant.std_error);
  Append(parent, std::move(e));
}

void AppendAutoregression(XMLElement& parent, const AMModelSpec& spec, const Estimates& estimates) {
  LagPolynomial ar;
  ar.first = spec.GetARStruct(ar.non_seasonal, ar.seasonal);
  AppendLagPolynomial(parent, tag::kAutoregression, ar, estimates);
}

void AppendMovingAverage(XMLElement& parent, const AMModelSpec& spec, const Estimates& estimates) {
  LagPolynomial ma;
  ma.first = spec.GetMAStruct(ma.non_seasonal, ma.seasonal);
  AppendLagPolynomial(parent, tag::kMovingAverage, ma, estimates);
}

void AppendPredictorTransformation(XMLElement& parent, const AMModelSpec& spec, unsigned i) {
  SeriesTransformation t{.function_type = spec.GetXTransformSpec(i).GetFunctionType()};
  spec.GetXDiffNDelay(i, t.non_seasonal_diff, t.seasonal_diff, t.delay);
  AppendTransformation(parent, t);
}

void AppendNumerator(XMLElement& parent, const AMModelSpec& spec, unsigned i,
                     const Estimates& estimates) {
  LagPolynomial numerator{.first = spec.GetXRegressionCoeff(i), .has_zero_lag = true};
  spec.GetXNumerator(i, numerator.non_seasonal, numerator.seasonal);
  AppendLagPolynomial(parent, tag::kNumerator, numerator, estimates);
}

void AppendDenominator(XMLElement& parent, const AMModelSpec& spec, unsigned i,
                       const Estimates& estimates) {
  LagPolynomial denominator;
  denominator.first = spec.GetXDenominator(i, denominator.non_seasonal, denominator.seasonal);
  AppendLagPolynomial(parent, tag::kDenominator, denominator, estimates);
}

ElementPtr MakePredictorEffect(const AMModelSpec& spec, unsigned i, const std::string& id,
                               const Estimates& estimates) {
  ElementPtr e = MakeElement(tag::kPredictorEffect);
  e->AddAttribute(attr::kVariableID, id);
  AppendPredictorTransformation(*e, spec, i);
  AppendNumerator(*e, spec, i, estimates);
  AppendDenominator(*e, spec, i, estimates);
  return e;
}

void AppendOutliers(XMLElement& parent, const AMModelSpec& spec, const Estimates& estimates) {
  const TSOutlierSpecList& outliers = spec.GetOutliers();
  const unsigned count = outliers.GetOutlierSpecCount(false);
  for (unsigned j = 0; j < count; ++j) {
    const unsigned first = spec.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 0);
    AppendOutlierEffect(parent, outliers.GetOutlierSpec(j), first, estimates);
  }
}

}  // namespace

ElementPtr MakeArimaModel(const AMModelSpec& spec, const TSXDictionaryRefs& refs,
                          const std::valarray<double>& values,
                          const std::valarray<double>& stdErrors) {
  const auto& predictorIDs = refs.GetPredictorIDs();
  if (spec.GetXCount() != predictorIDs.size()) return nullptr;

  const Estimates estimates{values, stdErrors};
  ElementPtr e = MakeElement(tag::kARIMAModel);
  FillAttributes(*e, spec, refs);
  AppendDependentTransformation(*e, spec);
  AppendConstant(*e, spec, estimates);
  AppendAutoregression(*e, spec, estimates);
  AppendMovingAverage(*e, spec, estimates);
  unsigned i = 0;
  for (const auto& id : predictorIDs) Append(*e, MakePredictorEffect(spec, i++, id, estimates));
  AppendOutliers(*e, spec, estimates);
  return e;
}

}  // namespace tsx
