#ifndef TSXPORT_MODELS_ARIMA_OUTLIERTYPES_H_
#define TSXPORT_MODELS_ARIMA_OUTLIERTYPES_H_

#include <tsfcore/TSOutlierSpec.h>

namespace tsx::models {

// A type of outlier by its name, for people to read and to ask by.
struct OutlierType {
  const char* name;
  int value;   // TSOutlierSpec::Type
  bool lasts;  // it changes what follows, too
};

inline constexpr OutlierType kOutlierTypes[] = {
    {"additive", TSOutlierSpec::kAdditive, false},
    {"level", TSOutlierSpec::kLevel, true},
    {"transient", TSOutlierSpec::kTransient, true},
    {"seasonal-additive", TSOutlierSpec::kSeasonalAdditive, true},
    {"trend", TSOutlierSpec::kTrend, true},
    {"innovational", TSOutlierSpec::kInnovational, false}};

// Null when there is no such type.
constexpr const OutlierType* FindOutlierType(int type) {
  for (const OutlierType& row : kOutlierTypes) {
    if (row.value == type) return &row;
  }
  return nullptr;
}

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_OUTLIERTYPES_H_
