#include "pmml/write/ExponentialSmoothing.h"

#include <tsfcore/MV.h>

#include "kinds/SmoothingKind.h"
#include "pmml/Tags.h"
#include "pmml/write/SmoothedState.h"
#include "xml/NumberList.h"

// Writes, as far as the kind has a parameter and the state a component:
//   <ExponentialSmoothing RMSE>
//     <Level alpha smoothedValue?/>
//     <Trend_ExpoSmooth gamma? smoothedValue? trend? phi?>
//       <Array n type>?                         Brown: intercept and slope of the forecast line
//     </Trend_ExpoSmooth>
//     <Seasonality_ExpoSmooth delta period unit phase? type?>
//       <Array n type>?
//     </Seasonality_ExpoSmooth>
//   </ExponentialSmoothing>

namespace tsx::pmml {

namespace {

using TIMESERIESXML::XMLElement;

// Below this weight the slope of Brown's line divided by it says nothing.
constexpr double kLeastAlpha = 1e-7;

// What the elements share while the parameters are walked through.
struct Walk {
  int kind;
  SmoothedState state;
  double alpha = 0;  // 0 until a level was seen
  bool trend_written = false;
};

ElementPtr MakeArray(std::span<const double> values) {
  ElementPtr e = MakeElement(tag::kArray);
  e->AddAttribute(attr::kN, static_cast<double>(values.size()));
  e->AddAttribute(attr::kType, val::kReal);
  AddValueList(*e, values);
  return e;
}

ElementPtr MakeLevel(const Walk& walk) {
  ElementPtr e = MakeElement(tag::kLevel);
  e->AddAttribute(attr::kAlpha, walk.alpha);
  if (walk.state.has_level) e->AddAttribute(attr::kSmoothedValue, walk.state.level);
  return e;
}

void AppendBrownArray(XMLElement& trend, const Walk& walk) {
  if (!(walk.alpha > kLeastAlpha)) return;
  const SmoothedState& s = walk.state;
  const double line[] = {s.level + s.trend / walk.alpha - s.trend, s.trend};
  Append(trend, MakeArray(line));
}

void FillTrendKind(XMLElement& trend, const Walk& walk) {
  switch (kinds::TrendOf(walk.kind)) {
    case kinds::Trend::kLinear:
      trend.AddAttribute(attr::kTrend, val::kAdditive);
      break;
    case kinds::Trend::kDamped:
      trend.AddAttribute(attr::kTrend, val::kDampedAdditive);
      trend.AddAttribute(attr::kPhi, walk.state.phi);
      break;
    case kinds::Trend::kBrown:
      trend.AddAttribute(attr::kTrend, val::kPolynomialExponential);
      AppendBrownArray(trend, walk);
      break;
    case kinds::Trend::kNone:
      break;
  }
}

// `gamma` null: the kind has a trend in its state and no weight for it.
ElementPtr MakeTrend(const Walk& walk, const double* gamma) {
  ElementPtr e = MakeElement(tag::kTrend);
  if (gamma != nullptr) e->AddAttribute(attr::kGamma, *gamma);
  if (walk.state.has_trend) e->AddAttribute(attr::kSmoothedValue, walk.state.trend);
  FillTrendKind(*e, walk);
  return e;
}

ElementPtr MakeSeasonality(const Walk& walk, double delta) {
  const SmoothedState& s = walk.state;
  ElementPtr e = MakeElement(tag::kSeasonality);
  e->AddAttribute(attr::kDelta, delta);
  e->AddAttribute(attr::kPeriod, s.season_length);
  e->AddAttribute(attr::kUnit, val::kMonth);  // whatever the calendar says: the format is so
  if (s.has_season) e->AddAttribute(attr::kPhase, s.phase);
  const kinds::Season season = kinds::SeasonOf(walk.kind);
  if (season == kinds::Season::kAdditive) {
    e->AddAttribute(attr::kType, val::kAdditive);
  } else if (season == kinds::Season::kMultiplicative) {
    e->AddAttribute(attr::kType, val::kMultiplicative);
  }
  if (s.has_season) Append(*e, MakeArray(s.season));
  return e;
}

void AppendParameter(XMLElement& parent, Walk& walk, TSFESModelProp::TSFESParmType type,
                     double value) {
  switch (type) {
    case TSFESModelProp::kLevel:
      walk.alpha = value;
      Append(parent, MakeLevel(walk));
      break;
    case TSFESModelProp::kTrend:
      walk.trend_written = true;
      Append(parent, MakeTrend(walk, &value));
      break;
    case TSFESModelProp::kSeason:
      Append(parent, MakeSeasonality(walk, value));
      break;
    case TSFESModelProp::kDamping:
      break;  // stands on the trend, as phi
  }
}

}  // namespace

ElementPtr MakeExponentialSmoothing(const TSXPMMLModelRecord& record,
                                    const ESForecastState* state) {
  constexpr int kNoKind = -1;
  ElementPtr e = MakeElement(tag::kExponentialSmoothing);
  e->AddAttribute(attr::kRMSE, record.statistics[TSXPMMLModelRecord::kRMSE]);
  Walk walk{.kind = state != nullptr ? state->GetESModelSpec().GetKind() : kNoKind,
            .state = ReadSmoothedState(state)};
  for (std::size_t i = 0; i < record.parameter_types.size(); ++i) {
    AppendParameter(*e, walk, record.parameter_types[i], record.parameter_values[i].front());
  }
  // Brown's model has a trend without a weight of its own.
  if (!walk.trend_written && walk.state.has_trend) Append(*e, MakeTrend(walk, nullptr));
  return e;
}

void AddValueList(XMLElement& array, std::span<const double> values) {
  FillNumberList(array, values, MV::gMissingValue, Infinities::kAsFormatted);
}

}  // namespace tsx::pmml
