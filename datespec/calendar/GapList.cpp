#include "datespec/calendar/GapList.h"

#include <algorithm>
#include <limits>

namespace tsx {

void GapList::Add(std::int64_t offset) {
  const auto at = std::lower_bound(offsets_.begin(), offsets_.end(), offset);
  if (at != offsets_.end() && *at == offset) return;
  const auto position = static_cast<std::size_t>(at - offsets_.begin());
  // Room for both first: whichever allocation fails, the two lists still belong together.
  if (case_offsets_.size() == case_offsets_.capacity()) {
    case_offsets_.reserve(2 * case_offsets_.size() + 1);
  }
  offsets_.insert(at, offset);
  case_offsets_.push_back(0);
  RebuildCaseOffsets(position);
}

void GapList::Clear() {
  offsets_.clear();
  case_offsets_.clear();
}

void GapList::MoveStart(std::int64_t steps) {
  if (steps < 1) return;
  offsets_.erase(offsets_.begin(), std::upper_bound(offsets_.begin(), offsets_.end(), steps));
  for (std::int64_t& offset : offsets_) offset -= steps;
  case_offsets_.resize(offsets_.size());
  RebuildCaseOffsets(0);
}

// Nothing special about negative offsets, either way: no gap is at or before them.
std::int64_t GapList::CaseOffset(std::int64_t virtualOffset, AtGap atGap) const {
  const auto at = std::lower_bound(offsets_.begin(), offsets_.end(), virtualOffset);
  const std::int64_t caseOffset = virtualOffset - (at - offsets_.begin());
  if (at == offsets_.end() || *at != virtualOffset) return caseOffset;
  switch (atGap) {
    case AtGap::kCaseAfter:
      return caseOffset;
    case AtGap::kCaseBefore:
      return caseOffset - 1;
    case AtGap::kNoCase:
      break;
  }
  return -1;
}

std::int64_t GapList::VirtualOffset(std::int64_t caseOffset) const {
  const auto after = std::upper_bound(case_offsets_.begin(), case_offsets_.end(), caseOffset);
  const std::int64_t gapsBefore = after - case_offsets_.begin();
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
  return caseOffset > kMost - gapsBefore ? kMost : caseOffset + gapsBefore;
}

void GapList::RebuildCaseOffsets(std::size_t from) {
  for (std::size_t i = from; i < offsets_.size(); ++i) {
    case_offsets_[i] = offsets_[i] - static_cast<std::int64_t>(i);
  }
}

}  // namespace tsx
