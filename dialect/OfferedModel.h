#ifndef TSXPORT_DIALECT_OFFEREDMODEL_H_
#define TSXPORT_DIALECT_OFFEREDMODEL_H_

#include <optional>
#include <valarray>

#include <tsfcore/TSFCrModel.h>
#include <tsfcore/TSFModel.h>
#include <tsxport/DialectFacts.h>
#include <tsxport/TSXDictionaryRefs.h>

namespace tsx {

// A fitted model on its way into a document, and the names that it goes by. All is borrowed.
struct OfferedModel {
  const TSXDictionaryRefs& refs;
  // One of the two, which may be empty handles.
  const TSFModel* model = nullptr;
  const TSFCrModel* croston = nullptr;
  // The series that was fitted, for dialects that write it; null for none.
  const std::valarray<double>* history = nullptr;
};

OfferedModel Offer(const TSFModel& model, const TSXDictionaryRefs& refs);
OfferedModel Offer(const TSFCrModel& model, const TSXDictionaryRefs& refs);

// What it was fitted by; none when there is no forecast state, or no known one.
std::optional<DialectContent> MethodOf(const OfferedModel& offer);

// The state of a smoothing or ARIMA model; null when it has none, and for Croston's method.
const ForecastState* StateOf(const OfferedModel& offer);

// A model of Croston's method has no predictors.
unsigned PredictorCountOf(const OfferedModel& offer);

}  // namespace tsx

#endif  // TSXPORT_DIALECT_OFFEREDMODEL_H_
