#ifndef TSXPORT_CLI_OPTIONS_COMMANDWORDS_H_
#define TSXPORT_CLI_OPTIONS_COMMANDWORDS_H_

#include "models/HostWords.h"

namespace tsx::cli {

// What the command calls what it is asked for: by its options.
inline constexpr models::HostWords kCommandWords = {
    .seasonal_orders = "the second parenthesis of arima(p,d,q)(P,D,Q)",
    .give_season = "give its length with --season",
    .leave_gaps_out = "leave --gaps out",
    .horizon = "--forecast",
    .outlier = "--outlier",
    .skips = "the table skips"};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_COMMANDWORDS_H_
