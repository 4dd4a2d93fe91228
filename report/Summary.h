#ifndef TSXPORT_REPORT_SUMMARY_H_
#define TSXPORT_REPORT_SUMMARY_H_

#include <string>

#include "models/ModelChoice.h"

namespace tsx::report {

// A series that got a model in a dozen lines for people: what the series is, which model it got and
// why, its weights, how well it fits, its final state.
std::string SummaryText(const models::SeriesFit& fit);

// The same in one line: "NAME: KIND (the reason)".
std::string SummaryLine(const models::SeriesFit& fit);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_SUMMARY_H_
