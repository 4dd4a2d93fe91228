#include <algorithm>
#include <type_traits>

#include <tsxport/TSXDateSpec.h>

#include "datespec/calendar/TSXDateSpecImp.h"

using Tuple = TSXDateSpec::TSXIndexTuple;

static_assert(std::is_trivially_copyable_v<Tuple>);

Tuple::TSXIndexTuple() = default;

Tuple::TSXIndexTuple(const TSXDateSpec& spec) : TSXIndexTuple(*spec.imp_) {}

Tuple::TSXIndexTuple(const TSXDateSpecImp& spec) : spec_(&spec), count_(spec.PeriodCount()) {
  std::transform(spec.Periods().begin(), spec.Periods().end(), indexes_,
                 [](const tsx::TimePeriod& period) { return period.current_start; });
}

bool Tuple::IsValid() const { return spec_ == nullptr || IsValidFor(*spec_); }

bool Tuple::IsValidFor(const TSXDateSpec& spec) const { return IsValidFor(*spec.imp_); }

bool Tuple::IsValidFor(const TSXDateSpecImp& spec) const {
  return (spec_ == nullptr || spec_ == &spec) && spec.Admits({indexes_, count_});
}

bool Tuple::SetIndexes(const std::vector<unsigned>& indexes) {
  const bool fits = spec_ == nullptr ? indexes.size() == 1 : spec_->Admits(indexes);
  if (!fits) return false;
  std::copy(indexes.begin(), indexes.end(), indexes_);
  count_ = static_cast<unsigned>(indexes.size());
  return true;
}

std::vector<unsigned> Tuple::GetIndexes() const { return {indexes_, indexes_ + count_}; }

int Tuple::Compare(const Tuple& other) const {
  const unsigned shared = std::min(count_, other.count_);
  for (unsigned i = 0; i < shared; ++i) {
    if (indexes_[i] != other.indexes_[i]) return indexes_[i] < other.indexes_[i] ? -1 : 1;
  }
  if (count_ == other.count_) return 0;
  return count_ < other.count_ ? -1 : 1;
}

long Tuple::VirtualCaseOffset() const {
  return spec_ == nullptr ? indexes_[0] : spec_->OffsetOf({indexes_, count_});
}

long Tuple::CaseOffset() const {
  return spec_ == nullptr ? indexes_[0] : spec_->CaseOffset(VirtualCaseOffset());
}

long Tuple::ClosestCaseOffset(bool forward) const {
  return spec_ == nullptr ? indexes_[0] : spec_->ClosestCaseOffset(VirtualCaseOffset(), forward);
}
