#ifndef TSXPORT_REPORT_SUMMARY_H_
#define TSXPORT_REPORT_SUMMARY_H_

#include <string>

#include "models/ModelChoice.h"

namespace tsx::cli {

// A fitted series in a dozen lines for people: what the series is, which model it got and why, its
// weights, how well it fits, its final state. `chosen`: the kind was chosen rather than asked for.
std::string SummaryText(const FittedSeries& fitted, bool chosen);

// The same in one line: "NAME: KIND (the reason)".
std::string SummaryLine(const FittedSeries& fitted, bool chosen);

}  // namespace tsx::cli

#endif  // TSXPORT_REPORT_SUMMARY_H_
