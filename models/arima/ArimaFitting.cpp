#include "models/arima/ArimaFitting.h"

#include <algorithm>

#include <tsffit/AutoArima.h>
#include <tsffit/Outliers.h>

#include "models/arima/ArimaSpec.h"

namespace tsx::models {
namespace {

std::vector<std::vector<double>> PredictorValues(const Series& series) {
  std::vector<std::vector<double>> values;
  for (const Predictor& predictor : series.predictors) values.push_back(predictor.values);
  return values;
}

// Differences that the caller chose for a predictor are kept.
bool HasOwnDifferences(const ArimaRequest& request) {
  return std::any_of(request.predictors.begin(), request.predictors.end(),
                     [](const PredictorRequest& predictor) { return predictor.has_differences; });
}

ArimaOutcome FitGivenOrders(const ArimaRequest& request, const Series& series,
                            const AMModelSpec::Fields& spec) {
  const tsffit::ArimaOptions options = {.spec = spec, .method = request.method};
  const auto fit =
      request.detect_outliers
          ? tsffit::FitArimaDetectingOutliers(series.values, PredictorValues(series), options)
          : tsffit::FitArima(series.values, PredictorValues(series), options);
  return {fit, 0, 0};
}

ArimaOutcome SearchForOrders(const ArimaRequest& request, const Series& series,
                             unsigned seasonLength, const AMModelSpec::Fields& spec) {
  tsffit::AutoArimaOptions options;
  options.season_length = seasonLength;
  options.function_type = spec.y_transform.GetFunctionType();
  options.method = request.method;
  options.predictors = spec.predictors;
  options.keep_predictor_differences = HasOwnDifferences(request);
  options.outliers = spec.outliers;
  options.detect_outliers = request.detect_outliers;
  options.constant = request.constant;
  tsffit::AutoArimaFit found =
      tsffit::FitAutoArima(series.values, PredictorValues(series), options);
  return {std::move(found.fit), found.models_tried, found.aicc};
}

}  // namespace

ArimaOutcome FitArimaSeries(const ArimaRequest& request, const Series& series,
                            unsigned seasonLength, int functionType) {
  const AMModelSpec::Fields spec = MakeArimaSpec(request, series, seasonLength, functionType);
  if (!request.automatic) return FitGivenOrders(request, series, spec);
  // Cases left out as gaps would shift the seasons.
  return SearchForOrders(request, series, HasGaps(series) ? 1 : seasonLength, spec);
}

}  // namespace tsx::models
