#include "dictionary/RefsCheck.h"

#include <algorithm>
#include <optional>

namespace tsx {

bool CheckRefs(const TSXDictionaryRefs& refs, unsigned predictorCount,
               const DateSpecView& dictionary, unsigned& index) {
  index = 0;
  if (refs.GetModelName().empty() || refs.GetDependentVarID().empty()) return false;
  if (refs.GetDateSpecID() != 0) {
    const std::optional<unsigned> position = dictionary.Find(refs.GetDateSpecID());
    if (!position) return false;
    index = *position;
  }
  const std::vector<std::string>& ids = refs.GetPredictorIDs();
  if (ids.size() != predictorCount) return false;
  return std::none_of(ids.begin(), ids.end(), [](const std::string& id) { return id.empty(); });
}

}  // namespace tsx
