// Writes:
//   <DateSpecification dateSpecID dateSpecDescriptor?>
//     <Periods lowestIncrement? forcedSeasonLength? fiscalYearStart?>
//       <Year cycleLength? subCycleStart? subCycleLength? firstCaseIndex>*   by its period's name
//     </Periods>
//     <GapList>?                        virtual offsets, rising
//     <FirstCaseDay day month month>?   the second month is the year
//   </DateSpecification>
#include "datespec/write/DateSpecificationElement.h"

#include <utility>
#include <vector>

#include <tsfcore/MV.h>

#include "datespec/PeriodNames.h"
#include "datespec/Tags.h"
#include "xml/NumberList.h"

namespace tsx {

namespace {

using TIMESERIESXML::XMLElement;

void AppendPeriod(XMLElement& periods, const TSXDateSpec& spec, unsigned i,
                  unsigned firstCaseIndex) {
  TSXDateSpec::PeriodType type{};
  unsigned cycleLength = 0;
  unsigned subCycleStart = 0;
  unsigned subCycleLength = 0;
  spec.GetPeriod(i, type, cycleLength, subCycleStart, subCycleLength);
  const char* name = FindName(kPeriodNames, type);
  if (name == nullptr) return;

  ElementPtr e = MakeElement(name);
  if (cycleLength > 1) {
    e->AddAttribute(attr::kCycleLength, cycleLength);
    if (subCycleLength != 0) {
      e->AddAttribute(attr::kSubCycleStart, subCycleStart);
      e->AddAttribute(attr::kSubCycleLength, subCycleLength);
    }
  }
  e->AddAttribute(attr::kFirstCaseIndex, firstCaseIndex);
  Append(periods, std::move(e));
}

ElementPtr MakePeriods(const TSXDateSpec& spec) {
  ElementPtr e = MakeElement(tag::kPeriods);
  if (spec.LowestIncrement() > 1) e->AddAttribute(attr::kLowestIncrement, spec.LowestIncrement());
  if (spec.ForcedSeasonLength() != 0) {
    e->AddAttribute(attr::kForcedSeasonLength, spec.ForcedSeasonLength());
  }
  if (spec.FiscalYearStart() != 0) e->AddAttribute(attr::kFiscalYearStart, spec.FiscalYearStart());
  const std::vector<unsigned> firstCase = spec.FirstCaseIndex().GetIndexes();
  for (unsigned i = 0; i < spec.PeriodCount(); ++i) AppendPeriod(*e, spec, i, firstCase[i]);
  return e;
}

void AppendGapList(XMLElement& parent, const TSXDateSpec& spec) {
  std::vector<double> offsets;
  offsets.reserve(spec.GapCount());
  for (unsigned long i = 0; i < spec.GapCount(); ++i) {
    offsets.push_back(static_cast<double>(spec.GapIndex(i).VirtualCaseOffset()));
  }
  AppendVector(parent, tag::kGapList, offsets, false, MV::gMissingValue);
}

void AppendFirstCaseDay(XMLElement& parent, const TSXDateSpec& spec) {
  unsigned day = 0;
  unsigned month = 0;
  unsigned year = 0;
  spec.GetFirstCaseDay(day, month, year);
  if (day == 0) return;
  ElementPtr e = MakeElement(tag::kFirstCaseDay);
  e->AddAttribute(attr::kDay, day);
  e->AddAttribute(attr::kMonth, month);
  e->AddAttribute(attr::kYear, year);
  Append(parent, std::move(e));
}

}  // namespace

ElementPtr MakeDateSpecification(const TSXDateSpec& spec, const std::string& descriptor,
                                 unsigned id) {
  ElementPtr e = MakeElement(tag::kDateSpecification);
  e->AddAttribute(attr::kDateSpecID, id);
  if (!descriptor.empty()) e->AddAttribute(attr::kDateSpecDescriptor, descriptor);
  Append(*e, MakePeriods(spec));
  AppendGapList(*e, spec);
  AppendFirstCaseDay(*e, spec);
  return e;
}

}  // namespace tsx
