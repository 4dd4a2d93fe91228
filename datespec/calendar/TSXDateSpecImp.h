#ifndef TSXPORT_DATESPEC_CALENDAR_TSXDATESPECIMP_H_
#define TSXPORT_DATESPEC_CALENDAR_TSXDATESPECIMP_H_

#include <cstdint>
#include <span>

#include <tsxport/TSXDateSpec.h>

#include "datespec/calendar/Calendar.h"
#include "datespec/calendar/GapList.h"

// What a TSXDateSpec owns: the calendar, the gaps on it, and the facts that ride along. Its
// operations are the handle's, whose header explains them.
class TSXDateSpecImp {
 public:
  using PeriodType = TSXDateSpec::PeriodType;
  using TSXIndexTuple = TSXDateSpec::TSXIndexTuple;
  using TimePeriod = tsx::TimePeriod;

  explicit TSXDateSpecImp(PeriodType base);

  MCTime::MCStatus AddPeriod(PeriodType type, unsigned cycleLength, unsigned subCycleStart,
                             unsigned subCycleLength);
  unsigned PeriodCount() const;
  unsigned GetPeriod(unsigned index, PeriodType& type, unsigned& cycleLength,
                     unsigned& subCycleStart, unsigned& subCycleLength) const;

  MCTime::MCStatus SetLowestIncrement(unsigned increment);
  unsigned LowestIncrement() const { return calendar_.LowestIncrement(); }

  void SetForcedSeasonLength(unsigned length) { forced_season_length_ = length; }
  unsigned ForcedSeasonLength() const { return forced_season_length_; }
  unsigned DefaultSeasonLength() const;
  void SetFiscalYearStart(unsigned start) { fiscal_year_start_ = start; }
  unsigned FiscalYearStart() const { return fiscal_year_start_; }

  bool SetFirstCaseDay(unsigned day, unsigned month, unsigned year);
  void GetFirstCaseDay(unsigned& day, unsigned& month, unsigned& year) const;

  MCTime::MCStatus SetFirstCaseIndex(const TSXIndexTuple& tuple);
  TSXIndexTuple FirstCaseIndex() const { return TSXIndexTuple(*this); }

  MCTime::MCStatus AddGap(long offset);
  MCTime::MCStatus AddGap(const TSXIndexTuple& tuple);
  void ClearGaps() { gaps_.Clear(); }
  unsigned long GapCount() const { return gaps_.Offsets().size(); }
  TSXIndexTuple GapIndex(unsigned long i) const;

  TSXIndexTuple IndexTuple(long offset) const;
  long VirtualCaseOffset(long caseOffset) const { return gaps_.VirtualOffset(caseOffset); }
  long CaseOffset(long virtualOffset) const;
  long ClosestCaseOffset(long virtualOffset, bool forward) const;
  unsigned long NumberFromOffset(long offset) const;
  long OffsetFromNumber(unsigned long number) const;

  bool IsEquivalent(const TSXDateSpecImp& other, bool full) const;
  // The same for all that are fully equivalent, and for hardly any others.
  std::uint64_t EquivalenceHash() const;

  // For tuples: whether indexes are a position here, and their virtual offset.
  bool Admits(std::span<const unsigned> indexes) const { return calendar_.Admits(indexes); }
  long OffsetOf(std::span<const unsigned> indexes) const;
  const std::vector<TimePeriod>& Periods() const { return calendar_.Periods(); }

 private:
  struct CaseDay {
    unsigned day = 0;
    unsigned month = 0;
    unsigned year = 0;
  };

  MCTime::MCStatus StartAfresh(MCTime::MCStatus status);

  tsx::Calendar calendar_;
  tsx::GapList gaps_;
  CaseDay first_case_day_;
  unsigned forced_season_length_ = 0;
  unsigned fiscal_year_start_ = 0;
};

#endif  // TSXPORT_DATESPEC_CALENDAR_TSXDATESPECIMP_H_
