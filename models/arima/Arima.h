#ifndef TSXPORT_MODELS_ARIMA_ARIMA_H_
#define TSXPORT_MODELS_ARIMA_ARIMA_H_

#include "models/ModelClass.h"

namespace tsx::models {

// ARIMA, whatever its orders, with which it is asked for.
const KindInfo& ArimaKind();

// ARIMA models with predictors and outliers, their orders given or searched for.
class ArimaClass final : public ModelClass {
 public:
  std::span<const KindInfo> Kinds() const override { return {&ArimaKind(), 1}; }
  DialectContent Content() const override { return DialectContent::kArima; }
  std::string SeasonalPart(const KindInfo& kind, const ModelRequest& request) const override;
  Fault FindFault(const Task& task) const override;
  Fitting Fit(const KindInfo& kind, const Task& task) const override;
};

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_ARIMA_H_
