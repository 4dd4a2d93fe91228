#ifndef TSXPORT_PMML_WRITE_TIMEFIELD_H_
#define TSXPORT_PMML_WRITE_TIMEFIELD_H_

#include <string>

#include <tsxport/TSXDateSpec.h>

namespace tsx {

// The time field of a PMML document: the name of a period and its kind, "date" or "time". Both
// empty until a specification with a named period has been registered.
struct TimeField {
  std::string name;
  std::string kind;
};

// The field that `spec` calls for, that of its last named period; `before` when it has none.
TimeField TimeFieldOf(const TSXDateSpec& spec, const TimeField& before);

}  // namespace tsx

#endif  // TSXPORT_PMML_WRITE_TIMEFIELD_H_
