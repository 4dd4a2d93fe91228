#include "models/Croston.h"

#include <utility>

#include <tsfcore/TSFCrModel.h>
#include <tsffit/Croston.h>

#include "models/EstimationFigures.h"
#include "models/Refusal.h"
#include "text/Words.h"

namespace tsx::models {
namespace {

constexpr KindInfo kKind = {0, "croston", "Croston's method"};

// What the levels come to, as rates and sizes of the original scale.
Figures StateFigures(const TSFCrModelImp& model, double rate) {
  const double interval = model.GetForecastState(1).GetSmState().level;
  return {.label = "state",
          .rows = {{"demand", rate * interval},
                   {"interval", interval},
                   {"rate", rate},
                   {"mean absolute error", model.GetForecastState(2).GetSmState().level}},
          .sentence = "a demand of {} every {} periods: {} a period; mean absolute error {}"};
}

std::vector<Estimate> WeightsOf(const TSFCrModelImp& model) {
  constexpr const char* kNames[] = {"sizes", "intervals", "errors"};
  std::vector<Estimate> weights;
  for (int i = 0; i < 3; ++i) {
    const ESForecastState& state = model.GetForecastState(i);
    const bool estimated = state.GetESModelSpec().GetParameterCount(false) > 0;
    weights.push_back({kNames[i], state.GetParameterEstimates()[0],
                       state.GetParameterStdErrors()[0],
                       estimated ? NoError::kOnBound : NoError::kNotEstimated});
  }
  return weights;
}

class CrostonModel final : public FittedModel {
 public:
  CrostonModel(const Series& series, TSFCrModel model)
      : series_(series), model_(std::move(model)) {}

  tsffit::Forecasts Forecast(unsigned horizon) const override {
    return tsffit::Forecast(model_, horizon);
  }

  bool AddTo(TSXMLTree& tree, const TSXDictionaryRefs& refs) const override {
    return tree.AddModelTree(model_, refs);
  }

  const EstimationInfo& Estimation() const override { return model_.GetImp()->GetEstimationInfo(); }

  Description Describe() const override {
    const TSFCrModelImp& model = *model_.GetImp();
    const ZeroCount count = CountZeros(series_);
    const std::size_t demands = count.cases - count.zeros;
    Description rows;
    rows.name = kKind.name;
    rows.title = kKind.title;
    rows.function_type =
        model.GetForecastState(0).GetESModelSpec().GetYTransformSpec().GetFunctionType();
    rows.basis = text::Counted(demands, "demand");
    rows.estimates_are = Estimates::kWeights;
    rows.estimates = WeightsOf(model);
    rows.figures = {FitFigures(Estimation()), ResidualFigures(Estimation()),
                    StateFigures(model, Forecast(1).value[0])};
    return rows;
  }

 private:
  const Series& series_;
  TSFCrModel model_;
};

}  // namespace

ZeroCount CountZeros(const Series& series) {
  constexpr double kLeastShare = 0.3;
  ZeroCount count;
  bool negative = false;
  for (const double value : series.values) {
    if (value == MV::gMissingValue) continue;
    ++count.cases;
    count.zeros += value == 0 ? 1 : 0;
    negative = negative || value < 0;
  }
  const bool often =
      static_cast<double>(count.zeros) >= kLeastShare * static_cast<double>(count.cases);
  count.intermittent = often && !negative && count.zeros < count.cases;
  return count;
}

const KindInfo& CrostonKind() { return kKind; }

Fitting CrostonClass::Fit(const KindInfo& /*kind*/, const Task& task) const {
  tsffit::CrostonOptions options;
  options.function_type = task.request.function_type;
  const tsffit::CrostonFit fit = tsffit::FitCroston(task.series.values, options);
  if (fit.status != tsffit::FitStatus::kOk) return {.fault = RefusalOf(task.series, fit)};
  return {.model = std::make_unique<CrostonModel>(task.series, fit.model)};
}

std::optional<Claim> CrostonClass::FindClaim(const Series& series) const {
  const ZeroCount count = CountZeros(series);
  if (!count.intermittent) return std::nullopt;
  return Claim{&kKind, "intermittent demand",
               std::to_string(count.zeros) + " of " + std::to_string(count.cases) +
                   " cases are zero and none is negative",
               "not compared with smoothing"};
}

}  // namespace tsx::models
