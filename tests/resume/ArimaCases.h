#ifndef TSXPORT_TESTS_RESUME_ARIMACASES_H_
#define TSXPORT_TESTS_RESUME_ARIMACASES_H_

#include <iosfwd>
#include <string>
#include <vector>

#include <tsfcore/tsfcore.h>
#include <tsffit/tsffit.h>

namespace test {

// A model and the data to fit it to; one case for every feature that a document can tell of.
struct ArimaCase {
  std::string name;
  std::vector<double> series{};
  AMModelSpec::Fields spec{};
  std::vector<std::vector<double>> predictors{};
  bool too_short_for_cls = false;
};

// By each of the methods that can fit it.
struct FittedCase {
  ArimaCase data;
  tsffit::ArimaMethod method;
};

std::vector<FittedCase> FittedCases();

std::string NameOf(const FittedCase& fitted);
void PrintTo(const FittedCase& fitted, std::ostream* out);

// Values for the periods to come: the last `horizon` ones of each predictor once more.
std::vector<std::vector<double>> Futures(const ArimaCase& arimaCase, std::size_t horizon);

tsffit::ArimaFit Fit(const ArimaCase& arimaCase, tsffit::ArimaMethod method);

// The time-series XML document of the fitted model.
std::string DocumentOf(const tsffit::ArimaFit& fit);

}  // namespace test

#endif  // TSXPORT_TESTS_RESUME_ARIMACASES_H_
