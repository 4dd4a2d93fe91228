#ifndef TSXPORT_DICTIONARY_DICDATESPEC_H_
#define TSXPORT_DICTIONARY_DICDATESPEC_H_

#include <string>

#include <tsxport/TSXDateSpec.h>

namespace tsx {

// One entry of a tree's dictionary of date specifications.
struct DicDateSpec {
  TSXDateSpec date_spec;
  unsigned id = 0;  // from 1 on; 0 never names an entry
  std::string descriptor;
  bool referenced = false;  // whether an admitted model names this entry
};

}  // namespace tsx

#endif  // TSXPORT_DICTIONARY_DICDATESPEC_H_
