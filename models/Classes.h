#ifndef TSXPORT_MODELS_CLASSES_H_
#define TSXPORT_MODELS_CLASSES_H_

#include <span>
#include <string_view>

#include "models/ModelClass.h"

// The classes of models there are.
namespace tsx::models {

// In the order in which people see them.
std::span<const ModelClass* const> Classes();

// The class that a kind is of. `kind` is one of its Kinds().
const ModelClass& ClassOf(const KindInfo& kind);

// The kind of that name; null when there is none.
const KindInfo* FindKind(std::string_view name);

// As ModelClass::SeasonalPart, of the kind asked for; empty where one is to be chosen.
std::string SeasonalPart(const ModelRequest& request);

// The class that takes a series without a comparison where nothing is asked for, if there is one.
std::optional<Claim> FindClaim(const Series& series);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_CLASSES_H_
