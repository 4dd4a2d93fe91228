#ifndef TSXPORT_TESTS_RESUME_GOON_H_
#define TSXPORT_TESTS_RESUME_GOON_H_

#include <cstddef>
#include <vector>

#include "ReadArima.h"

namespace test {

struct NextPeriod {
  double z = 0;                  // the forecast of Z
  double relative_variance = 0;  // of its error, in units of the error variance
};

// c, transfer functions and outliers, differenced, in the `horizon` periods after the fit.
List KnownPart(const ReadArima& model, const std::vector<List>& futures, std::size_t horizon);

// The forecasts of Z, by the way that docs/documents.md tells for the state's element.
std::vector<NextPeriod> GoOn(const ReadArima& model, const std::vector<List>& futures,
                             std::size_t horizon);

}  // namespace test

#endif  // TSXPORT_TESTS_RESUME_GOON_H_
