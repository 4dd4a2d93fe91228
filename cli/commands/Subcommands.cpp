#include "cli/commands/Fit.h"
#include "cli/commands/Subcommand.h"

namespace tsx::cli {
namespace {

constexpr Subcommand kSubcommands[] = {
    {{"fit", kFitIntroduction, kFitFooter}, BeginFit},
};

}  // namespace

std::span<const Subcommand> Subcommands() { return kSubcommands; }

}  // namespace tsx::cli
