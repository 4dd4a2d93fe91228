#ifndef TSXPORT_CLI_OPTIONS_ARIMATEXTS_H_
#define TSXPORT_CLI_OPTIONS_ARIMATEXTS_H_

#include <string>
#include <string_view>

#include "models/arima/ArimaRequest.h"

// The texts of the options of ARIMA models. What cannot be read ends in UsageError, which names the
// option and the cause. Blanks between the parts of a text do not count.
namespace tsx::cli {

inline constexpr unsigned kHighestOrder = 100;
inline constexpr unsigned kLongestLag = 1'000;
inline constexpr unsigned kMostDifferences = 5;

// Whether a --model is meant to give the orders of ARIMA: it begins with "arima(".
bool LooksLikeArima(std::string_view text);

// arima(p,d,q) and arima(p,d,q)(P,D,Q). In the places of p, q, P and Q stands an order, 3 for the
// lags 1, 2, 3, or a list of lags, [1,3]; in the second parenthesis both count seasons.
models::ArimaOrders ParseArimaOrders(std::string_view text);

// COLUMN, COLUMN:KEY=VALUE,KEY=VALUE... The keys are delay, diff and sdiff with a count, num, den,
// snum and sden with an order or a list of lags, transform with none, log or sqrt. A column whose
// name holds a colon can be told: what follows the last colon counts as keys only with a '='.
models::PredictorRequest ParsePredictor(std::string_view text);

// TYPE@TIME
models::OutlierRequest ParseOutlier(std::string_view text);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_ARIMATEXTS_H_
