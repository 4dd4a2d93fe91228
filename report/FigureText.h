#ifndef TSXPORT_REPORT_FIGURETEXT_H_
#define TSXPORT_REPORT_FIGURETEXT_H_

#include <string>

#include "models/Description.h"

namespace tsx::report {

// With five significant digits; "undefined" where it is.
std::string ValueText(double value);

// "RMSE 33.42, MAPE 10.2 %", or the figures in their sentence.
std::string FiguresText(const models::Figures& figures);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_FIGURETEXT_H_
