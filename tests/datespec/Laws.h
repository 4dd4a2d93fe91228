#ifndef TSXPORT_TESTS_DATESPEC_LAWS_H_
#define TSXPORT_TESTS_DATESPEC_LAWS_H_

#include <algorithm>
#include <limits>

#include <tsxport/TSXDateSpec.h>

// What holds on every calendar at every offset: each Broken...Law names the first law that is
// broken, or returns null. Free of any test framework, for fuzzing too.
namespace test {

// All that can be seen of a specification. Does not allocate when it answers.
inline bool AreSame(const TSXDateSpec& a, const TSXDateSpec& b) {
  unsigned dayA[3];
  unsigned dayB[3];
  a.GetFirstCaseDay(dayA[0], dayA[1], dayA[2]);
  b.GetFirstCaseDay(dayB[0], dayB[1], dayB[2]);
  return a.IsEquivalent(b, true) && dayA[0] == dayB[0] && dayA[1] == dayB[1] &&
         dayA[2] == dayB[2] && a.ForcedSeasonLength() == b.ForcedSeasonLength() &&
         a.FiscalYearStart() == b.FiscalYearStart() &&
         a.OffsetFromNumber(0) == b.OffsetFromNumber(0) && a.GapCount() == b.GapCount() &&
         a.DefaultSeasonLength() == b.DefaultSeasonLength() &&
         // Through the multipliers and the excluded period.
         a.IndexTuple(1000).Compare(b.IndexTuple(1000)) == 0;
}

inline long FirstNumber(const TSXDateSpec& spec) { return -spec.OffsetFromNumber(0); }

// Offset to number and back; nothing lies before number 0.
inline const char* BrokenNumberLaw(const TSXDateSpec& spec, long offset) {
  const long least = -FirstNumber(spec);
  const unsigned long number = spec.NumberFromOffset(offset);
  if (spec.OffsetFromNumber(number) != std::max(offset, least)) return "offset, number, offset";
  if (offset > least && spec.NumberFromOffset(offset - 1) != number - 1) return "number order";
  return nullptr;
}

// Offset to tuple and back, save where there is no such position.
inline const char* BrokenTupleLaw(const TSXDateSpec& spec, long offset) {
  const TSXDateSpec::TSXIndexTuple tuple = spec.IndexTuple(offset);
  const long reached = tuple.VirtualCaseOffset();
  if (reached == std::max(offset, -FirstNumber(spec))) {
    return tuple.IsValid() || tuple.Compare(spec.FirstCaseIndex()) == 0 ? nullptr
                                                                        : "tuples are valid";
  }
  return tuple.Compare(spec.FirstCaseIndex()) == 0 ? nullptr : "offset, tuple, offset";
}

// Tuple to offset and back, for a valid tuple whose offset has not met the end of its range.
inline const char* BrokenPositionLaw(const TSXDateSpec& spec,
                                     const TSXDateSpec::TSXIndexTuple& tuple) {
  const long offset = tuple.VirtualCaseOffset();
  if (offset == std::numeric_limits<long>::max()) return nullptr;
  return spec.IndexTuple(offset).Compare(tuple) == 0 ? nullptr : "tuple, offset, tuple";
}

// Two valid tuples stand in the same order as their offsets.
inline const char* BrokenOrderLaw(const TSXDateSpec::TSXIndexTuple& a,
                                  const TSXDateSpec::TSXIndexTuple& b) {
  const long offsetA = a.VirtualCaseOffset();
  const long offsetB = b.VirtualCaseOffset();
  if (a.Compare(b) != -b.Compare(a)) return "comparing is antisymmetric";
  if (offsetA == offsetB && offsetA == std::numeric_limits<long>::max()) return nullptr;
  const int order = offsetA < offsetB ? -1 : offsetA > offsetB ? 1 : 0;
  return a.Compare(b) == order ? nullptr : "order kept";
}

// Case to virtual offset and back; `caseOffset` is not so great that the way meets the end of long.
inline const char* BrokenCaseLaw(const TSXDateSpec& spec, long caseOffset) {
  const long offset = spec.VirtualCaseOffset(caseOffset);
  if (offset == std::numeric_limits<long>::max()) return nullptr;
  if (spec.CaseOffset(offset) != caseOffset) return "case, offset, case";
  if (spec.ClosestCaseOffset(offset, true) != caseOffset) return "a case is its own next one";
  if (spec.ClosestCaseOffset(offset, false) != caseOffset) return "a case is its own last one";
  if (caseOffset < std::numeric_limits<long>::max() &&
      spec.VirtualCaseOffset(caseOffset + 1) <= offset) {
    return "case order kept";
  }
  return nullptr;
}

// Virtual offset to case and back where a case exists; a gap lies between the two closest ones.
inline const char* BrokenGapLaw(const TSXDateSpec& spec, long offset) {
  const long found = spec.CaseOffset(offset);
  const long after = spec.ClosestCaseOffset(offset, true);
  const long before = spec.ClosestCaseOffset(offset, false);
  if (offset < 0) {
    return found == offset && after == offset && before == offset ? nullptr : "negative passes";
  }
  if (found != -1)
    return spec.VirtualCaseOffset(found) == offset ? nullptr : "offset, case, offset";
  if (after != before + 1) return "a gap lies between two neighbours";
  if (spec.VirtualCaseOffset(before) >= offset) return "the last case before a gap is before it";
  const long next = spec.VirtualCaseOffset(after);
  return next > offset || next == std::numeric_limits<long>::max()
             ? nullptr
             : "the next case after a gap is after it";
}

inline const char* BrokenLaw(const TSXDateSpec& spec, long offset) {
  for (const char* broken : {BrokenNumberLaw(spec, offset), BrokenTupleLaw(spec, offset),
                             BrokenCaseLaw(spec, offset), BrokenGapLaw(spec, offset)}) {
    if (broken != nullptr) return broken;
  }
  return nullptr;
}

}  // namespace test

#endif  // TSXPORT_TESTS_DATESPEC_LAWS_H_
