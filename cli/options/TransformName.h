#ifndef TSXPORT_CLI_OPTIONS_TRANSFORMNAME_H_
#define TSXPORT_CLI_OPTIONS_TRANSFORMNAME_H_

#include <optional>
#include <string_view>

namespace tsx::cli {

// The names of transformations on the command line, of a series and of a predictor alike.
inline constexpr char kTransformNames[] = "none, log, sqrt";

// Its TSTransformation::FunctionType; empty for any other name.
std::optional<int> TransformByName(std::string_view name);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_TRANSFORMNAME_H_
