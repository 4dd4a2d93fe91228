#include "dictionary/DateSpecDictionary.h"

#include <utility>

#include "datespec/calendar/DateSpecAccess.h"

namespace tsx {

int DateSpecDictionary::Register(const TSXDateSpec& spec, std::string descriptor) {
  const std::uint64_t hash = DateSpecAccess::Imp(spec).EquivalenceHash();
  if (const std::optional<int> known = FindEquivalent(spec, hash)) return *known;

  if (!entries_) entries_ = std::make_shared<DateSpecView::Entries>();
  const auto position = static_cast<unsigned>(entries_->size());
  const auto place = by_hash_.emplace(hash, position);
  try {
    entries_->push_back({spec, position + 1, std::move(descriptor), false});
  } catch (...) {
    by_hash_.erase(place);
    throw;
  }
  return static_cast<int>(position + 1);
}

std::optional<int> DateSpecDictionary::FindEquivalent(const TSXDateSpec& spec,
                                                      std::uint64_t hash) const {
  const auto [first, last] = by_hash_.equal_range(hash);
  for (auto it = first; it != last; ++it) {
    const DicDateSpec& entry = (*entries_)[it->second];
    if (spec.IsEquivalent(entry.date_spec, true)) return static_cast<int>(entry.id);
  }
  return std::nullopt;
}

void DateSpecDictionary::Clear() noexcept {
  entries_.reset();
  by_hash_.clear();
}

}  // namespace tsx
