#ifndef TSXPORT_TSXDATESPEC_H_
#define TSXPORT_TSXDATESPEC_H_

#include <vector>

#include <tsfcore/MCStatus.h>
#include <tsxport/Export.h>

class TSXDateSpecImp;

namespace tsx {
struct DateSpecAccess;
}

// The calendar on which a time series is observed: a base period, finer periods nested in it, the
// step from one case to the next, the first case, and the positions at which no case exists.
//
//   TSXDateSpec monthly(TSXDateSpec::Year);               // any year, 1949 is written 1949
//   monthly.AddPeriod(TSXDateSpec::Month, 12, 0, 0);      // twelve months a year, 0 is January
//   TSXDateSpec::TSXIndexTuple first(monthly);
//   first.SetIndexes({1949, 3});                          // April 1949
//   monthly.SetFirstCaseIndex(first);
//   monthly.IndexTuple(12).GetIndexes();                  // {1950, 3}, one year later
//
// Usual calendars, base first, each finer one as AddPeriod(type, cycle length, start, length):
//
//   yearly                Year
//   quarterly             Year, (Quarter, 4, 0, 0)
//   monthly               Year, (Month, 12, 0, 0)
//   half-yearly           Year, (Month, 12, 0, 0) and SetLowestIncrement(6)
//   months in quarters    Year, (Quarter, 4, 0, 0), (Month, 12, 0, 0): months number 0 to 11
//   daily, a weekly beat  Week, (Day, 7, 0, 0)
//   Monday to Friday      Week, (Day, 7, 1, 5) where Sunday is 0: days number 1 to 5
//   hourly                Day, (Hour, 24, 0, 0)
//   no calendar at all    SimpleSequence
//
// Order matters: AddPeriod and SetLowestIncrement start the calendar afresh. They put the first
// case back to the start (base index 0) and forget the gaps and the first case day, so settle the
// periods first. The forced season length and the fiscal year start stay.
//
// Positions are told in three kinds of number, all in steps of the lowest increment:
//
//   number          the absolute number of a position, counted from base index 0 and the starts of
//                   all finer periods; that of the first case is the first case number
//   virtual offset  the number minus the first case number: the first case is 0, gaps count
//   case offset     the virtual offset with the gaps squeezed out: the index of an existing case
//
// A specification is a value: copies are deep and share nothing, and a copy is another
// specification, to which the tuples made from the original do not belong. Setters that may refuse
// answer with a status; a refused call changes nothing, nor does one that ends in std::bad_alloc.
// Distinct objects may be used on distinct threads; const calls on one object may run side by side.
class TSX_EXPORT TSXDateSpec {
 public:
  // From coarse to fine; a period can only hold finer ones. The enumerators' names are those
  // written to documents. A value that is none of these is taken for a nameless period finer than
  // Obs, and documents leave it out.
  enum PeriodType : unsigned {
    SimpleSequence = 0,  // cases are merely numbered
    Cycle = 1,           // a repetition that is no calendar period
    Year = 2,
    Quarter = 3,
    Month = 4,
    Week = 5,
    Day = 6,
    Hour = 7,
    Minute = 8,
    Second = 9,
    Obs = 10,  // observations within a finest named period; never a base
  };

  class TSXIndexTuple;

  // The base period alone, lowest increment 1, first case 0. Throws MCTime::MCStatus with code
  // 40200 when `base` is Obs.
  explicit TSXDateSpec(PeriodType base);
  TSXDateSpec(const TSXDateSpec& other);
  // Tuples made from this object still belong to it afterwards; whether their indexes fit the new
  // calendar, IsValid() tells. When memory runs out, this object is as before.
  TSXDateSpec& operator=(const TSXDateSpec& other);
  ~TSXDateSpec();

  // Adds a period finer than the base, in its place by type; a period of the same type is replaced.
  //   cycleLength     units of this period in one unit of the next coarser one, at least 2
  //   subCycleStart   first index used within the cycle
  //   subCycleLength  number of indexes used from there on; 0 for the whole cycle
  // Refusals, in the order of testing:
  //   40201  cycle length below 2 or below start plus length (summed without wrap-around)
  //   40202  not finer than the base
  //   40204  Year to Month do not go with Week to Second, under a base of either family, or under a
  //          Cycle base whose second period is of either family. Also a period more than
  //          TSXIndexTuple::kCapacity, which no named type can be. Not for a replacement.
  //   40206  a Quarter and a Month beside each other that do not agree: the quarter's cycle must be
  //          at least 2, the month's cycle and length three times the quarter's, and the quarter's
  //          start a third of the month's, rounded down. Not for a replacement.
  //   40207  the finest period's length is not a multiple of the lowest increment
  // Where a Quarter and a Month have agreed, months determine quarters: a tuple's quarter index is
  // its month index divided by 3, and the quarter stays out of the counting of offsets.
  MCTime::MCStatus AddPeriod(PeriodType type, unsigned cycleLength, unsigned subCycleStart,
                             unsigned subCycleLength);

  unsigned PeriodCount() const;  // at least 1

  // Period `index`, 0 is the base. Fills the four outputs and returns 0; the length comes out as 0
  // where it is the whole cycle, and the base has no cycle, so all its numbers are 0. An index past
  // the end returns the period count and fills nothing.
  unsigned GetPeriod(unsigned index, PeriodType& type, unsigned& cycleLength,
                     unsigned& subCycleStart, unsigned& subCycleLength) const;

  // Units of the finest period from one case to the next. 40205: the base is SimpleSequence. 40207:
  // 0, or no divisor of the finest period's length; on a base alone any increment from 1 on goes.
  MCTime::MCStatus SetLowestIncrement(unsigned increment);
  unsigned LowestIncrement() const;

  // A season length in cases that differs from the calendar's own; 0, as at first, for none.
  void SetForcedSeasonLength(unsigned length);
  unsigned ForcedSeasonLength() const;
  // Cases in one cycle of the finest period: its length divided by the lowest increment, or 1 for a
  // base alone. The forced season length has no part in it.
  unsigned DefaultSeasonLength() const;

  // Where a fiscal year starts, in the host's own count; 0, as at first, for none.
  void SetFiscalYearStart(unsigned start);
  unsigned FiscalYearStart() const;

  // The date of the first case: day 1 to 31, month 1 to 12, a year other than 0; three times 0
  // clears it. False, with nothing changed, for other values or when no period, base included, is
  // a Day. Documents repeat an attribute name when it is set, which XML readers reject.
  bool SetFirstCaseDay(unsigned day, unsigned month, unsigned year);
  void GetFirstCaseDay(unsigned& day, unsigned& month, unsigned& year) const;

  // Makes `tuple` the first case: FirstCaseIndex() and IndexTuple(0) return it, and its virtual
  // offset is 0. Where it lies w >= 1 steps after the first case so far, gaps up to and including w
  // are dropped and the others lowered by w, so that they stay where they were; where it does not,
  // gaps keep their offsets. (A tuple of no specification has its index as its offset, so that w
  // is then counted from 0 and not from the first case.) 40208: the tuple is not valid here, or its
  // number is beyond LONG_MAX.
  MCTime::MCStatus SetFirstCaseIndex(const TSXIndexTuple& tuple);
  TSXIndexTuple FirstCaseIndex() const;

  // Adds a gap at a virtual offset; one that is there already stays one gap, with success. 40209:
  // offset below 1 (the first case always exists). 40205: the base is SimpleSequence.
  MCTime::MCStatus AddGap(long offset);
  // The same at the tuple's virtual offset. 40208, before the others: the tuple is not valid here,
  // or its offset is beyond the range of long.
  MCTime::MCStatus AddGap(const TSXIndexTuple& tuple);
  void ClearGaps();
  unsigned long GapCount() const;
  // The position of gap `i`, counted from 0 in rising order. The first case's for an `i` past the
  // end, and for a gap that lies beyond what a tuple can express (see IndexTuple).
  TSXIndexTuple GapIndex(unsigned long i) const;

  // The position at a virtual offset. Positions before number 0 give that of number 0. The first
  // case's position for an offset that no valid tuple has: a base index beyond 32 bits, or a
  // quarter outside its own start and length.
  TSXIndexTuple IndexTuple(long offset) const;

  // Case offset to virtual offset; below 1 unchanged, at most LONG_MAX.
  long VirtualCaseOffset(long caseOffset) const;
  // Virtual offset to case offset; a gap gives -1. Negative offsets pass unchanged.
  long CaseOffset(long virtualOffset) const;
  // The same, but a gap gives the first case after it (`forward`) or the last one before it.
  long ClosestCaseOffset(long virtualOffset, bool forward) const;

  // Virtual offset to number and back. An offset before number 0 gives 0; an offset beyond LONG_MAX
  // comes out as LONG_MAX.
  unsigned long NumberFromOffset(long offset) const;
  long OffsetFromNumber(unsigned long number) const;

  // True when periods and lowest increments are equal; with `full`, first cases and gaps too.
  // Season length, fiscal year, first case day are never compared: calendars that differ only there
  // are meant to share one dictionary entry.
  bool IsEquivalent(const TSXDateSpec& other, bool full) const;

 private:
  friend struct tsx::DateSpecAccess;

  TSXDateSpecImp* imp_;  // owned, never null
};

static_assert(sizeof(TSXDateSpec) == sizeof(void*));

// A position on a calendar: one index per period, coarsest first. {1999, 3} is April 1999 on a
// calendar of years and months.
//
// A tuple made from a specification borrows it: the specification must be alive, at the same
// address, when the tuple is asked for its validity or for an offset, given indexes, or handed to
// a specification. Once it is gone, GetIndexes(), Compare(), copying, assigning and destroying are
// all that is left. A change of the specification may leave a tuple invalid, which IsValid() tells.
//
// A tuple is a small plain value without memory of its own.
class TSX_EXPORT TSXDateSpec::TSXIndexTuple {
 public:
  // Indexes a tuple has room for: one per PeriodType.
  static constexpr unsigned kCapacity = 11;

  // A plain sequence number, 0, that belongs to no specification.
  TSXIndexTuple();
  // The first case's position on `spec`.
  explicit TSXIndexTuple(const TSXDateSpec& spec);
  explicit TSXIndexTuple(const TSXDateSpecImp& spec);

  // Whether the indexes fit the tuple's specification; true without one.
  bool IsValid() const;
  // Whether the tuple may be used with `spec`: false when it belongs to another one, be it a copy.
  // Otherwise, and so for a plain sequence number too, the indexes are tested:
  //   one index per period; every index but the base's within [start, start + length); the quarter
  //   index a third of the month index, rounded down, where months determine quarters; the finest
  //   index a whole number of lowest increments after its start.
  bool IsValidFor(const TSXDateSpec& spec) const;
  bool IsValidFor(const TSXDateSpecImp& spec) const;

  // Takes the indexes when they fit the tuple's specification; without one, exactly one index.
  // False, with nothing changed, otherwise.
  bool SetIndexes(const std::vector<unsigned>& indexes);
  std::vector<unsigned> GetIndexes() const;

  // -1, 0 or 1: this tuple before, equal to or after `other`. The first index that differs decides;
  // a tuple that is the beginning of a longer one comes before it. Specifications are not compared.
  int Compare(const TSXIndexTuple& other) const;

  // Steps of the lowest increment from the first case, negative before it, rounded toward zero for
  // a tuple between two steps; 0 when the tuple has not one index per period. Beyond the range of
  // long, the end of that range. A plain sequence number is its own offset, in all three.
  long VirtualCaseOffset() const;
  long CaseOffset() const;
  long ClosestCaseOffset(bool forward) const;

 private:
  friend class ::TSXDateSpecImp;

  const TSXDateSpecImp* spec_ = nullptr;  // borrowed; null for a plain sequence number
  unsigned count_ = 1;
  unsigned indexes_[kCapacity] = {};
};

#endif  // TSXPORT_TSXDATESPEC_H_
