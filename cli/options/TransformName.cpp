#include "cli/options/TransformName.h"

#include <tsfcore/TSTransformation.h>

namespace tsx::cli {

std::optional<int> TransformByName(std::string_view name) {
  if (name == "none") return TSTransformation::kNone;
  if (name == "log") return TSTransformation::kLogarithm;
  if (name == "sqrt") return TSTransformation::kSquareRoot;
  return std::nullopt;
}

}  // namespace tsx::cli
