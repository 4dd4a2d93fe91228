#ifndef TSXPORT_CLI_OPTIONS_MODELMEANING_H_
#define TSXPORT_CLI_OPTIONS_MODELMEANING_H_

#include <vector>

#include "cli/options/ArimaArguments.h"
#include "cli/options/ModelArguments.h"
#include "models/ModelRequest.h"

// From what is typed of a model to the request that it means.
namespace tsx::cli {

// What --model takes.
std::vector<OptionChoice> ModelChoices();

// The request, whose horizon is left open. Throws UsageError for texts that mean nothing, and for
// options of ARIMA beside another model.
models::ModelRequest MeaningOf(const ModelArguments& model, const ArimaArguments& arima);

// Throws UsageError when --season 1, which means no season, stands beside a model that needs one.
void CheckSeason(const models::ModelRequest& request);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_MODELMEANING_H_
