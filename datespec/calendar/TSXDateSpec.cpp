#include <tsxport/TSXDateSpec.h>

#include "datespec/calendar/TSXDateSpecImp.h"

TSXDateSpec::TSXDateSpec(PeriodType base) : imp_(new TSXDateSpecImp(base)) {}
TSXDateSpec::TSXDateSpec(const TSXDateSpec& other) : imp_(new TSXDateSpecImp(*other.imp_)) {}
TSXDateSpec::~TSXDateSpec() { delete imp_; }

// The implementation stays where it is, for the tuples that point to it.
TSXDateSpec& TSXDateSpec::operator=(const TSXDateSpec& other) {
  if (this != &other) *imp_ = TSXDateSpecImp(*other.imp_);  // copied first: only that can fail
  return *this;
}

MCTime::MCStatus TSXDateSpec::AddPeriod(PeriodType type, unsigned cycleLength,
                                        unsigned subCycleStart, unsigned subCycleLength) {
  return imp_->AddPeriod(type, cycleLength, subCycleStart, subCycleLength);
}
unsigned TSXDateSpec::PeriodCount() const { return imp_->PeriodCount(); }
unsigned TSXDateSpec::GetPeriod(unsigned index, PeriodType& type, unsigned& cycleLength,
                                unsigned& subCycleStart, unsigned& subCycleLength) const {
  return imp_->GetPeriod(index, type, cycleLength, subCycleStart, subCycleLength);
}

MCTime::MCStatus TSXDateSpec::SetLowestIncrement(unsigned increment) {
  return imp_->SetLowestIncrement(increment);
}
unsigned TSXDateSpec::LowestIncrement() const { return imp_->LowestIncrement(); }

void TSXDateSpec::SetForcedSeasonLength(unsigned length) { imp_->SetForcedSeasonLength(length); }
unsigned TSXDateSpec::ForcedSeasonLength() const { return imp_->ForcedSeasonLength(); }
unsigned TSXDateSpec::DefaultSeasonLength() const { return imp_->DefaultSeasonLength(); }
void TSXDateSpec::SetFiscalYearStart(unsigned start) { imp_->SetFiscalYearStart(start); }
unsigned TSXDateSpec::FiscalYearStart() const { return imp_->FiscalYearStart(); }

bool TSXDateSpec::SetFirstCaseDay(unsigned day, unsigned month, unsigned year) {
  return imp_->SetFirstCaseDay(day, month, year);
}
void TSXDateSpec::GetFirstCaseDay(unsigned& day, unsigned& month, unsigned& year) const {
  imp_->GetFirstCaseDay(day, month, year);
}

MCTime::MCStatus TSXDateSpec::SetFirstCaseIndex(const TSXIndexTuple& tuple) {
  return imp_->SetFirstCaseIndex(tuple);
}
TSXDateSpec::TSXIndexTuple TSXDateSpec::FirstCaseIndex() const { return imp_->FirstCaseIndex(); }

MCTime::MCStatus TSXDateSpec::AddGap(long offset) { return imp_->AddGap(offset); }
MCTime::MCStatus TSXDateSpec::AddGap(const TSXIndexTuple& tuple) { return imp_->AddGap(tuple); }
void TSXDateSpec::ClearGaps() { imp_->ClearGaps(); }
unsigned long TSXDateSpec::GapCount() const { return imp_->GapCount(); }
TSXDateSpec::TSXIndexTuple TSXDateSpec::GapIndex(unsigned long i) const {
  return imp_->GapIndex(i);
}

TSXDateSpec::TSXIndexTuple TSXDateSpec::IndexTuple(long offset) const {
  return imp_->IndexTuple(offset);
}
long TSXDateSpec::VirtualCaseOffset(long caseOffset) const {
  return imp_->VirtualCaseOffset(caseOffset);
}
long TSXDateSpec::CaseOffset(long virtualOffset) const { return imp_->CaseOffset(virtualOffset); }
long TSXDateSpec::ClosestCaseOffset(long virtualOffset, bool forward) const {
  return imp_->ClosestCaseOffset(virtualOffset, forward);
}
unsigned long TSXDateSpec::NumberFromOffset(long offset) const {
  return imp_->NumberFromOffset(offset);
}
long TSXDateSpec::OffsetFromNumber(unsigned long number) const {
  return imp_->OffsetFromNumber(number);
}

bool TSXDateSpec::IsEquivalent(const TSXDateSpec& other, bool full) const {
  return imp_->IsEquivalent(*other.imp_, full);
}
