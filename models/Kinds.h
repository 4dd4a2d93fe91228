#ifndef TSXPORT_MODELS_KINDS_H_
#define TSXPORT_MODELS_KINDS_H_

#include <span>
#include <string_view>

namespace tsx::cli {

// A kind of model as the command names it.
struct KindInfo {
  int kind;            // ESModelSpec::Kind; -1 for what is no smoothing
  const char* option;  // "winters-additive"
  const char* title;   // for people
  bool seasonal;
  bool multiplicative;
};

// All kinds of exponential smoothing, the simplest first.
std::span<const KindInfo> SmoothingKinds();

// Croston's method, for intermittent demand.
const KindInfo& CrostonKind();

// ARIMA, whatever its orders.
const KindInfo& ArimaKind();

// The kind with this option name, Croston's method among them; null when there is none. ARIMA has
// no name without orders.
const KindInfo* FindKind(std::string_view option);

}  // namespace tsx::cli

#endif  // TSXPORT_MODELS_KINDS_H_
