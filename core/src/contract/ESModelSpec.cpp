#include <tsfcore/ESModelSpec.h>

namespace {

// Which weights a kind has, in the order of ESModelSpec::Weight.
constexpr std::array<std::array<bool, 4>, 7> kHasWeight = {{
    {true, true, true, false},    // additive Winters
    {true, false, false, false},  // Brown
    {true, true, false, true},    // damped trend
    {true, true, false, false},   // Holt
    {true, true, true, false},    // multiplicative Winters
    {true, false, true, false},   // simple seasonal
    {true, false, false, false},  // simple
}};

bool IsKind(int kind) { return kind >= 0 && kind < static_cast<int>(kHasWeight.size()); }

bool IsSeasonal(int kind) {
  return !IsKind(kind) || kHasWeight[static_cast<unsigned>(kind)][ESModelSpec::kSeason];
}

}  // namespace

ESModelSpec::Fields ESModelSpec::ForKind(int kind, unsigned seasonLength, int functionType) {
  Fields fields;
  fields.kind = kind;
  fields.season_length = seasonLength;
  fields.y_transform = TSTransformation(functionType);
  if (!IsKind(kind)) return fields;
  const auto& has = kHasWeight[static_cast<unsigned>(kind)];
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
  return effective && !IsSeasonal(fields_.kind) ? 1 : fields_.season_length;
}
