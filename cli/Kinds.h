#ifndef TSXPORT_CLI_KINDS_H_
#define TSXPORT_CLI_KINDS_H_

#include <span>
#include <string_view>

namespace tsx::cli {

// A kind of exponential smoothing as the command names it.
struct KindInfo {
  int kind;            // ESModelSpec::Kind
  const char* option;  // "winters-additive"
  const char* title;   // for people
  bool seasonal;
  bool multiplicative;
};

// All kinds, the simplest first.
std::span<const KindInfo> AllKinds();

// The kind with this option name; null when there is none.
const KindInfo* FindKind(std::string_view option);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_KINDS_H_
