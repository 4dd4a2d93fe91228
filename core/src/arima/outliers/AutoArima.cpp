// FitAutoArima() stands above the search for orders: it looks for outliers in the model found, and
// for the orders again beside them.

#include <cmath>
#include <utility>

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/MV.h>
#include <tsfcore/TSFModelImp.h>
#include <tsffit/AutoArima.h>

#include "arima/orders/DifferenceOrders.h"
#include "arima/orders/OrderSearch.h"
#include "series/Refusal.h"

namespace tsffit {

namespace {

// The model with a constant and no coefficient: it answers for everything that does not depend on
// the others.
ArimaFit Trial(std::span<const double> series, std::span<const std::vector<double>> predictors,
               const AutoArimaOptions& options, const DifferenceOrders& differences) {
  const OrderSearch search(series, predictors, options, options.outliers, differences);
  ArimaOptions trial = search.OptionsOf({.constant = true});
  trial.method = options.method;
  return FitArima(series, predictors, trial);
}

// The outliers of a fitted model, their cases counted from the first case of the series.
TSOutlierSpecList OutliersOf(const TSFModel& model) {
  const auto& state = dynamic_cast<const ARMAForecastState&>(*model.GetImp()->GetForecastState());
  const auto start = static_cast<long>(model.GetImp()->GetEstimationInfo().GetSpan().start);
  const TSOutlierSpecList& list = state.GetAMModelSpec().GetOutliers();
  std::vector<TSOutlierSpec> outliers;
  for (unsigned j = 0; j < list.GetOutlierSpecCount(false); ++j) {
    const TSOutlierSpec& outlier = list.GetOutlierSpec(j);
    outliers.emplace_back(outlier.GetType(), start + outlier.GetStartIndex());
  }
  return TSOutlierSpecList(std::move(outliers));
}

// Looks for outliers in the model that `search` found, for the model again beside them, and for
// outliers in that one; the last fit goes into `found`.
void SearchAroundOutliers(std::span<const double> series,
                          std::span<const std::vector<double>> predictors,
                          const AutoArimaOptions& options, ArimaOptions& model,
                          AutoArimaFit& found) {
  found.fit = FitArimaDetectingOutliers(series, predictors, model, options.outlier_search);
  if (found.fit.status != FitStatus::kOk) return;
  const TSOutlierSpecList outliers = OutliersOf(found.fit.model);
  if (outliers.GetOutlierSpecCount(false) == options.outliers.GetOutlierSpecCount(false)) return;

  OrderSearch again(series, predictors, options, outliers,
                    FindDifferenceOrders(series, predictors, options, outliers));
  again.Run();
  found.models_tried += again.ModelsTried();
  if (again.HasFound()) {
    model = again.OptionsOf(again.Orders());
    model.spec.outliers = options.outliers;
    found.fit = FitArimaDetectingOutliers(series, predictors, model, options.outlier_search);
    if (found.fit.status != FitStatus::kOk) return;
  }
  model.spec.outliers = OutliersOf(found.fit.model);
  found.aicc = CorrectedAkaike(found.fit.summary);
}

// The same, unless the outliers leave too few cases for a criterion: then there are none.
void DetectBearableOutliers(std::span<const double> series,
                            std::span<const std::vector<double>> predictors,
                            const AutoArimaOptions& options, ArimaOptions& model,
                            AutoArimaFit& found) {
  ArimaOptions modelBefore = model;
  AutoArimaFit before = found;
  SearchAroundOutliers(series, predictors, options, model, found);
  if (found.fit.status != FitStatus::kOk || std::isfinite(found.aicc)) return;
  before.models_tried = found.models_tried;
  model = std::move(modelBefore);
  found = std::move(before);
}

}  // namespace

AutoArimaFit FitAutoArima(std::span<const double> series,
                          std::span<const std::vector<double>> predictors,
                          const AutoArimaOptions& options) {
  AutoArimaFit found;
  found.aicc = MV::gMissingValue;
  found.fit = Trial(series, predictors, options, {});
  if (found.fit.status != FitStatus::kOk) return found;
  const DifferenceOrders differences =
      FindDifferenceOrders(series, predictors, options, options.outliers);
  // Differences may leave too little, or nothing but a constant.
  found.fit = Trial(series, predictors, options, differences);
  if (found.fit.status != FitStatus::kOk) return found;

  OrderSearch search(series, predictors, options, options.outliers, differences);
  search.Run();
  found.models_tried = search.ModelsTried();
  if (!search.HasFound()) {
    found.fit = {};
    Refuse(found.fit, FitStatus::kNotIdentified, "no ARIMA model suits the series");
    return found;
  }
  found.fit = search.Fit();
  found.aicc = search.Aicc();
  ArimaOptions model = search.OptionsOf(search.Orders());
  if (options.detect_outliers) DetectBearableOutliers(series, predictors, options, model, found);
  if (found.fit.status == FitStatus::kOk && options.method != ArimaMethod::kMl) {
    model.method = options.method;
    found.fit = FitArima(series, predictors, model);
  }
  if (found.fit.status != FitStatus::kOk) found.aicc = MV::gMissingValue;
  return found;
}

}  // namespace tsffit
