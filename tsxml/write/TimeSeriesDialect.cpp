#include "tsxml/write/TimeSeriesDialect.h"

#include <utility>

#include <tsxport/ModelXMLTreeMaker.h>

#include "dictionary/RefsCheck.h"
#include "tsxml/write/CrostonModel.h"
#include "tsxml/write/Frame.h"

namespace tsx {

namespace {

constexpr const DialectFacts& kFacts = *FindDialect("tscxml");

// Null when there is nothing to encode.
ElementPtr MakeCroston(const TSFCrModel& model, const TSXDictionaryRefs& refs) {
  if (model.IsEmpty()) return nullptr;
  const TSFCrModelImp& imp = *model.GetImp();
  return MakeCrostonModel(imp.GetForecastState(0), imp.GetForecastState(1), imp.GetForecastState(2),
                          refs, imp.GetFunctionType(), imp.GetEstimationInfo());
}

ElementPtr MakeModel(const OfferedModel& offer) {
  if (offer.croston != nullptr) return MakeCroston(*offer.croston, offer.refs);
  const ForecastState* state = StateOf(offer);
  if (state == nullptr) return nullptr;
  ModelXMLTreeMaker maker(offer.refs, offer.model->GetImp()->GetEstimationInfo());
  state->Accept(maker);
  return ElementPtr(maker.ReleaseTree());
}

}  // namespace

TimeSeriesDialect::TimeSeriesDialect()
    : Dialect(kFacts, {.needs_models = true, .lists_bare_models = true, .empties_tree = true}) {}

void TimeSeriesDialect::Begin(const DocumentFront& front, DocumentSink& out) {
  ElementPtr root = MakeFrame(front.application);
  Append(*root, MakeDataDictionary(front.calendars));
  out.Open(std::move(root));
}

bool TimeSeriesDialect::Model(const OfferedModel& offer, DateSpecDictionary& dictionary,
                              ElementSink& out) {
  unsigned index = 0;
  if (!CheckRefs(offer.refs, PredictorCountOf(offer), dictionary.entries(), index)) return false;
  ElementPtr element = MakeModel(offer);
  if (!element) return false;
  out.Take(std::move(element));
  if (offer.refs.GetDateSpecID() != 0) dictionary.MarkReferenced(index);
  return true;
}

}  // namespace tsx
