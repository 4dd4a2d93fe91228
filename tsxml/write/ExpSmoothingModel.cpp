#include "tsxml/write/ExpSmoothingModel.h"

#include <algorithm>
#include <iterator>

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

// By ESModelSpec::Kind.
constexpr const char* kKindNames[] = {
    tag::kESAdditiveWinters,       tag::kESBrown,          tag::kESDampedTrend, tag::kESHolt,
    tag::kESMultiplicativeWinters, tag::kESSimpleSeasonal, tag::kESSimple,
};

// By ESModelSpec::Weight.
constexpr const char* kWeightNames[] = {
    tag::kParmLevel,
    tag::kParmTrend,
    tag::kParmSeason,
    tag::kParmDampingTrend,
};

bool AppendWeights(XMLElement& parent, const ESModelSpec& spec, const std::valarray<double>& values,
                   const std::valarray<double>& stdErrors) {
  // A vector too short for the specification means that there are no estimates at all: the weights
  // are left out, and that is no failure.
  if (spec.GetParameterCount(true) > values.size()) return true;
  int weight = 0;
  return std::all_of(std::begin(kWeightNames), std::end(kWeightNames), [&](const char* name) {
    return AppendNamedParameter(parent, spec, weight++, name, values, stdErrors);
  });
}

// The element of the kind with its weights and state; null when one of them cannot be told.
ElementPtr MakeKind(const ESModelSpec& spec, const std::valarray<double>& values,
                    const std::valarray<double>& stdErrors, const ESForecastState* state) {
  const int kind = spec.GetKind();
  if (kind < 0 || kind >= static_cast<int>(std::size(kKindNames))) return nullptr;

  ElementPtr e = MakeElement(kKindNames[kind]);
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
