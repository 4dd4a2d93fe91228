#ifndef TSXPORT_DICTIONARY_REFSCHECK_H_
#define TSXPORT_DICTIONARY_REFSCHECK_H_

#include <tsxport/TSXDictionaryRefs.h>

#include "dictionary/DateSpecView.h"

namespace tsx {

// Whether a model with `predictorCount` predictors may go by the names of `refs`: model name and
// dependent variable are there, each predictor has its non-empty ID, and the date specification is
// none (ID 0) or in the dictionary. Sets `index` to its position, 0 when there is none.
bool CheckRefs(const TSXDictionaryRefs& refs, unsigned predictorCount,
               const DateSpecView& dictionary, unsigned& index);

}  // namespace tsx

#endif  // TSXPORT_DICTIONARY_REFSCHECK_H_
