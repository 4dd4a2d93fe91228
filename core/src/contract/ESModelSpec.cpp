#include <array>

#include <tsfcore/ESModelSpec.h>

#include "kinds/SmoothingKind.h"

namespace {

// By ESModelSpec::Weight.
std::array<bool, 4> WeightsOf(const kinds::SmoothingKind& kind) {
  return {true, kind.has_trend_weight(), kind.has_season_weight(), kind.has_damping_weight()};
}

}  // namespace

ESModelSpec::Fields ESModelSpec::ForKind(int kind, unsigned seasonLength, int functionType) {
  Fields fields;
  fields.kind = kind;
  fields.season_length = seasonLength;
  fields.y_transform = TSTransformation(functionType);
  const kinds::SmoothingKind* facts = kinds::FindSmoothingKind(kind);
  if (facts == nullptr) return fields;
  const std::array<bool, 4> has = WeightsOf(*facts);
  for (unsigned weight = 0; weight < has.size(); ++weight) {
    if (has[weight]) fields.weight_index[weight] = static_cast<int>(fields.parameter_count++);
  }
  return fields;
}

int ESModelSpec::GetParameterIndex(int weight) const {
  if (weight < 0 || weight >= static_cast<int>(fields_.weight_index.size())) return -1;
  return fields_.weight_index[static_cast<unsigned>(weight)];
}

unsigned ESModelSpec::GetParameterCount(bool all) const {
  return all ? fields_.parameter_count : fields_.parameter_count - fields_.fixed_count;
}

unsigned ESModelSpec::GetSeasonLength(bool effective) const {
  // A kind that nobody knows may have a season.
  const kinds::SmoothingKind* facts = kinds::FindSmoothingKind(fields_.kind);
  const bool seasonless = facts != nullptr && !facts->has_season();
  return effective && seasonless ? 1 : fields_.season_length;
}
