#include "models/ModelClass.h"

namespace tsx::models {

std::string ModelClass::SeasonalPart(const KindInfo& /*kind*/,
                                     const ModelRequest& /*request*/) const {
  return "";
}

Fault ModelClass::FindFault(const Task& /*task*/) const { return {}; }

std::optional<Claim> ModelClass::FindClaim(const Series& /*series*/) const { return std::nullopt; }

bool ModelClass::IsCompared(const KindInfo& /*kind*/, const ModelRequest& /*request*/) const {
  return false;
}

}  // namespace tsx::models
