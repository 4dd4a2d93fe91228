#ifndef TSXPORT_TESTS_CORE_SUPPORT_TESTSERIES_H_
#define TSXPORT_TESTS_CORE_SUPPORT_TESTSERIES_H_

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <tsfcore/ESForecastState.h>
#include <tsffit/tsffit.h>

namespace test {

// Rows of a comma-separated file below tests/ without its header line. No field is quoted.
std::vector<std::vector<std::string>> ReadRows(const std::string& path);

// Numbers parted by blanks; "NA" is the missing value.
std::vector<double> Numbers(const std::string& text);

// A column of a file in tests/data; empty cells are missing.
std::vector<double> DataColumn(const std::string& file, const std::string& column = "value");

// Tables of the form name,what,numbers in tests/reference.
using ReferenceTable = std::map<std::string, std::map<std::string, std::vector<double>>>;
ReferenceTable ReadReference(const std::string& file);

// The codes by the names of the command: "holt", "winters-additive" ...
int KindByName(const std::string& name);

std::string KindName(int kind);

// f(0), f(1), ... f(n - 1)
std::vector<double> Generate(std::size_t n, const std::function<double(std::size_t)>& f);

// Reproducible noise with mean 0 and standard deviation about 1, by position.
double Noise(std::size_t t);

tsffit::SmoothingFit Fit(const std::vector<double>& series, int kind, unsigned seasonLength = 4,
                         int functionType = TSTransformation::kNone);

const ESForecastState& StateOf(const TSFModel& model);

}  // namespace test

#endif  // TSXPORT_TESTS_CORE_SUPPORT_TESTSERIES_H_
