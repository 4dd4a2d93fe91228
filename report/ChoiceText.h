#ifndef TSXPORT_REPORT_CHOICETEXT_H_
#define TSXPORT_REPORT_CHOICETEXT_H_

#include <string>

#include "models/ModelChoice.h"

namespace tsx::report {

// "lowest normalised BIC of 7 kinds, 5.100; next holt with 6.200"; empty where no choice was left.
std::string ChoiceText(const models::Choice& choice);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_CHOICETEXT_H_
