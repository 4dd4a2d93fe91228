#include "cli/ArimaFitting.h"

#include <tsfcore/TSFModelImp.h>

#include "cli/ArimaSpec.h"

namespace tsx::cli {

tsffit::ArimaFit FitArimaSeries(const ArimaRequest& request, const Series& series,
                                unsigned seasonLength, int functionType) {
  std::vector<std::vector<double>> predictors;
  for (const PredictorColumn& predictor : series.predictors) predictors.push_back(predictor.values);
  return tsffit::FitArima(series.values, predictors,
                          {.spec = MakeArimaSpec(request, series, seasonLength, functionType),
                           .method = request.method});
}

const ARMAForecastState& ArimaStateOf(const TSFModel& model) {
  return dynamic_cast<const ARMAForecastState&>(*model.GetImp()->GetForecastState());
}

}  // namespace tsx::cli
