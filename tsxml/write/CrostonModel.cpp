#include "tsxml/write/CrostonModel.h"

#include "tsxml/Tags.h"
#include "tsxml/write/EstimationInfoElement.h"
#include "tsxml/write/ModelIdentity.h"
#include "tsxml/write/Parameters.h"
#include "tsxml/write/SmoothedState.h"
#include "tsxml/write/Transformation.h"

// Writes:
//   <CrostonModel modelName? modelDescriptor? variableID dateSpecID?>
//     <Transformation function>?
//     <ActualDemandSubmodel>
//       <ESSimple>
//         <ParmLevel>?
//         <StateLevel>? <StateTrend>? <StateSeason phase>?
//       </ESSimple>
//     </ActualDemandSubmodel>
//     <ElapsedTimeSubmodel>                   the same
//     <AbsoluteErrorSubmodel>                 the same
//     <EstimationInfo>
//   </CrostonModel>

namespace tsx {

namespace {

ElementPtr MakeSubmodel(const char* name, const ESForecastState& state) {
  ElementPtr simple = MakeElement(tag::kESSimple);
  const ESModelSpec& spec = state.GetESModelSpec();
  AppendNamedParameter(*simple, spec, ESModelSpec::kLevel, tag::kParmLevel,
                       state.GetParameterEstimates(), state.GetParameterStdErrors());
  AppendSmoothedState(*simple, spec, state);
  ElementPtr submodel = MakeElement(name);
  Append(*submodel, std::move(simple));
  return submodel;
}

}  // namespace

ElementPtr MakeCrostonModel(const ESForecastState& actualDemand, const ESForecastState& elapsedTime,
                            const ESForecastState& absoluteError, const TSXDictionaryRefs& refs,
                            int functionType, const EstimationInfo& info) {
  ElementPtr e = MakeElement(tag::kCrostonModel);
  FillModelIdentity(*e, refs);
  AppendTransformation(*e, {.function_type = functionType});
  Append(*e, MakeSubmodel(tag::kActualDemandSubmodel, actualDemand));
  Append(*e, MakeSubmodel(tag::kElapsedTimeSubmodel, elapsedTime));
  Append(*e, MakeSubmodel(tag::kAbsoluteErrorSubmodel, absoluteError));
  Append(*e, MakeEstimationInfo(info));
  return e;
}

}  // namespace tsx
