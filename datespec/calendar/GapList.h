#ifndef TSXPORT_DATESPEC_CALENDAR_GAPLIST_H_
#define TSXPORT_DATESPEC_CALENDAR_GAPLIST_H_

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tsx {

// Virtual offsets at which no case exists, and the way between virtual and case offsets around
// them: with gaps at 3 and 4,
//
//   virtual  0 1 2 3 4 5 6
//   case     0 1 2 - - 3 4
class GapList {
 public:
  // What a gap itself answers when it is asked for a case.
  enum class AtGap { kNoCase, kCaseBefore, kCaseAfter };

  // `offset` is at least 1. An offset that is a gap already stays one.
  void Add(std::int64_t offset);
  void Clear();

  // The first case moves `steps` onward: gaps up to and including there go, the others come nearer.
  // Nothing happens for steps below 1.
  void MoveStart(std::int64_t steps);

  // Rising, without repetition.
  const std::vector<std::int64_t>& Offsets() const { return offsets_; }

  // The case at a virtual offset; kNoCase is told by -1. Negative offsets pass unchanged.
  std::int64_t CaseOffset(std::int64_t virtualOffset, AtGap atGap) const;
  // The virtual offset of a case; below 1 unchanged, at most the greatest value.
  std::int64_t VirtualOffset(std::int64_t caseOffset) const;

 private:
  void RebuildCaseOffsets(std::size_t from);

  std::vector<std::int64_t> offsets_;       // [1, ...), sorted
  std::vector<std::int64_t> case_offsets_;  // offsets_[i] - i: the cases before that gap
};

}  // namespace tsx

#endif  // TSXPORT_DATESPEC_CALENDAR_GAPLIST_H_
