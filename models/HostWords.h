#ifndef TSXPORT_MODELS_HOSTWORDS_H_
#define TSXPORT_MODELS_HOSTWORDS_H_

namespace tsx::models {

// What a host calls the things that it was asked for, and what it advises: parts of the sentences
// about faults, which read
//   SEASONAL_ORDERS needs a season, and yearly times have none; GIVE_SEASON
//   ... has seasons, which gaps would shift; LEAVE_GAPS_OUT or choose a model without
//   HORIZON 3 needs 2 values of the predictor 'x' after ...
//   OUTLIER 'level@1999': the series has no such time; ...
//   the predictor 'x' has no value at 2000-02, which SKIPS
struct HostWords {
  const char* seasonal_orders = "the seasonal part of the model";
  const char* give_season = "give its length";
  const char* leave_gaps_out = "leave no cases out";
  const char* horizon = "a forecast for";
  const char* outlier = "the outlier";
  const char* skips = "the series skips";
};

// For hosts that have no words of their own.
inline constexpr HostWords kPlainWords;

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_HOSTWORDS_H_
