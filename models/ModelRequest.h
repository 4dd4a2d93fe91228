#ifndef TSXPORT_MODELS_MODELREQUEST_H_
#define TSXPORT_MODELS_MODELREQUEST_H_

#include <tsfcore/TSTransformation.h>

#include "models/HostWords.h"
#include "models/KindInfo.h"
#include "models/arima/ArimaRequest.h"

namespace tsx::models {

// Which model a series shall get.
struct ModelRequest {
  const KindInfo* kind = nullptr;  // null: choose one
  unsigned season_length = 0;      // 0: the calendar's own
  int function_type = TSTransformation::kNone;
  ArimaRequest arima{};  // of ARIMA
  // Periods that will be asked for, as far ahead as predictors must be known.
  unsigned horizon = 0;
  const HostWords* words = &kPlainWords;  // for faults; borrowed
};

// Whether the model is chosen by what the series is rather than asked for.
inline bool LeavesChoice(const ModelRequest& request) {
  return request.kind == nullptr || request.arima.automatic;
}

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_MODELREQUEST_H_
