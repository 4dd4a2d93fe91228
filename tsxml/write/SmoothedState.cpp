#include "tsxml/write/SmoothedState.h"

#include "kinds/SmoothingKind.h"
#include "tsxml/Tags.h"
#include "tsxml/write/MissingValue.h"
#include "xml/ElementPtr.h"
#include "xml/NumberList.h"

namespace tsx {

namespace {

using TIMESERIESXML::XMLElement;

void AppendValue(XMLElement& parent, const char* name, double value) {
  ElementPtr e = MakeElement(name);
  FillNumberList(*e, {&value, 1}, MV::gMissingValue);
  Append(parent, std::move(e));
}

void AppendSeason(XMLElement& parent, const ESForecastState::SmState& smoothed) {
  ElementPtr e = MakeElement(tag::kStateSeason);
  e->AddAttribute(attr::kPhase, static_cast<double>(smoothed.phase));
  FillNumberList(*e, {&smoothed.season[0], smoothed.season.size()}, MV::gMissingValue);
  Append(parent, std::move(e));
}

}  // namespace

bool AppendSmoothedState(XMLElement& parent, const ESModelSpec& spec,
                         const ESForecastState& state) {
  const ESForecastState::SmState& smoothed = state.GetSmState();
  const bool hasTrend = kinds::ExpectsTrend(spec.GetKind());
  const bool seasonal = smoothed.season.size() > 1;
  if (IsMissing(smoothed.level)) return false;
  if (hasTrend && IsMissing(smoothed.trend)) return false;
  if (seasonal && AnyMissing(smoothed.season)) return false;

  AppendValue(parent, tag::kStateLevel, smoothed.level);
  if (hasTrend) AppendValue(parent, tag::kStateTrend, smoothed.trend);
  if (seasonal) AppendSeason(parent, smoothed);
  return true;
}

}  // namespace tsx
