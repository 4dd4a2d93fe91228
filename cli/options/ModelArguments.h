#ifndef TSXPORT_CLI_OPTIONS_MODELARGUMENTS_H_
#define TSXPORT_CLI_OPTIONS_MODELARGUMENTS_H_

#include <string>

#include "cli/options/OptionTable.h"

namespace tsx::cli {

inline constexpr unsigned kLongestSeason = 1'000'000;

// What is typed of the model of a series, of whatever kind. ModelMeaning.h tells what it comes to.
struct ModelArguments {
  std::string model = "auto";
  std::string season;  // empty: the calendar's
  std::string transform = "none";
};

OptionTable<ModelArguments> ModelOptions();

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_MODELARGUMENTS_H_
