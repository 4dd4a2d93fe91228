#include "tsxml/write/EstimationInfoElement.h"

#include "tsxml/Names.h"
#include "tsxml/Tags.h"
#include "tsxml/write/MissingValue.h"
#include "xml/NumberList.h"

// Writes:
//   <EstimationInfo periodStartIndex periodLength degreesOfFreedom>
//     <Statistic type>*                       errVariance first, then those of kStatistics
//     <LjungBoxStatistic k degreesOfFreedom pValue>?
//   </EstimationInfo>

namespace tsx {

namespace {

using TIMESERIESXML::XMLElement;

void FillAttributes(XMLElement& e, const EstimationInfo& info) {
  const EstimationInfo::Span& span = info.GetSpan();
  e.AddAttribute(attr::kPeriodStartIndex, static_cast<double>(span.start));
  e.AddAttribute(attr::kPeriodLength, static_cast<double>(span.length));
  e.AddAttribute(attr::kDegreesOfFreedom, static_cast<double>(info.GetDegreesOfFreedom()));
}

void AppendStatistic(XMLElement& parent, const char* type, double value) {
  if (IsMissing(value)) return;
  ElementPtr e = MakeElement(tag::kStatistic);
  e->AddAttribute(attr::kType, type);
  FillNumberList(*e, {&value, 1}, MV::gMissingValue);
  Append(parent, std::move(e));
}

void AppendLjungBox(XMLElement& parent, const EstimationInfo& info) {
  EstimationInfo::LjungBox test;
  info.GetLBStat(test.statistic, test.k, test.degrees_of_freedom, test.p_value);
  if (IsMissing(test.statistic)) return;

  ElementPtr e = MakeElement(tag::kLjungBoxStatistic);
  e->AddAttribute(attr::kK, static_cast<double>(test.k));
  e->AddAttribute(attr::kDegreesOfFreedom, static_cast<double>(test.degrees_of_freedom));
  // A missing p-value is written as the number that stands for it: the attribute is always there.
  e->AddAttribute(attr::kPValue, test.p_value);
  FillNumberList(*e, {&test.statistic, 1}, MV::gMissingValue);
  Append(parent, std::move(e));
}

}  // namespace

ElementPtr MakeEstimationInfo(const EstimationInfo& info) {
  ElementPtr e = MakeElement(tag::kEstimationInfo);
  FillAttributes(*e, info);
  AppendStatistic(*e, val::kErrVariance, info.GetErrorVariance());
  for (const auto& row : kStatistics) {
    AppendStatistic(*e, row.name, info.GetGOFStat(row.code));
  }
  AppendLjungBox(*e, info);
  return e;
}

}  // namespace tsx
