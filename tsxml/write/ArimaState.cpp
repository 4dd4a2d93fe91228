#include "tsxml/write/ArimaState.h"

#include <span>

#include "tsxml/Tags.h"
#include "tsxml/write/ArimaModel.h"
#include "tsxml/write/EstimationInfoElement.h"
#include "tsxml/write/MissingValue.h"
#include "xml/NumberList.h"

// Writes, inside <ARIMAModel> and before its <EstimationInfo>, one of:
//   <ARIMAMLSpState periodDeficit>            maximum likelihood, theta recursion
//     <PredictorState>* <ZState>? <NoiseState>
//     <ThetaRecursionState finalIterationNumber>
//       <FinalThetas> <ThetaVec>* </FinalThetas>
//       <FinalNu>
//     </ThetaRecursionState>
//   </ARIMAMLSpState>
//   <ARIMAMLState periodDeficit>              maximum likelihood, Kalman filter
//     <PredictorState>* <ZState>?
//     <KalmanState> <FinalOmega>? <FinalStateVector>? </KalmanState>
//   </ARIMAMLState>
//   <ARIMACLSState periodDeficit>             conditional least squares
//     <PredictorState>* <ZState>? <NoiseState>
//   </ARIMACLSState>
// of
//   <PredictorState> <FinalPredictor>? <FinalTransferFunc>? </PredictorState>
//   <ZState> <FinalZ>? <FinalPredictedZ>? </ZState>
//   <NoiseState> <FinalNoise>? <FinalPredictedNoise>? </NoiseState>

namespace tsx {

namespace {

using TIMESERIESXML::XMLElement;
using Vector = std::valarray<double>;

void AppendUnlessEmpty(XMLElement& parent, const char* name, const Vector& values) {
  AppendVector(parent, name, values, false, MV::gMissingValue);
}

void AppendAlways(XMLElement& parent, const char* name, std::span<const double> values) {
  AppendVector(parent, name, values, true, MV::gMissingValue);
}

ElementPtr MakePredictorState(const ARMAForecastState& state, unsigned i) {
  const Vector* predictor = nullptr;
  const Vector* transferFunction = nullptr;
  state.GetXHistory(i, predictor, transferFunction);

  ElementPtr e = MakeElement(tag::kPredictorState);
  if (predictor != nullptr) AppendUnlessEmpty(*e, tag::kFinalPredictor, *predictor);
  if (transferFunction != nullptr) {
    AppendUnlessEmpty(*e, tag::kFinalTransferFunc, *transferFunction);
  }
  return e;
}

// Left out when it would be empty, unlike the state of the noise: both are meant.
void AppendZState(XMLElement& parent, const ARMAForecastState& state) {
  if (state.GetActualZ().size() == 0 && state.GetPredZ().size() == 0) return;
  ElementPtr e = MakeElement(tag::kZState);
  AppendUnlessEmpty(*e, tag::kFinalZ, state.GetActualZ());
  AppendUnlessEmpty(*e, tag::kFinalPredictedZ, state.GetPredZ());
  Append(parent, std::move(e));
}

ElementPtr MakeNoiseState(const Vector& actual, const Vector& predicted) {
  ElementPtr e = MakeElement(tag::kNoiseState);
  AppendUnlessEmpty(*e, tag::kFinalNoise, actual);
  AppendUnlessEmpty(*e, tag::kFinalPredictedNoise, predicted);
  return e;
}

// What every state begins with.
ElementPtr MakeCommonState(const char* name, const ARMAForecastState& state) {
  ElementPtr e = MakeElement(name);
  e->AddAttribute(attr::kPeriodDeficit,
                  static_cast<double>(state.GetPeriodRecord().period_deficit));
  const unsigned predictorCount = state.GetAMModelSpec().GetXCount();
  for (unsigned i = 0; i < predictorCount; ++i) Append(*e, MakePredictorState(state, i));
  AppendZState(*e, state);
  return e;
}

ElementPtr MakeThetaRecursionState(const ARMAMLSpForecastState& state) {
  ElementPtr thetas = MakeElement(tag::kFinalThetas);
  for (const auto& theta : state.GetFinalThetas()) AppendAlways(*thetas, tag::kThetaVec, theta);

  ElementPtr e = MakeElement(tag::kThetaRecursionState);
  e->AddAttribute(attr::kFinalIterationNumber, static_cast<double>(state.GetFinalIterCount()));
  Append(*e, std::move(thetas));
  AppendAlways(*e, tag::kFinalNu, state.GetFinalNu());
  return e;
}

ElementPtr MakeKalmanState(const ARMAMLForecastState& state) {
  ElementPtr e = MakeElement(tag::kKalmanState);
  // The packed matrix as the core holds it: a reader unpacks it by the core's own layout.
  AppendUnlessEmpty(*e, tag::kFinalOmega, state.GetFinalOmega().AsArray());
  AppendUnlessEmpty(*e, tag::kFinalStateVector, state.GetFinalStateV());
  return e;
}

ElementPtr MakeState(const ARMAMLSpForecastState& state) {
  ElementPtr e = MakeCommonState(tag::kARIMAMLSpState, state);
  Append(*e, MakeNoiseState(state.GetActualN(), state.GetPredN()));
  Append(*e, MakeThetaRecursionState(state));
  return e;
}

ElementPtr MakeState(const ARMAMLForecastState& state) {
  ElementPtr e = MakeCommonState(tag::kARIMAMLState, state);
  Append(*e, MakeKalmanState(state));
  return e;
}

ElementPtr MakeState(const ARMACLSForecastState& state) {
  ElementPtr e = MakeCommonState(tag::kARIMACLSState, state);
  Append(*e, MakeNoiseState(state.GetActualN(), state.GetPredN()));
  return e;
}

template <typename State>
ElementPtr MakeWholeModel(const State& state, const TSXDictionaryRefs& refs,
                          const EstimationInfo& info) {
  ElementPtr e = MakeArimaModel(state.GetAMModelSpec(), refs, state.GetParameterEstimates(),
                                state.GetParameterStdErrors());
  if (!e) return nullptr;
  Append(*e, MakeState(state));
  Append(*e, MakeEstimationInfo(info));
  return e;
}

}  // namespace

ElementPtr MakeArimaModel(const ARMAMLSpForecastState& state, const TSXDictionaryRefs& refs,
                          const EstimationInfo& info) {
  return MakeWholeModel(state, refs, info);
}

ElementPtr MakeArimaModel(const ARMAMLForecastState& state, const TSXDictionaryRefs& refs,
                          const EstimationInfo& info) {
  return MakeWholeModel(state, refs, info);
}

ElementPtr MakeArimaModel(const ARMACLSForecastState& state, const TSXDictionaryRefs& refs,
                          const EstimationInfo& info) {
  return MakeWholeModel(state, refs, info);
}

}  // namespace tsx
