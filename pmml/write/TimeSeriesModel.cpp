#include "pmml/write/TimeSeriesModel.h"

#include <iterator>
#include <string>

#include <tsfcore/ESForecastState.h>
#include <tsxport/Version.h>

#include "pmml/Tags.h"
#include "pmml/write/ExponentialSmoothing.h"

// Writes:
//   <TimeSeriesModel modelName? functionName algorithmName bestFit>
//     <MiningSchema>
//       <MiningField name usageType>            the dependent variable, then the time
//     </MiningSchema>
//     <TimeSeries usage startTime endTime interpolationMethod>?
//       <TimeAnchor/>
//       <TimeValue index value/>*
//     </TimeSeries>
//     <ExponentialSmoothing>
//     <Extension extender name value/>          four facts of the estimation
//   </TimeSeriesModel>

namespace tsx::pmml {

namespace {

using TIMESERIESXML::XMLElement;

const TSFModelImp* ImpOf(const TSXPMMLModelRecord& record) { return record.model.GetImp(); }

const ESForecastState* StateOf(const TSXPMMLModelRecord& record) {
  if (ImpOf(record) == nullptr) return nullptr;
  return dynamic_cast<const ESForecastState*>(ImpOf(record)->GetForecastState());
}

void FillAttributes(XMLElement& model, const TSXDictionaryRefs& refs) {
  if (!refs.GetModelName().empty()) model.AddAttribute(attr::kModelName, refs.GetModelName());
  model.AddAttribute(attr::kFunctionName, val::kTimeSeries);
  model.AddAttribute(attr::kAlgorithmName, val::kAlgorithm);
  model.AddAttribute(attr::kBestFit, val::kExponentialSmoothing);
}

void AppendMiningField(XMLElement& schema, const std::string& name, const char* usage) {
  ElementPtr e = MakeElement(tag::kMiningField);
  e->AddAttribute(attr::kName, name);
  e->AddAttribute(attr::kUsageType, usage);
  Append(schema, std::move(e));
}

ElementPtr MakeMiningSchema(const std::string& dependentVarID, const TimeField& time) {
  ElementPtr e = MakeElement(tag::kMiningSchema);
  AppendMiningField(*e, dependentVarID, val::kPredicted);
  AppendMiningField(*e, std::string(OrDefault(time).name), val::kOrder);
  return e;
}

void AppendTimeValue(XMLElement& series, std::size_t index, double value) {
  ElementPtr e = MakeElement(tag::kTimeValue);
  e->AddAttribute(attr::kIndex, static_cast<double>(index));
  e->AddAttribute(attr::kValue, value);
  Append(series, std::move(e));
}

ElementPtr MakeTimeSeries(const std::valarray<double>& history) {
  ElementPtr e = MakeElement(tag::kTimeSeries);
  e->AddAttribute(attr::kUsage, val::kLogical);
  e->AddAttribute(attr::kStartTime, val::kFirst);
  e->AddAttribute(attr::kEndTime, static_cast<double>(history.size()));
  e->AddAttribute(attr::kInterpolationMethod, val::kNone);
  Append(*e, MakeElement(tag::kTimeAnchor));
  for (std::size_t i = 0; i < history.size(); ++i) AppendTimeValue(*e, i + 1, history[i]);
  return e;
}

void AppendExtension(XMLElement& model, const char* name, double value) {
  ElementPtr e = MakeElement(tag::kExtension);
  e->AddAttribute(attr::kExtender, kMakersHost);
  e->AddAttribute(attr::kName, name);
  e->AddAttribute(attr::kValue, value);
  Append(model, std::move(e));
}

void AppendExtensions(XMLElement& model, const EstimationInfo& info) {
  AppendExtension(model, val::kErrVariance, info.GetErrorVariance());
  AppendExtension(model, val::kDegreesOfFreedom, static_cast<double>(info.GetDegreesOfFreedom()));
  AppendExtension(model, val::kPeriodStartIndex, static_cast<double>(info.GetSpan().start));
  AppendExtension(model, val::kPeriodLength, static_cast<double>(info.GetSpan().length));
}

}  // namespace

ElementPtr MakeTimeSeriesModel(const TSXPMMLModelRecord& record, const TSXDictionaryRefs& refs,
                               const TimeField& timeField, const std::valarray<double>& history) {
  const EstimationInfo none;
  ElementPtr e = MakeElement(tag::kTimeSeriesModel);
  FillAttributes(*e, refs);
  Append(*e, MakeMiningSchema(record.dependent_var_id, timeField));
  if (history.size() > 0) Append(*e, MakeTimeSeries(history));
  Append(*e, MakeExponentialSmoothing(record, StateOf(record)));
  AppendExtensions(*e, ImpOf(record) != nullptr ? ImpOf(record)->GetEstimationInfo() : none);
  return e;
}

}  // namespace tsx::pmml
