#include "tsxml/write/Coefficients.h"

namespace tsx {

namespace {

double At(const std::valarray<double>& vector, std::uint32_t position) {
  return position < vector.size() ? vector[position] : MV::gMissingValue;
}

}  // namespace

CoefficientBlock::CoefficientBlock(const Estimates& estimates, std::uint32_t first,
                                   std::uint32_t end)
    : estimates_(estimates),
      position_(first),
      has_values_(end <= estimates.values.size()),
      has_std_errors_(has_values_ && end <= estimates.std_errors.size()) {}

Coefficient CoefficientBlock::Next() {
  const std::uint32_t position = position_++;
  Coefficient coefficient;
  if (has_values_) coefficient.value = At(estimates_.values, position);
  if (has_std_errors_) coefficient.std_error = At(estimates_.std_errors, position);
  return coefficient;
}

}  // namespace tsx
