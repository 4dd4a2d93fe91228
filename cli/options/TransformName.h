#ifndef TSXPORT_CLI_OPTIONS_TRANSFORMNAME_H_
#define TSXPORT_CLI_OPTIONS_TRANSFORMNAME_H_

#include <tsfcore/TSTransformation.h>

#include "cli/options/NamedValue.h"

namespace tsx::cli {

// The transformations on the command line, of a series and of a predictor alike, as
// TSTransformation::FunctionType.
inline constexpr NamedValue<int> kTransforms[] = {{"none", TSTransformation::kNone},
                                                  {"log", TSTransformation::kLogarithm},
                                                  {"sqrt", TSTransformation::kSquareRoot}};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_TRANSFORMNAME_H_
