#include "models/arima/ArimaRequest.h"

#include "text/Quoting.h"

namespace tsx::models {
namespace {

bool IsSeasonal(const ArimaOrders& orders) {
  return !orders.ar.seasonal.empty() || !orders.ma.seasonal.empty() || orders.seasonal_diff > 0;
}

bool IsSeasonal(const PredictorRequest& predictor) {
  return !predictor.numerator.seasonal.empty() || !predictor.denominator.seasonal.empty() ||
         predictor.seasonal_diff > 0;
}

}  // namespace

std::string SeasonalPart(const ArimaRequest& request, const HostWords& words) {
  if (IsSeasonal(request.orders)) return words.seasonal_orders;
  for (const PredictorRequest& predictor : request.predictors) {
    if (IsSeasonal(predictor)) return "the predictor " + text::Quoted(predictor.column);
  }
  for (const OutlierRequest& outlier : request.outliers) {
    if (outlier.type == TSOutlierSpec::kSeasonalAdditive) {
      return "the outlier " + text::Quoted(outlier.text);
    }
  }
  return "";
}

bool HasSeasonalPart(const ArimaRequest& request) {
  return !SeasonalPart(request, kPlainWords).empty();
}

}  // namespace tsx::models
