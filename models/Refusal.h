#ifndef TSXPORT_MODELS_REFUSAL_H_
#define TSXPORT_MODELS_REFUSAL_H_

#include <tsffit/FitStatus.h>

#include "models/Fault.h"
#include "models/Series.h"
#include "text/Numbers.h"

namespace tsx::models {

// Why the core refused a series without predictors, and at which value: the one to blame, else the
// first. `Fit` is any of the core's fits.
template <typename Fit>
Fault RefusalOf(const Series& series, const Fit& fit) {
  using tsffit::FitStatus;
  if (fit.status != FitStatus::kNotPositive && fit.status != FitStatus::kNegative) {
    return {fit.message, AtValue(0)};
  }
  return {text::NumberText(series.values[fit.bad_case]) + ": " + fit.message,
          AtValue(fit.bad_case)};
}

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_REFUSAL_H_
