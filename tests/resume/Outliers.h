#ifndef TSXPORT_TESTS_RESUME_OUTLIERS_H_
#define TSXPORT_TESTS_RESUME_OUTLIERS_H_

#include "ReadArima.h"

namespace test {

// sum of D(B) o_j(t), cases counted from the first one of the fit.
double DifferencedOutliers(const ReadArima& model, long t);

}  // namespace test

#endif  // TSXPORT_TESTS_RESUME_OUTLIERS_H_
