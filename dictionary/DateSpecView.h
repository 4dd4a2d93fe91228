#ifndef TSXPORT_DICTIONARY_DATESPECVIEW_H_
#define TSXPORT_DICTIONARY_DATESPECVIEW_H_

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <utility>

#include "dictionary/DicDateSpec.h"

namespace tsx {

// The entries that a dictionary had when the view was taken. They are shared with it, not copied:
// entries behind them and a dictionary that is cleared leave the view as it is.
class DateSpecView {
 public:
  using Entries = std::deque<DicDateSpec>;

  DateSpecView() = default;  // of no entries
  // IDs in `entries` run from 1 without a gap. Null stands for none.
  explicit DateSpecView(std::shared_ptr<const Entries> entries)
      : entries_(std::move(entries)), size_(entries_ ? entries_->size() : 0) {}

  bool empty() const { return size_ == 0; }
  std::size_t size() const { return size_; }
  const DicDateSpec& operator[](std::size_t position) const { return (*entries_)[position]; }

  // Position of the entry with `id`; none when there is no such entry.
  std::optional<unsigned> Find(int id) const {
    if (id < 1 || static_cast<std::size_t>(id) > size_) return std::nullopt;
    return static_cast<unsigned>(id) - 1;
  }

  // Calls visit(entry) in order of registration.
  template <typename Visit>
  void ForEach(Visit visit) const {
    for (std::size_t i = 0; i < size_; ++i) visit((*entries_)[i]);
  }

 private:
  std::shared_ptr<const Entries> entries_;
  std::size_t size_ = 0;
};

}  // namespace tsx

#endif  // TSXPORT_DICTIONARY_DATESPECVIEW_H_
