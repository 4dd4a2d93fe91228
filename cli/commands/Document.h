#ifndef TSXPORT_CLI_COMMANDS_DOCUMENT_H_
#define TSXPORT_CLI_COMMANDS_DOCUMENT_H_

#include <string>
#include <vector>

#include <tsxport/DialectFacts.h>

#include "models/ModelChoice.h"

namespace tsx::cli {

struct DocumentOptions {
  const DialectFacts* dialect = &kDialects[0];
  std::string descriptor;       // of every model
  unsigned season_length = 0;   // asked for; 0: the calendar's own
  bool first_case_day = false;  // on every axis, which must have a Day period
};

// The document of all fitted series. Series with equivalent calendars share a date
// specification. Hopeless series are left out; at least one is not.
// The dialect is one that DialectCheck.h has nothing against.
std::string DocumentText(const std::vector<models::SeriesFit>& fits,
                         const DocumentOptions& options);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_COMMANDS_DOCUMENT_H_
