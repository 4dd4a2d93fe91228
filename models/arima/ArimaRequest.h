#ifndef TSXPORT_MODELS_ARIMA_ARIMAREQUEST_H_
#define TSXPORT_MODELS_ARIMA_ARIMAREQUEST_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <tsfcore/TSOutlierSpec.h>
#include <tsfcore/TSTransformation.h>
#include <tsffit/Arima.h>
#include <tsxtimes/TimeValue.h>

#include "models/HostWords.h"

// What is asked of an ARIMA model, before it meets a series.
namespace tsx::models {

using Lags = std::vector<std::uint32_t>;  // rising, each at least 1 and there once

struct FactorLags {
  Lags non_seasonal;  // in periods
  Lags seasonal;      // in seasons
};

struct ArimaOrders {
  FactorLags ar;
  FactorLags ma;
  unsigned diff = 0;
  unsigned seasonal_diff = 0;
};

struct PredictorRequest {
  std::string column;  // its name
  int function_type = TSTransformation::kNone;
  unsigned diff = 0;
  unsigned seasonal_diff = 0;
  bool has_differences = false;  // they are given, be they 0
  unsigned delay = 0;            // in periods
  FactorLags numerator;          // beside the zero lag
  FactorLags denominator;
};

struct OutlierRequest {
  std::string text;  // as it was given, for messages
  int type = TSOutlierSpec::kNone;
  tsxtimes::TimeValue time;
};

struct ArimaRequest {
  bool automatic = false;  // search for the orders; `orders` are empty then
  ArimaOrders orders;
  std::optional<bool> constant;  // empty: one where the series is not differenced
  tsffit::ArimaMethod method = tsffit::ArimaMethod::kMl;
  std::vector<PredictorRequest> predictors;
  std::vector<OutlierRequest> outliers;
  bool detect_outliers = false;
};

// The first part of the request that means seasons, in the words of the host; empty where there is
// none.
std::string SeasonalPart(const ArimaRequest& request, const HostWords& words);

// Whether there is such a part.
bool HasSeasonalPart(const ArimaRequest& request);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_ARIMAREQUEST_H_
