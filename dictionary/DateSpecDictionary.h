#ifndef TSXPORT_DICTIONARY_DATESPECDICTIONARY_H_
#define TSXPORT_DICTIONARY_DATESPECDICTIONARY_H_

#include <deque>
#include <string>

#include "dictionary/DicDateSpec.h"

namespace tsx {

// The date specifications that a tree's models may refer to, in order of registration.
class DateSpecDictionary {
 public:
  // The ID of the first equivalent entry, whose descriptor is kept; else that of a new entry with a
  // copy of `spec`, the highest ID so far plus one.
  int Register(const TSXDateSpec& spec, std::string descriptor);

  // Marks the entry as one that a model of the document refers to.
  void MarkReferenced(unsigned position) { entries_[position].referenced = true; }

  const std::deque<DicDateSpec>& entries() const { return entries_; }
  void Clear() noexcept { entries_.clear(); }

 private:
  std::deque<DicDateSpec> entries_;
};

}  // namespace tsx

#endif  // TSXPORT_DICTIONARY_DATESPECDICTIONARY_H_
