#ifndef TSXPORT_DICTIONARY_DATESPECDICTIONARY_H_
#define TSXPORT_DICTIONARY_DATESPECDICTIONARY_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "dictionary/DateSpecView.h"
#include "dictionary/DicDateSpec.h"

namespace tsx {

// The date specifications that a tree's models may refer to, in order of registration. Entries are
// only ever added, until all go at once, so IDs are positions counted from 1.
class DateSpecDictionary {
 public:
  // The ID of the equivalent entry, whose descriptor is kept; else that of a new entry with a copy
  // of `spec`, the highest ID so far plus one. Nothing is registered by a call that throws.
  int Register(const TSXDateSpec& spec, std::string descriptor);

  // Marks the entry as one that a model of the document refers to.
  void MarkReferenced(unsigned position) { (*entries_)[position].referenced = true; }

  DateSpecView entries() const { return DateSpecView(entries_); }
  void Clear() noexcept;

 private:
  std::optional<int> FindEquivalent(const TSXDateSpec& spec, std::uint64_t hash) const;

  std::shared_ptr<DateSpecView::Entries> entries_;  // null while there are none
  // Positions by the hash of what makes entries equivalent. No two entries are.
  std::unordered_multimap<std::uint64_t, unsigned> by_hash_;
};

}  // namespace tsx

#endif  // TSXPORT_DICTIONARY_DATESPECDICTIONARY_H_
