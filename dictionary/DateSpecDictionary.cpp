#include "dictionary/DateSpecDictionary.h"

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

}  // namespace tsx
