#include "export/DateSpecDictionary.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace tsx {

int DateSpecDictionary::Register(const TSXDateSpec& spec, std::string descriptor) {
  std::uint32_t highest = 0;
  for (const DicDateSpec& entry : entries_) {
    if (spec.IsEquivalent(entry.date_spec, true)) return static_cast<int>(entry.id);
    highest = std::max(highest, entry.id);
  }
  entries_.push_back({spec, highest + 1, std::move(descriptor), false});
  return static_cast<int>(highest + 1);
}

std::optional<unsigned> DateSpecDictionary::Find(int id) const {
  const auto entry = std::find_if(entries_.begin(), entries_.end(), [id](const DicDateSpec& e) {
    return static_cast<int>(e.id) == id;
  });
  if (entry == entries_.end()) return std::nullopt;
  return static_cast<unsigned>(entry - entries_.begin());
}

}  // namespace tsx
