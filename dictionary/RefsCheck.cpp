#include "dictionary/RefsCheck.h"

#include <algorithm>

namespace tsx {

std::optional<unsigned> FindDateSpec(const std::deque<DicDateSpec>& dictionary, int id) {
  const auto entry = std::find_if(dictionary.begin(), dictionary.end(), [id](const DicDateSpec& e) {
    return static_cast<int>(e.id) == id;
  });
  if (entry == dictionary.end()) return std::nullopt;
  return static_cast<unsigned>(entry - dictionary.begin());
}

bool CheckRefs(const TSXDictionaryRefs& refs, unsigned predictorCount,
               const std::deque<DicDateSpec>& dictionary, unsigned& index) {
  index = 0;
  if (refs.GetModelName().empty() || refs.GetDependentVarID().empty()) return false;
  if (refs.GetDateSpecID() != 0) {
    const std::optional<unsigned> position = FindDateSpec(dictionary, refs.GetDateSpecID());
    if (!position) return false;
    index = *position;
  }
  const std::vector<std::string>& ids = refs.GetPredictorIDs();
  if (ids.size() != predictorCount) return false;
  return std::none_of(ids.begin(), ids.end(), [](const std::string& id) { return id.empty(); });
}

}  // namespace tsx
