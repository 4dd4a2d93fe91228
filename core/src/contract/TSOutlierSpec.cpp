#include <algorithm>

#include <tsfcore/TSOutlierSpec.h>
#include <tsfcore/TSOutlierSpecList.h>

unsigned TSOutlierSpec::GetParameterCount() const {
  if (type_ == kNone) return 0;
  return type_ == kTransient ? 2 : 1;
}

unsigned TSOutlierSpecList::GetOutlierSpecCount(bool typedOnly) const {
  if (!typedOnly) return static_cast<unsigned>(outliers_.size());
  return static_cast<unsigned>(std::count_if(
      outliers_.begin(), outliers_.end(),
      [](const TSOutlierSpec& outlier) { return outlier.GetType() != TSOutlierSpec::kNone; }));
}

unsigned TSOutlierSpecList::ParameterVectorIndex(unsigned j, unsigned k) const {
  unsigned index = k;
  for (unsigned before = 0; before < j; ++before) index += outliers_[before].GetParameterCount();
  return index;
}
