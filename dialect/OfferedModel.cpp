#include "dialect/OfferedModel.h"

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/ESForecastState.h>

namespace tsx {

OfferedModel Offer(const TSFModel& model, const TSXDictionaryRefs& refs) {
  return {.refs = refs,
          .model = &model,
          .history = model.IsEmpty() ? nullptr : &model.GetImp()->GetHistoryData()};
}

OfferedModel Offer(const TSFCrModel& model, const TSXDictionaryRefs& refs) {
  return {.refs = refs, .croston = &model};
}

std::optional<DialectContent> MethodOf(const OfferedModel& offer) {
  if (offer.croston != nullptr && !offer.croston->IsEmpty()) return DialectContent::kCroston;
  const ForecastState* state = StateOf(offer);
  if (dynamic_cast<const ESForecastState*>(state) != nullptr) return DialectContent::kSmoothing;
  if (dynamic_cast<const ARMAForecastState*>(state) != nullptr) return DialectContent::kArima;
  return std::nullopt;
}

const ForecastState* StateOf(const OfferedModel& offer) {
  if (offer.model == nullptr || offer.model->IsEmpty()) return nullptr;
  return offer.model->GetImp()->GetForecastState();
}

unsigned PredictorCountOf(const OfferedModel& offer) {
  return offer.model != nullptr ? offer.model->GetPredictorCount() : 0;
}

}  // namespace tsx
