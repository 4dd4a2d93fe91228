#include "models/Smoothing.h"

#include <utility>

#include <tsfcore/ESForecastState.h>
#include <tsffit/Smoothing.h>

#include "kinds/SmoothingKind.h"
#include "models/EstimationFigures.h"
#include "models/Refusal.h"

namespace tsx::models {
namespace {

constexpr KindInfo kKinds[] = {
    {ESModelSpec::kSimple, "simple", "simple smoothing"},
    {ESModelSpec::kBrown, "brown", "Brown's linear trend"},
    {ESModelSpec::kHolt, "holt", "Holt's linear trend"},
    {ESModelSpec::kDampedTrend, "damped-trend", "damped trend"},
    {ESModelSpec::kSimpleSeasonal, "simple-seasonal", "simple seasonal smoothing"},
    {ESModelSpec::kAdditiveWinters, "winters-additive", "Winters with additive seasons"},
    {ESModelSpec::kMultiplicativeWinters, "winters-multiplicative",
     "Winters with multiplicative seasons"},
};

const kinds::SmoothingKind& FactsOf(const KindInfo& kind) {
  return *kinds::FindSmoothingKind(kind.kind);
}

std::vector<Estimate> WeightsOf(const TSFModel& model) {
  constexpr std::pair<TSFESModelProp::TSFESParmType, const char*> kNames[] = {
      {TSFESModelProp::kLevel, "level"},
      {TSFESModelProp::kTrend, "trend"},
      {TSFESModelProp::kSeason, "season"},
      {TSFESModelProp::kDamping, "damping"}};
  const TSFESModelProp properties = model.GetModelProperties();
  std::vector<Estimate> weights;
  for (const auto& [type, name] : kNames) {
    const double weight = properties.GetWeight(type);
    if (weight == MV::gMissingValue) continue;
    const bool onBound = weight <= 0 || weight >= 1;
    weights.push_back({name, weight, properties.GetStdError(type),
                       onBound ? NoError::kOnBound : NoError::kUndefined});
  }
  return weights;
}

class SmoothingModel final : public FittedModel {
 public:
  SmoothingModel(const KindInfo& kind, unsigned seasonLength, TSFModel model)
      : kind_(kind), season_length_(seasonLength), model_(std::move(model)) {}

  tsffit::Forecasts Forecast(unsigned horizon) const override {
    return tsffit::Forecast(model_, horizon);
  }

  bool AddTo(TSXMLTree& tree, const TSXDictionaryRefs& refs) const override {
    return tree.AddModelTree(model_, refs);
  }

  const EstimationInfo& Estimation() const override { return model_.GetImp()->GetEstimationInfo(); }

  Description Describe() const override {
    Description rows;
    rows.name = kind_.name;
    rows.title = kind_.title;
    if (FactsOf(kind_).has_season()) rows.season_length = season_length_;
    rows.function_type = State().GetESModelSpec().GetYTransformSpec().GetFunctionType();
    rows.estimates_are = Estimates::kWeights;
    rows.estimates = WeightsOf(model_);
    rows.figures = {FitFigures(Estimation()), ResidualFigures(Estimation()), StateFigures()};
    if (FactsOf(kind_).has_season()) rows.season = NextSeason();
    return rows;
  }

 private:
  const ESForecastState& State() const {
    return dynamic_cast<const ESForecastState&>(*model_.GetImp()->GetForecastState());
  }

  Figures StateFigures() const {
    const ESForecastState::SmState& smoothed = State().GetSmState();
    Figures state = {.label = "state", .rows = {{"level", smoothed.level}}};
    if (FactsOf(kind_).has_trend()) state.rows.push_back({"trend", smoothed.trend});
    return state;
  }

  std::vector<double> NextSeason() const {
    const ESForecastState::SmState& smoothed = State().GetSmState();
    const std::size_t length = smoothed.season.size();
    std::vector<double> season;
    season.reserve(length);
    for (std::size_t i = 0; i < length; ++i) {
      season.push_back(smoothed.season[(smoothed.phase + i) % length]);
    }
    return season;
  }

  const KindInfo& kind_;
  unsigned season_length_;
  TSFModel model_;
};

}  // namespace

std::span<const KindInfo> SmoothingClass::Kinds() const { return kKinds; }

std::string SmoothingClass::SeasonalPart(const KindInfo& kind,
                                         const ModelRequest& /*request*/) const {
  return FactsOf(kind).has_season() ? kind.name : "";
}

bool SmoothingClass::IsCompared(const KindInfo& kind, const ModelRequest& request) const {
  const bool transformed = request.function_type != TSTransformation::kNone;
  return !transformed || FactsOf(kind).season != kinds::Season::kMultiplicative;
}

Fitting SmoothingClass::Fit(const KindInfo& kind, const Task& task) const {
  tsffit::SmoothingOptions options;
  options.kind = kind.kind;
  options.season_length = FactsOf(kind).has_season() ? task.season_length : 1;
  options.function_type = task.request.function_type;
  const tsffit::SmoothingFit fit = tsffit::FitSmoothing(task.series.values, options);
  if (fit.status != tsffit::FitStatus::kOk) return {.fault = RefusalOf(task.series, fit)};
  return {.model = std::make_unique<SmoothingModel>(kind, task.season_length, fit.model)};
}

}  // namespace tsx::models
