#include "tsxml/write/ExpSmoothingModel.h"

#include <algorithm>
#include <iterator>

#include "tsxml/Names.h"
#include "tsxml/Tags.h"
#include "tsxml/write/EstimationInfoElement.h"
#include "tsxml/write/ModelIdentity.h"
#include "tsxml/write/Parameters.h"
#include "tsxml/write/SmoothedState.h"
#include "tsxml/write/Transformation.h"

// Writes:
//   <ExpSmoothingModel modelName? modelDescriptor? variableID dateSpecID?>
//     <Transformation function>?
//     <ESHolt seasonLength?>                  or the name of another kind
//       <ParmLevel>? <ParmTrend>? <ParmSeason>? <ParmDampingTrend>?
//       <StateLevel> <StateTrend>? <StateSeason phase>?
//     </ESHolt>
//     <EstimationInfo>?
//   </ExpSmoothingModel>

namespace tsx {

namespace {

using TIMESERIESXML::XMLElement;

bool AppendWeights(XMLElement& parent, const ESModelSpec& spec, const std::valarray<double>& values,
                   const std::valarray<double>& stdErrors) {
  // A vector too short for the specification means that there are no estimates at all: the weights
  // are left out, and that is no failure.
  if (spec.GetParameterCount(true) > values.size()) return true;
  return std::all_of(std::begin(kSmoothingWeights), std::end(kSmoothingWeights),
                     [&](const NamedCode<int>& weight) {
                       return AppendNamedParameter(parent, spec, weight.code, weight.name, values,
                                                   stdErrors);
                     });
}

// The element of the kind with its weights and state; null when one of them cannot be told.
ElementPtr MakeKind(const ESModelSpec& spec, const std::valarray<double>& values,
                    const std::valarray<double>& stdErrors, const ESForecastState* state) {
  const char* name = NameOf(kSmoothingKinds, spec.GetKind());
  if (name == nullptr) return nullptr;

  ElementPtr e = MakeElement(name);
  const unsigned seasonLength = spec.GetSeasonLength(true);
  if (seasonLength > 1) e->AddAttribute(attr::kSeasonLength, static_cast<double>(seasonLength));
  if (!AppendWeights(*e, spec, values, stdErrors)) return nullptr;
  if (state != nullptr && !AppendSmoothedState(*e, spec, *state)) return nullptr;
  return e;
}

}  // namespace

ElementPtr MakeExpSmoothingModel(const ESModelSpec& spec, const TSXDictionaryRefs& refs,
                                 const std::valarray<double>& values,
                                 const std::valarray<double>& stdErrors,
                                 const ESForecastState* state, const EstimationInfo* info) {
  ElementPtr e = MakeElement(tag::kExpSmoothingModel);
  FillModelIdentity(*e, refs);
  AppendTransformation(*e, {.function_type = spec.GetYTransformSpec().GetFunctionType()});
  ElementPtr kind = MakeKind(spec, values, stdErrors, state);
  if (!kind) return nullptr;
  Append(*e, std::move(kind));
  if (info != nullptr) Append(*e, MakeEstimationInfo(*info));
  return e;
}

}  // namespace tsx
