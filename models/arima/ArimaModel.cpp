#include "models/arima/ArimaModel.h"

#include <algorithm>
#include <utility>

#include "models/EstimationFigures.h"
#include "models/arima/ArimaRows.h"
#include "models/arima/ArimaSpec.h"

namespace tsx::models {

ArimaModel::ArimaModel(const Series& series, TSFModel model, bool converged, bool outliersSought)
    : series_(series),
      model_(std::move(model)),
      converged_(converged),
      outliers_sought_(outliersSought) {}

tsffit::Forecasts ArimaModel::Forecast(unsigned horizon) const {
  const unsigned known = std::min(horizon, KnownHorizon(State().GetAMModelSpec(), series_));
  return tsffit::Forecast(model_, known, FutureValues(series_, known));
}

bool ArimaModel::AddTo(TSXMLTree& tree, const TSXDictionaryRefs& refs) const {
  return tree.AddModelTree(model_, refs);
}

const EstimationInfo& ArimaModel::Estimation() const {
  return model_.GetImp()->GetEstimationInfo();
}

Description ArimaModel::Describe() const {
  const EstimationInfo& info = Estimation();
  Description rows;
  rows.name = rows.title = ArimaTitle(State().GetAMModelSpec());
  rows.method = ArimaMethodName(State());
  if (!converged_) {
    rows.warnings.emplace_back(
        "the search did not converge: the estimates are the best that were found");
  }
  rows.estimates = CoefficientRows(State(), series_);
  rows.convention = "signs of Box and Jenkins: 1 - phi B, 1 - theta B, omega0 - omega1 B";
  rows.predictors = PredictorRows(State().GetAMModelSpec(), series_);
  rows.outliers_sought = outliers_sought_;
  rows.outliers = OutlierRows(State(), series_, info.GetSpan().start);
  rows.figures = {LikelihoodFigures(info), FitFigures(info), ResidualFigures(info)};
  return rows;
}

const ARMAForecastState& ArimaModel::State() const {
  return dynamic_cast<const ARMAForecastState&>(*model_.GetImp()->GetForecastState());
}

}  // namespace tsx::models
