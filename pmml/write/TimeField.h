#ifndef TSXPORT_PMML_WRITE_TIMEFIELD_H_
#define TSXPORT_PMML_WRITE_TIMEFIELD_H_

#include <string_view>

#include <tsxport/TSXDateSpec.h>

namespace tsx::pmml {

// The time field of a PMML document: the name of a period and its kind, "date" or "time", both of
// them constants. Empty until a specification with a named period has been registered.
struct TimeField {
  std::string_view name;
  std::string_view kind;
};

// The field that `spec` calls for, that of its last named period; `before` when it has none.
TimeField TimeFieldOf(const TSXDateSpec& spec, const TimeField& before) noexcept;

// What documents say for `field`: the default, a month, unless name and kind are both there.
TimeField OrDefault(const TimeField& field);

}  // namespace tsx::pmml

#endif  // TSXPORT_PMML_WRITE_TIMEFIELD_H_
