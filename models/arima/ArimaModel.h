#ifndef TSXPORT_MODELS_ARIMA_ARIMAMODEL_H_
#define TSXPORT_MODELS_ARIMA_ARIMAMODEL_H_

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/TSFModel.h>

#include "models/ModelClass.h"

namespace tsx::models {

class ArimaModel final : public FittedModel {
 public:
  // `model` was fitted to the series. `converged`: its search ended at a maximum;
  // `outliersSought`: outliers other than those given were looked for.
  ArimaModel(const Series& series, TSFModel model, bool converged, bool outliersSought);

  tsffit::Forecasts Forecast(unsigned horizon) const override;
  bool AddTo(TSXMLTree& tree, const TSXDictionaryRefs& refs) const override;
  const EstimationInfo& Estimation() const override;
  Description Describe() const override;

 private:
  const ARMAForecastState& State() const;

  const Series& series_;
  TSFModel model_;
  bool converged_;
  bool outliers_sought_;
};

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ARIMA_ARIMAMODEL_H_
