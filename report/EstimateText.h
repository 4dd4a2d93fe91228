#ifndef TSXPORT_REPORT_ESTIMATETEXT_H_
#define TSXPORT_REPORT_ESTIMATETEXT_H_

#include <string>
#include <vector>

#include "models/Description.h"

// Estimates and what they belong to, in texts of one line each.
namespace tsx::report {

// "level 0.7156 (s.e. 0.083), trend 0.0000 (on its bound)"
std::string WeightsText(const std::vector<models::Estimate>& weights);

// A table with a heading, and below it how to read it; empty where there are no coefficients.
std::vector<std::string> CoefficientTexts(const std::vector<models::Estimate>& coefficients,
                                          const std::string& convention);

// "law, delayed by 3, differenced once"
std::string InputText(const models::Input& input);

// "level from 1899: -247.78 (s.e. 28)"
std::string EventText(const models::Event& event);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_ESTIMATETEXT_H_
